#pragma once

#include <cstdint>

#include <nvlist/drawing/Surface.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Rectangle.h>

namespace norvane {

/// Fills the rectangle with a gradient: in direction 0 from `color1` at the left to `color2` at the
/// right, in direction 1 from `color1` at the bottom to `color2` at the top. The last pixel stands
/// one step short of `color2`. In any other direction nothing is drawn.
///
/// Only the side along the gradient is calculated and then stretched over the other one. Where it
/// has no length nothing is drawn and Failure 9, Subscript out of range, is reported. Of system
/// colours the lower three bytes are taken as they are.
void DrawGradient(Surface& surface, const Rectangle& rectangle, Colour color1, Colour color2,
                  std::int32_t direction);

}  // namespace norvane
