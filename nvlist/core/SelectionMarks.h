#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <nvlist/core/ItemStore.h>

namespace norvane {

/// Sets the `Selected` marks of the items. It remembers enough to clear them without visiting a
/// million items: only those from the first to the last index at which a mark was set are visited,
/// unless a marked item is no longer found there.
class SelectionMarks {
 public:
  /// Throws Failure 9 outside the bounds.
  void set(ItemStore& items, std::int32_t index, Boolean selected);
  /// Sets the mark of an item that was read from a file and may have come with it.
  void setLoaded(ItemStore& items, std::int32_t index) {
    items.touch(index).Selected(false);
    set(items, index, true);
  }
  /// Clears the mark of every item.
  void clear(ItemStore& items);
  /// To be called before the item is removed, or after all items were.
  void removing(ItemStore& items, std::int32_t index);
  void removedAll() { marksSet_ = signature_ = 0; }

  /// The indexes of the marked items, in order.
  std::vector<std::int32_t> indexes(ItemStore& items) const;
  /// A number that differs for different sets of marked items, whatever their order in the list. It
  /// is kept up to date as marks change, so that a platform can find a change without visiting the
  /// items. 0 if no item is marked.
  std::uint64_t signature() const { return signature_; }

  /// To be called when an item has been moved, or all items have been reordered, so that a single
  /// marked item is found again.
  void itemMoved(std::int32_t from, std::int32_t to);
  void reordered(std::span<const std::int32_t> order);

 private:
  std::uint64_t marksSet_ = 0;   ///< since the last clear; an upper bound for the marked items
  std::uint64_t signature_ = 0;  ///< the sum of a number of each marked item
  std::int32_t first_ = 0;       ///< the range of their indexes when they were set
  std::int32_t last_ = 0;
};

}  // namespace norvane
