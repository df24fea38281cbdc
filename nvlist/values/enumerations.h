#pragma once

#include <cstdint>

/// The public enumerations. Hosts store their values. Values are not checked on assignment; the
/// properties that take them document the effect of unknown ones.
namespace norvane {

/// A colour scheme of the list: those of the three visual styles, or the host's own colours.
enum cColorStyle : std::int32_t { cXPBlue = 0, cXPSilver = 1, cXPOlive = 2, cCustom = 99 };

/// A colour scheme of the scroll bars.
enum cScrollColorStyle : std::int32_t {
  cXPScrollBlue = 0,
  cXPScrollSilver = 1,
  cXPScrollOlive = 2
};

/// What is shown before the text of each row.
enum cListStyle : std::int32_t { cDefault = 0, cCheckBoxes = 1, cIcons = 2, cCheckBoxesIcons = 3 };

/// Whether rows in this style have a check box.
constexpr bool hasCheckBox(cListStyle style) {
  return style == cCheckBoxes || style == cCheckBoxesIcons;
}
/// Whether rows in this style have an icon.
constexpr bool hasIcon(cListStyle style) { return style == cIcons || style == cCheckBoxesIcons; }

/// Where a text is placed in its row.
enum cItemAlignment : std::int32_t { cLeft = 0, cCenter = 1, cRight = 2 };

/// The direction of a sort.
enum cSortMode : std::int32_t { cAscending = 1, cDescending = 2 };

/// How texts are compared: by their characters' codes, or regardless of case.
enum cFindCompare : std::int32_t { cFindBinary = 0, cFindText = 1 };

/// What the mouse wheel does: it scrolls, moves the current item, or does nothing.
enum cWheelFunction : std::int32_t { cWheelScroll = 0, cWheelListIndex = 1, cWheelOff = 2 };

/// The visual style of the desktop, as SpEv::ActiveXPTheme returns it.
enum cActiveXPTheme : std::int32_t {
  styleBlue = 1,
  styleSilver = 2,
  styleOlive = 3,
  styleClassic = 4
};

/// A mouse button. SpEv::MouseButtonPressed returns 4 for the middle button, which is none of
/// these.
enum cMouseButton : std::int32_t { mouseNone = 0, mouseLeft = 1, mouseRight = 2, mouseMiddle = 3 };

/// Which scroll bars the list may show.
enum ScrollBarConstants : std::int32_t {
  vbSBNone = 0,
  vbHorizontal = 1,
  vbVertical = 2,
  vbBoth = 3
};

}  // namespace norvane
