#pragma once

#include <cstdint>

/// The public enumerations. Their values are part of the interface: hosts store them. None is
/// checked on assignment; what an unknown value does is told at the property that takes it.
namespace norvane {

enum cColorStyle : std::int32_t { cXPBlue = 0, cXPSilver = 1, cXPOlive = 2, cCustom = 99 };

enum cScrollColorStyle : std::int32_t {
  cXPScrollBlue = 0,
  cXPScrollSilver = 1,
  cXPScrollOlive = 2
};

enum cListStyle : std::int32_t { cDefault = 0, cCheckBoxes = 1, cIcons = 2, cCheckBoxesIcons = 3 };

constexpr bool hasCheckBox(cListStyle style) {
  return style == cCheckBoxes || style == cCheckBoxesIcons;
}
constexpr bool hasIcon(cListStyle style) { return style == cIcons || style == cCheckBoxesIcons; }

enum cItemAlignment : std::int32_t { cLeft = 0, cCenter = 1, cRight = 2 };

enum cSortMode : std::int32_t { cAscending = 1, cDescending = 2 };

enum cFindCompare : std::int32_t { cFindBinary = 0, cFindText = 1 };

enum cWheelFunction : std::int32_t { cWheelScroll = 0, cWheelListIndex = 1, cWheelOff = 2 };

enum cActiveXPTheme : std::int32_t {
  styleBlue = 1,
  styleSilver = 2,
  styleOlive = 3,
  styleClassic = 4
};

/// What the mouse tells is not always one of these: the middle button is 4.
enum cMouseButton : std::int32_t { mouseNone = 0, mouseLeft = 1, mouseRight = 2, mouseMiddle = 3 };

/// Which scroll bars the list may show.
enum ScrollBarConstants : std::int32_t {
  vbSBNone = 0,
  vbHorizontal = 1,
  vbVertical = 2,
  vbBoth = 3
};

}  // namespace norvane
