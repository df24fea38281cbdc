#pragma once

#include <cstdint>

#include <nvlist/scroll/Axis.h>
#include <nvlist/values/Picture.h>

/// The pictures of the scroll bars, each drawn once and shared by all bars of the program.
namespace norvane::art {

/// Where the chevron of a button points.
enum class Arrow { up, down, left, right };

/// A button of 17 by 17 pixels. `index` is style * 4 + state, with the styles blue 0, silver 1 and
/// olive 2 and the states normal 1, hover 2, pressed 3 and disabled 4. Any index but 1 to 12
/// throws Failure 340.
Picture button(Arrow arrow, std::int32_t index);

/// A part of a thumb. `index` is style * 6 + 1 to 3 for the body of a pressed, a hovered and a
/// normal thumb, and style * 6 + 4 to 6 for its grip. A body has 13 by 14 pixels and a grip 7 by 8;
/// in the horizontal bar 14 by 13 and 8 by 7. Any index but 1 to 18 throws Failure 340.
Picture thumb(scroll::Axis axis, std::int32_t index);

}  // namespace norvane::art
