#include <nvlist/core/SelectionMarks.h>

#include <algorithm>

namespace norvane {
namespace {

/// A number of the item, spread over all bits, so that sums of several are different.
std::uint64_t numberOf(const StoredItem& item) {
  return reinterpret_cast<std::uintptr_t>(&item) * 0x9E3779B97F4A7C15U;
}

}  // namespace

void SelectionMarks::set(ItemStore& items, std::int32_t index, Boolean selected) {
  StoredItem& item = items.touch(index);
  if (item.Selected()) signature_ -= numberOf(item);
  item.Selected(selected);
  if (selected) signature_ += numberOf(item);
  if (!selected) return;
  first_ = marksSet_ == 0 ? index : std::min(first_, index);
  last_ = marksSet_ == 0 ? index : std::max(last_, index);
  ++marksSet_;
}

void SelectionMarks::clear(ItemStore& items) {
  if (marksSet_ == 0) return;
  std::uint64_t cleared = 0;
  for (std::int32_t i = first_; i <= std::min(last_, items.upperBound()); ++i) {
    StoredItem& item = items.touch(i);
    if (!item.Selected()) continue;
    item.Selected(false);
    ++cleared;
  }
  // If a marked item has moved to an unknown index, all items are visited.
  if (cleared < marksSet_) items.forEach([](StoredItem& item) { item.Selected(false); });
  removedAll();
}

void SelectionMarks::removing(ItemStore& items, std::int32_t index) {
  if (marksSet_ == 0) return;
  const StoredItem& item = items.touch(index);
  if (item.Selected()) signature_ -= numberOf(item);
}

std::vector<std::int32_t> SelectionMarks::indexes(ItemStore& items) const {
  std::vector<std::int32_t> found;
  if (marksSet_ == 0) return found;
  if (marksSet_ == 1 && items.holds(first_) && items.touch(first_).Selected()) return {first_};
  std::int32_t index = 0;
  items.forEach([&](const StoredItem& item) {
    if (item.Selected()) found.push_back(index);
    ++index;
  });
  return found;
}

void SelectionMarks::itemMoved(std::int32_t from, std::int32_t to) {
  if (first_ == from && last_ == from) first_ = last_ = to;
}

void SelectionMarks::reordered(std::span<const std::int32_t> order) {
  if (first_ != last_) return;
  const auto place = std::ranges::find(order, first_);
  if (place != order.end()) first_ = last_ = static_cast<std::int32_t>(place - order.begin());
}

}  // namespace norvane
