#pragma once

#include <array>
#include <cstdint>

#include <nvlist/objects/Trap.h>
#include <nvlist/scroll/Axis.h>
#include <nvlist/scroll/art.h>
#include <nvlist/scroll/gradient.h>

/// Everything in which the vertical and the horizontal scroll bar differ beyond their axis. Each
/// difference is part of the published behaviour.
namespace norvane::scroll {

struct BarKind {
  Axis axis;

  // Names in reports.
  Module module;
  const char* thumbMouseDown;
  const char* thumbMouseMove;
  const char* thumbMouseUp;
  const char* nearStep;
  const char* farStep;
  const char* checkLength;

  /// ScrollState::PageDirection while a press on the track repeats. The codes are crossed: up and
  /// right are 1.
  std::int32_t towardsNear;
  std::int32_t towardsFar;

  /// What the length of the thumb is calculated from: the bar's place, or its surface. A user sees
  /// the difference only where a platform rounds the size of the surface.
  enum class LengthOf { place, surface } thumbSource;

  /// The gradient of the track. A vertical bar is shaded on the left, a horizontal one at the top:
  /// there the shade is the second colour, as the gradient runs from bottom to top.
  std::int32_t gradientDirection;
  bool beginsWithShade;

  /// Whether the bar has BackColor and shows it, and nothing else, in style 99.
  bool hasCustomStyle;
};

inline constexpr BarKind verticalBar = {
    .axis = Axis::vertical,
    .module = {kinds::control, "nvVScroll"},
    .thumbMouseDown = "VScrollBar1_MouseDown",
    .thumbMouseMove = "VScrollBar1_MouseMove",
    .thumbMouseUp = "VScrollBar1_MouseUp",
    .nearStep = "VBtnUp1_ValueUp",
    .farStep = "VBtnDown1_ValueDown",
    .checkLength = "ÜberprüfeHeight",
    .towardsNear = 1,
    .towardsFar = 2,
    .thumbSource = BarKind::LengthOf::place,
    .gradientDirection = leftToRight,
    .beginsWithShade = true,
    .hasCustomStyle = false,
};

inline constexpr BarKind horizontalBar = {
    .axis = Axis::horizontal,
    .module = {kinds::control, "nvHScroll"},
    .thumbMouseDown = "HScrollBar1_MouseDown",
    .thumbMouseMove = "HScrollBar1_MouseMove",
    .thumbMouseUp = "HScrollBar1_MouseUp",
    .nearStep = "VBtnLeft1_ValueUp",
    .farStep = "VBtnRight1_ValueDown",
    .checkLength = "ÜberprüfeWidth",
    .towardsNear = 2,
    .towardsFar = 1,
    .thumbSource = BarKind::LengthOf::surface,
    .gradientDirection = bottomToTop,
    .beginsWithShade = false,
    .hasCustomStyle = true,
};

struct ThumbKind {
  Axis axis;
  Module module;

  /// The column of the right side of the white box, counted from the right edge. At 2 the last
  /// column of the thumb stays in the background colour.
  float boxInset;

  /// Whether the picture is chosen before the surface is cleared. A style number too large for
  /// the choice then leaves the old picture; otherwise the thumb becomes empty.
  bool choosesBeforeClearing;

  /// Whether the thumb is a flat colour in style 99; otherwise 99 is a style without pictures.
  bool hasCustomStyle;
};

inline constexpr ThumbKind verticalThumb = {
    .axis = Axis::vertical,
    .module = {kinds::control, "VScrollBar"},
    .boxInset = 1,
    .choosesBeforeClearing = true,
    .hasCustomStyle = false,
};

inline constexpr ThumbKind horizontalThumb = {
    .axis = Axis::horizontal,
    .module = {kinds::control, "HScrollBar"},
    .boxInset = 2,
    .choosesBeforeClearing = false,
    .hasCustomStyle = true,
};

/// One stroke of the chevron of a button in custom style: a line, or a point where both ends are
/// the same.
struct Stroke {
  float x1, y1, x2, y2;
};
using Chevron = std::array<Stroke, 7>;

inline constexpr Chevron leftChevron = {{{9, 4, 5, 8},
                                         {9, 5, 5, 9},
                                         {10, 5, 5, 10},
                                         {5, 8, 5, 8},
                                         {5, 8, 11, 12},
                                         {6, 9, 10, 13},
                                         {8, 9, 11, 12}}};
inline constexpr Chevron rightChevron = {{{7, 4, 11, 8},
                                          {7, 5, 11, 9},
                                          {6, 5, 10, 9},
                                          {11, 8, 11, 8},
                                          {9, 8, 5, 12},
                                          {10, 8, 6, 12},
                                          {10, 9, 6, 13}}};

struct ButtonKind {
  Module module;
  art::Arrow arrow;

  /// Whether a step raises ValueUp, as at the near end of a bar, or ValueDown.
  bool raisesValueUp;

  /// Milliseconds from the press to the first tick, which raises nothing. The second event comes
  /// 100 after it: 600 or 350 after the press.
  std::int32_t firstDelay;

  /// True: every change shows the state of the button, in the procedure PaintState. A press shows
  /// only after a move has reported the pointer inside, and a release leaves the hover.
  /// False: each handler shows a picture of its own. A press shows at once, a release shows the
  /// button at rest even under the pointer, and a disabled button changes under the pointer.
  bool paintsState;

  /// Drawn on a flat face in style 99; without it, 99 is a style without pictures.
  const Chevron* chevron;
};

inline constexpr ButtonKind upButton = {
    .module = {kinds::control, "VBtnUp"},
    .arrow = art::Arrow::up,
    .raisesValueUp = true,
    .firstDelay = 500,
    .paintsState = false,
    .chevron = nullptr,
};

inline constexpr ButtonKind downButton = {
    .module = {kinds::control, "VBtnDown"},
    .arrow = art::Arrow::down,
    .raisesValueUp = false,
    .firstDelay = 500,
    .paintsState = false,
    .chevron = nullptr,
};

inline constexpr ButtonKind leftButton = {
    .module = {kinds::control, "VBtnLeft"},
    .arrow = art::Arrow::left,
    .raisesValueUp = true,
    .firstDelay = 250,
    .paintsState = true,
    .chevron = &leftChevron,
};

inline constexpr ButtonKind rightButton = {
    .module = {kinds::control, "VBtnRight"},
    .arrow = art::Arrow::right,
    .raisesValueUp = false,
    .firstDelay = 250,
    .paintsState = true,
    .chevron = &rightChevron,
};

}  // namespace norvane::scroll
