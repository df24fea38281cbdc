#pragma once

#include <nvlist/core/ListItem.h>

namespace norvane {

/// The arguments of ItemsAdd by name, for C++ hosts:
///
///     list.ItemsAdd({.aText = "Vienna", .aBold = true, .aKey = "AT-9"});
struct NewItem {
  Variant aText;                              ///< the displayed text; converted to a string
  Variant aIndex = -1;                        ///< where to insert; negative or past the end: append
  Picture aIcon = nullptr;                    ///< shown under cIcons and cCheckBoxesIcons
  Picture aIconSelected = nullptr;            ///< shown while selected; empty: aIcon is
  Boolean aChecked = false;                   ///< the check mark
  Variant aForeColor = defaultMark;           ///< text colour; "def": none of its own
  Variant aBackColor = defaultMark;           ///< background colour; "def": none of its own
  Boolean aAllowEdit = false;                 ///< may be edited if the list's AllowEdit is set
  cItemAlignment aAlignment = cLeft;          ///< where the text is placed in the row
  Variant aForeColorSelected = defaultMark;   ///< text colour while selected
  Variant aBackColorSelected = defaultMark;   ///< background colour while selected
  Boolean aEnabled = true;                    ///< a disabled item cannot become the current one
  Variant aTag = "";                          ///< any value of the host
  Variant aForeColorDis = colours::greyText;  ///< converted to a 32-bit number
  Variant aBackColorDis = colours::light3D;   ///< converted to a 32-bit number
  Boolean aBold = false;                      ///< bold text
  Boolean aItalic = false;                    ///< italic text
  Boolean aUnderline = false;                 ///< underlined text
  Variant aKey = "";                          ///< converted to a string
};

}  // namespace norvane
