#pragma once

#include <QFont>

#include <nvlist/values/Font.h>

namespace norvane {

/// A font object of its own that looks like the given font; never empty. A font sized in pixels is
/// described by the points that come to on the screen.
Font fontFrom(const QFont& font);

/// The Qt font for a font object. Qt takes the nearest face where there is none of that name. A
/// size outside 1 to 1000 points counts as the nearest of the two, one that is no number as 1.
QFont toQFont(const FontObject& font);

}  // namespace norvane
