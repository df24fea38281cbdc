#pragma once

#include <cstdint>

namespace norvane {

/// A colour in the host's format: red in the low byte, then green, then blue. If the top bit is
/// set, the low byte is the index of a system colour, which the drawing surface resolves.
using Colour = std::int32_t;

/// The colour with these channels, 0 to 255 each.
constexpr Colour rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return red | green << 8 | blue << 16;
}

/// The system colour with this index.
constexpr Colour systemColour(std::uint8_t index) {
  return static_cast<Colour>(0x80000000U | index);
}

/// Whether the colour is one of the system's.
constexpr bool isSystemColour(Colour colour) { return colour < 0; }

namespace colours {
constexpr Colour window = systemColour(0x05);
constexpr Colour windowText = systemColour(0x08);
constexpr Colour workspace = systemColour(0x0C);
constexpr Colour white = 0xFFFFFF;
constexpr Colour greyText = systemColour(0x11);
constexpr Colour light3D = systemColour(0x16);
}  // namespace colours

}  // namespace norvane
