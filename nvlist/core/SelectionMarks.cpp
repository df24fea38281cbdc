#include <nvlist/core/SelectionMarks.h>

#include <algorithm>

namespace norvane {

void SelectionMarks::set(ItemStore& items, std::int32_t index, Boolean selected) {
  items.touch(index).Selected(selected);
  if (!selected) return;
  lastIndex_ = index;
  ++marksSet_;
}

void SelectionMarks::clear(ItemStore& items) {
  // If the marked item has moved to an unknown index, all items are visited.
  if (marksSet_ == 1 && items.holds(lastIndex_) && items.touch(lastIndex_).Selected()) {
    items.touch(lastIndex_).Selected(false);
  } else if (marksSet_ > 0) {
    items.forEach([](StoredItem& item) { item.Selected(false); });
  }
  marksSet_ = 0;
}

void SelectionMarks::reordered(std::span<const std::int32_t> order) {
  const auto place = std::ranges::find(order, lastIndex_);
  if (place != order.end()) lastIndex_ = static_cast<std::int32_t>(place - order.begin());
}

}  // namespace norvane
