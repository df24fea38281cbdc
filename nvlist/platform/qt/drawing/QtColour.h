#pragma once

#include <QColor>
#include <QPalette>
#include <QRgb>

#include <nvlist/values/Colour.h>

namespace norvane {

/// A colour in Qt's form. A system colour becomes the nearest one of the palette; an unknown one is
/// black.
QRgb rgbOf(Colour colour, const QPalette& palette);

/// The colour of the list for one of Qt's, without its transparency.
Colour colourFrom(const QColor& colour);

/// The contrast of two colours as the accessibility guidelines of the web define it: from 1, the
/// same, to 21, black and white.
double contrastOf(const QColor& one, const QColor& other);

/// The palette with the colours that a list gives disabled rows changed so that these rows differ
/// little from others, and their texts have a contrast of at least 3.
QPalette readablePalette(QPalette palette);

}  // namespace norvane
