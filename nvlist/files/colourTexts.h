#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <nvlist/values/Colour.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The number in upper-case hexadecimal, padded with zeros to `width` digits and never truncated.
/// Negative numbers have eight digits.
std::string CHex(std::int32_t value, std::int16_t width);

/// Three channels, 0 to 255 each, as RRGGBB.
std::string RGB2HTML(std::int16_t red, std::int16_t green, std::int16_t blue);

/// A colour as RRGGBB. System colours are not resolved: the channels are those of the negative
/// number, divided with truncation towards zero.
std::string VBColor2HTML(Colour color);

/// The text of an item's colour in a list file, six characters: RRGGBB, or "def" after three
/// blanks. Any text that is neither "def" nor a number gives white. A number that does not fit 32
/// bits is reported and gives the empty text.
std::string GetCorrectColor(std::string_view text);

/// The same for the colour of an item, always six characters; all blanks for the empty text.
std::array<char, 6> listFileColour(const Variant& colour);

/// The value of the two hexadecimal digits at offset `at`. Throws Failure 13 (Type mismatch) if one
/// is missing or not a hexadecimal digit.
Colour channelOfText(std::string_view text, std::size_t at);

}  // namespace norvane
