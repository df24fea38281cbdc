#pragma once

#include <string>

#include <nvlist/core/ItemLook.h>

namespace norvane {

/// One item of a list, as hosts and file readers see it: a plain record without behaviour. A new
/// record has every field in the zero state of its type. A list keeps its items in a smaller form
/// (StoredItem); a record is a copy, and changing it does not change the list.
struct ListItem : ItemLook {
  Boolean Checked;   ///< the check mark
  Boolean Selected;  ///< the selection mark
  std::string Text;  ///< the displayed text
  Variant Tag;       ///< any value of the host
  std::string Key;   ///< the host's key; need not be unique
};

}  // namespace norvane
