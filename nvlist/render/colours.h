#pragma once

#include <optional>

#include <nvlist/values/Colour.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// The background of selected rows: that of the style's palette, `valueColor` in cCustom, 0 in an
/// unknown style.
Colour selectionColour(cColorStyle style, Colour valueColor);

/// The colour of the frame around the list, in the same way; an unknown style has none.
std::optional<Colour> borderColour(cColorStyle style, Colour borderColor);

}  // namespace norvane
