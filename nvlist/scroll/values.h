#pragma once

#include <cstdint>

#include <nvlist/drawing/Surface.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>

/// Values that the bars share with their parts.
namespace norvane::scroll {

/// The colour 0xRRGGBB.
constexpr Colour colour(std::uint32_t rgb) {
  return static_cast<Colour>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

constexpr Colour buttonFace = systemColour(0x0F);

/// The style of flat colours; the horizontal bar alone has it.
constexpr std::int32_t customStyle = 99;

/// In pixels. On a shorter track the thumb is hidden.
constexpr float shortestTrack = 12;

/// The left mouse button, alone.
constexpr std::int16_t leftMouseButton = 1;

enum class Press { none, down };

/// A colour of the custom style in each state of the mouse.
struct StateColours {
  Colour rest = buttonFace;
  Colour down = buttonFace;
  Colour hover = buttonFace;

  Colour of(Boolean isInside, Press press) const {
    if (!isInside) return rest;
    return press == Press::down ? down : hover;
  }
};

/// Clears the surface in a colour.
inline void fill(Surface& surface, Colour background) {
  surface.BackColor(background);
  surface.Cls();
}

}  // namespace norvane::scroll
