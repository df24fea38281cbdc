#pragma once

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Ref.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// The fields of an item that many items of a list have in common.
///
/// The four variant colours hold a colour or the text "def", which means that the item has no
/// colour of its own and takes the one that the style of the list gives. The two colours of the
/// disabled state are always colours.
struct ItemLook {
  Boolean AllowEdit = false;         ///< may be edited in place if the list's AllowEdit is set too
  Boolean Enabled = false;           ///< a disabled item cannot become the current one
  Boolean Bold = false;              ///< bold text
  Boolean Italic = false;            ///< italic text
  Boolean Underline = false;         ///< underlined text
  cItemAlignment Alignment = cLeft;  ///< where the text is placed in the row
  Colour ForeColorDis = 0;           ///< text colour while disabled
  Colour BackColorDis = 0;           ///< background colour while disabled
  Variant ForeColor;                 ///< text colour
  Variant BackColor;                 ///< background colour
  Variant ForeColorSelect;           ///< text colour while selected
  Variant BackColorSelect;           ///< background colour while selected
  Picture Icon;                      ///< shown if the Style of the list has icons
  Picture IconSelected;              ///< icon while selected; empty: Icon is shown then too

  /// Whether both hold the same values. Texts and objects are the same if they are one.
  bool isSame(const ItemLook& other) const {
    // The fields that differ most often come first.
    return ForeColor.isIdentical(other.ForeColor) && BackColor.isIdentical(other.BackColor) &&
           Icon == other.Icon && Bold == other.Bold && Enabled == other.Enabled &&
           AllowEdit == other.AllowEdit && Italic == other.Italic && Underline == other.Underline &&
           Alignment == other.Alignment && ForeColorDis == other.ForeColorDis &&
           BackColorDis == other.BackColorDis &&
           ForeColorSelect.isIdentical(other.ForeColorSelect) &&
           BackColorSelect.isIdentical(other.BackColorSelect) && IconSelected == other.IconSelected;
  }
};

}  // namespace norvane
