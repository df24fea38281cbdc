#pragma once

#include <QPalette>
#include <QRgb>

#include <nvlist/values/Colour.h>

namespace norvane {

/// A colour as Qt has it; a system colour is the palette's nearest one, black where its index is
/// unknown.
QRgb rgbOf(Colour colour, const QPalette& palette);

}  // namespace norvane
