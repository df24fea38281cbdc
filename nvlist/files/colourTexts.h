#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <nvlist/values/Colour.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The number in upper-case hexadecimal, with zeros in front up to `width` digits; a longer one
/// stays whole. Negative numbers take all eight digits.
std::string CHex(std::int32_t value, std::int16_t width);

/// Three channels as RRGGBB.
std::string RGB2HTML(std::int16_t red, std::int16_t green, std::int16_t blue);

/// A colour as RRGGBB. System colours are not resolved: they are taken as the number they are, a
/// negative one, and divided towards zero.
std::string VBColor2HTML(Colour color);

/// An item's colour in the six characters of a list file: RRGGBB, or "def" behind three blanks. A
/// text that is neither "def" nor a number counts as white. A number that is no 32-bit one is
/// reported and gives the empty text.
std::string GetCorrectColor(std::string_view text);

/// The same for a colour as an item holds it, always of six characters: blanks come first.
std::array<char, 6> listFileColour(const Variant& colour);

/// The number of the two hexadecimal digits at `at`. Throws Failure 13, Type mismatch, where one is
/// missing or none.
Colour channelOfText(std::string_view text, std::size_t at);

}  // namespace norvane
