#pragma once

#include <nvlist/core/ListItem.h>

namespace norvane {

/// The arguments of ItemsAdd by name, for C++ hosts:
///
///     list.ItemsAdd({.aText = "Vienna", .aBold = true, .aKey = "AT-9"});
struct NewItem {
  Variant aText;        ///< the displayed text; converted to a string
  Variant aIndex = -1;  ///< where to insert; negative or past the end: append
  Picture aIcon = nullptr;
  Picture aIconSelected = nullptr;
  Boolean aChecked = false;
  Variant aForeColor = defaultMark;
  Variant aBackColor = defaultMark;
  Boolean aAllowEdit = false;
  cItemAlignment aAlignment = cLeft;
  Variant aForeColorSelected = defaultMark;
  Variant aBackColorSelected = defaultMark;
  Boolean aEnabled = true;
  Variant aTag = "";
  Variant aForeColorDis = colours::greyText;  ///< converted to a 32-bit number
  Variant aBackColorDis = colours::light3D;   ///< converted to a 32-bit number
  Boolean aBold = false;
  Boolean aItalic = false;
  Boolean aUnderline = false;
  Variant aKey = "";  ///< converted to a string
};

}  // namespace norvane
