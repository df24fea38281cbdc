#pragma once

#include <optional>

#include <nvlist/values/Colour.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// The background of selected rows: the colour of the style's palette, `valueColor` for cCustom, 0
/// (black) for an unknown style.
Colour selectionColour(cColorStyle style, Colour valueColor);

/// The colour of the frame: that of the palette, or `borderColor` for cCustom. Empty for an unknown
/// style.
std::optional<Colour> borderColour(cColorStyle style, Colour borderColor);

}  // namespace norvane
