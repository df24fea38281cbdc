#pragma once

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Ref.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// The fields of an item that many items of a list have in common. The names are those of ListItem.
struct ItemLook {
  Boolean AllowEdit;
  Boolean Enabled;
  Boolean Bold;
  Boolean Italic;
  Boolean Underline;
  Boolean CheckedAs = true;   ///< what Checked reads while the check mark is set
  Boolean SelectedAs = true;  ///< what Selected reads while the item is selected
  cItemAlignment Alignment = cLeft;
  Colour ForeColorDis = 0;
  Colour BackColorDis = 0;
  Variant ForeColor;
  Variant BackColor;
  Variant ForeColorSelect;
  Variant BackColorSelect;
  Picture Icon;
  Picture IconSelected;

  /// Whether both hold the same values. Texts and objects are the same if they are one.
  bool isSame(const ItemLook& other) const {
    return AllowEdit == other.AllowEdit && Enabled == other.Enabled && Bold == other.Bold &&
           Italic == other.Italic && Underline == other.Underline && CheckedAs == other.CheckedAs &&
           SelectedAs == other.SelectedAs && Alignment == other.Alignment &&
           ForeColorDis == other.ForeColorDis && BackColorDis == other.BackColorDis &&
           ForeColor.isIdentical(other.ForeColor) && BackColor.isIdentical(other.BackColor) &&
           ForeColorSelect.isIdentical(other.ForeColorSelect) &&
           BackColorSelect.isIdentical(other.BackColorSelect) && Icon == other.Icon &&
           IconSelected == other.IconSelected;
  }
};

}  // namespace norvane
