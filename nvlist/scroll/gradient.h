#pragma once

#include <cstdint>

#include <nvlist/drawing/Surface.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Rectangle.h>

namespace norvane {

/// The directions of DrawGradient.
inline constexpr std::int32_t leftToRight = 0;
inline constexpr std::int32_t bottomToTop = 1;

/// Fills the rectangle with a gradient from `color1` to `color2`. The last pixel is one step short
/// of `color2`. A direction other than the two above draws nothing. The lower three bytes of a
/// system colour are used as a colour.
///
/// One line of pixels is calculated along the gradient and stretched over the rectangle. If that
/// side has no length, nothing is drawn and Failure 9, Subscript out of range, is reported.
void DrawGradient(Surface& surface, const Rectangle& rectangle, Colour color1, Colour color2,
                  std::int32_t direction);

}  // namespace norvane
