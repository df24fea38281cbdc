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
  if (marksSet_ == 1 && items.holds(lastIndex_) && items.touch(lastIndex_).Selected())
    return {lastIndex_};
  std::int32_t index = 0;
  items.forEach([&](const StoredItem& item) {
    if (item.Selected()) found.push_back(index);
    ++index;
  });
  return found;
}

void SelectionMarks::reordered(std::span<const std::int32_t> order) {
  const auto place = std::ranges::find(order, lastIndex_);
  if (place != order.end()) lastIndex_ = static_cast<std::int32_t>(place - order.begin());
}

}  // namespace norvane
