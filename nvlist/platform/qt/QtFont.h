#pragma once

#include <QFont>

#include <nvlist/values/Font.h>

namespace norvane {

/// A new font object that looks like the given font; never empty. A size in pixels is converted to
/// points for the screen.
Font fontFrom(const QFont& font);

/// The Qt font for a font object. If no face has its name, Qt picks a similar one. A size is
/// clipped to 1 to 1000 points; NaN counts as 1.
QFont toQFont(const FontObject& font);

}  // namespace norvane
