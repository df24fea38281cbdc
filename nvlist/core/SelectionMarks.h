#pragma once

#include <cstdint>
#include <span>

#include <nvlist/core/ItemStore.h>

namespace norvane {

/// Sets the `Selected` marks of the items. It remembers enough to clear them without visiting a
/// million items: nothing is visited if no mark was set, and only one item if one mark was set and
/// that item's index is still known.
class SelectionMarks {
 public:
  /// Throws Failure 9 outside the bounds.
  void set(ItemStore& items, std::int32_t index, Boolean selected);
  /// Clears the mark of every item.
  void clear(ItemStore& items);

  /// To be called when an item has been moved, or all items have been reordered, so that the marked
  /// item is found again.
  void itemMoved(std::int32_t from, std::int32_t to) {
    if (lastIndex_ == from) lastIndex_ = to;
  }
  void reordered(std::span<const std::int32_t> order);

 private:
  std::int64_t marksSet_ = 0;  ///< since the last clear; an upper bound for the marked items
  std::int32_t lastIndex_ = 0;
};

}  // namespace norvane
