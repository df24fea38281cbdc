#pragma once

#include <string>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// One item of a list, as hosts and file readers see it: a plain record without behaviour. A new
/// record has every field in the zero state of its type. A list keeps its items in a smaller form
/// (StoredItem); a record is a copy, and changing it does not change the list.
///
/// The four variant colours hold a colour or the text "def", which means that the item has no
/// colour of its own and takes the one that the style of the list gives. The two colours of the
/// disabled state are always colours.
struct ListItem {
  Boolean Checked;    ///< the check mark
  Boolean AllowEdit;  ///< may be edited in place if the list's AllowEdit is set too
  Boolean Enabled;    ///< a disabled item cannot become the current one
  Boolean Selected;
  Boolean Bold;
  Boolean Italic;
  Boolean Underline;
  cItemAlignment Alignment = cLeft;
  Colour ForeColorDis = 0;  ///< text colour while disabled
  Colour BackColorDis = 0;  ///< background colour while disabled
  Variant ForeColor;        ///< text colour
  Variant BackColor;        ///< background colour
  Variant ForeColorSelect;  ///< text colour while selected
  Variant BackColorSelect;  ///< background colour while selected
  Picture Icon;
  Picture IconSelected;  ///< icon while selected; empty: Icon is shown then too
  std::string Text;
  Variant Tag;      ///< any value of the host
  std::string Key;  ///< the host's key; need not be unique
};

}  // namespace norvane
