#pragma once

#include <QPalette>
#include <QRgb>

#include <nvlist/values/Colour.h>

namespace norvane {

/// A colour in Qt's form. A system colour becomes the nearest one of the palette; an unknown one is
/// black.
QRgb rgbOf(Colour colour, const QPalette& palette);

}  // namespace norvane
