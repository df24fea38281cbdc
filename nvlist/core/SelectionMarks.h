#pragma once

#include <cstdint>
#include <span>

#include <nvlist/core/ItemStore.h>

namespace norvane {

/// Writes the `Selected` marks of the items, and knows enough of them to clear them without a look
/// at a million items: nothing to do where none was set, one item where only one was and stands
/// where it stood.
class SelectionMarks {
 public:
  /// Throws Failure 9 outside the bounds.
  void set(ItemStore& items, std::int32_t index, Boolean selected);
  /// Takes the mark off every item.
  void clear(ItemStore& items);

  /// An item was moved, or all of them were; so that the one with the mark is found again.
  void itemMoved(std::int32_t from, std::int32_t to) {
    if (lastIndex_ == from) lastIndex_ = to;
  }
  void reordered(std::span<const std::int32_t> order);

 private:
  std::int64_t marksSet_ = 0;  ///< since the last clear; no more items than that have one
  std::int32_t lastIndex_ = 0;
};

}  // namespace norvane
