#pragma once

#include <cstdint>

#include <nvlist/drawing/Surface.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/enumerations.h>

/// What the parts of the two scroll bars have in common: values and the simplest drawing. What they
/// do differs in many small points, so each part does it itself.
namespace norvane::scroll {

/// The colour 0xRRGGBB.
constexpr Colour colour(std::uint32_t rgb) {
  return static_cast<Colour>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

/// The style without pictures, of the horizontal bar alone.
constexpr std::int32_t customStyle = 99;

constexpr Colour buttonFace = systemColour(0x0F);

/// The track, at the edge where it lies in the shade and at the other one.
constexpr Colour trackShade = colour(0xF3F1EC);
constexpr Colour trackLight = colour(0xFEFEFB);
/// In the place of the shade where a press is repeating.
constexpr Colour pressedShade = colour(0xE3DED3);

/// In pixels.
constexpr float shortestThumb = 8;
/// A track shorter than this has no thumb.
constexpr float shortestTrack = 12;
/// A grip takes a thumb of this length.
constexpr float shortestGripped = 14;
/// How far beside the bar a drag is still followed.
constexpr float dragReach = 130;

/// Milliseconds between two steps of a button that is held, after its first delay.
constexpr std::int32_t repeatInterval = 100;

constexpr std::int16_t leftButton = 1;

/// What the bars have to say, each in a box with a critical stop.
constexpr const char* minTooHigh = "Min darf nicht größer sein als Max!";
constexpr const char* maxTooLow = "Max darf nicht kleiner sein als Min!";
constexpr const char* boxTitle = "nvList";
constexpr std::int32_t criticalStop = 16;

enum class Press { none, down };

/// What the mouse does to a thumb.
enum class ThumbAction { mousedown, mouseup, mousemove };

/// Of a button's picture, behind style * 4.
enum class ButtonState : std::int32_t { normal = 1, hover = 2, pressed = 3, disabled = 4 };

/// Everything a bar knows of itself but its colours. Lengths are pixels along the bar.
/// UserControl_InitProperties gives the values that hosts see first.
struct ScrollState {
  std::int32_t Min = 0;
  std::int32_t Max = 0;
  std::int32_t Value = 0;
  Boolean Gradient;
  cScrollColorStyle ColorStyle = cXPScrollBlue;
  Boolean ActiveScrolling;
  std::int32_t SmallChange = 0;
  std::int32_t LargeChange = 0;
  Boolean Enabled;
  Boolean Dragging;             ///< the thumb is held
  std::int32_t GrabOffset = 0;  ///< where in the thumb
  double UnitPixels = 0;        ///< track for each unit of the value
  float ThumbLength = 0;        ///< before its floor
  Boolean PageActive;           ///< a press on the bare track is repeating
  float PageClickPos = 0;       ///< where that press was
  /// Which way it goes; 0 while there is none. The bars have codes of their own.
  std::int32_t PageDirection = 0;
};

/// Shows nothing but a colour: a surface takes its background from the next Cls on.
inline void fill(Surface& surface, Colour background) {
  surface.BackColor(background);
  surface.Cls();
}

}  // namespace norvane::scroll
