#pragma once

#include <cstdint>

#include <nvlist/core/ItemStore.h>

namespace norvane {

/// Writes the `Selected` marks of the items, and knows enough of them to clear them without a look
/// at a million items: nothing to do where none was set, one item where only one was.
class SelectionMarks {
 public:
  /// Throws Failure 9 outside the bounds.
  void set(ItemStore& items, std::int32_t index, Boolean selected);
  /// Takes the mark off every item.
  void clear(ItemStore& items);
  /// An item has gone: it is not kept alive for its mark.
  void forgetRemoved();
  /// All items have gone.
  void reset();

 private:
  std::int64_t marksSet_ = 0;  ///< since the last clear
  Ref<ListItem> lastSet_;
};

}  // namespace norvane
