#include <nvlist/core/ItemStore.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <vector>

#include <nvlist/values/Failure.h>

namespace norvane {

Ref<ListItem>& ItemStore::reference(std::int32_t index) const {
  if (!holds(index)) throw Failure::subscriptOutOfRange();
  Ref<ListItem>& reference = slots_[static_cast<std::size_t>(index)];
  if (!reference) makeItem(reference, index);
  return reference;
}

void ItemStore::makeItem(Ref<ListItem>& reference, std::int32_t index) const {
  if (source_) reference = source_->make(index);
  if (!reference) reference = makeRef<ListItem>();
}

void ItemStore::makeAllItems() {
  if (!source_) return;
  forEach([](const ListItem&) {});
  source_.reset();
}

void ItemStore::forgetTextWidths() {
  for (const Ref<ListItem>& reference : slots_)
    if (reference) reference->textWidth = ListItem::notMeasured;
}

void ItemStore::grow() {
  if (upperBound() == std::numeric_limits<std::int32_t>::max()) throw Failure::overflow();
  slots_.emplace_back();
}

// Room is made before anything moves, so that a lack of memory loses no item. References are let go
// last: an item's objects may run host code as they are destroyed.

void ItemStore::shrink() {
  makeAllItems();
  const Ref<ListItem> last = std::move(slots_.back());
  slots_.pop_back();
}

void ItemStore::recreate(std::size_t count, std::shared_ptr<ItemSource> source) {
  std::deque<Ref<ListItem>> old(count);
  slots_.swap(old);
  source_.swap(source);
}

void ItemStore::moveLastTo(std::int32_t index) {
  makeAllItems();
  slot(index);
  if (index == upperBound()) return;
  slots_.emplace(slots_.begin() + index);
  slots_[static_cast<std::size_t>(index)].swap(slots_.back());
  slots_.pop_back();
}

void ItemStore::moveDownOnto(std::int32_t index) {
  makeAllItems();
  const Ref<ListItem> removed = slot(index);
  slots_.push_back(Ref(slots_.back()));
  slots_.erase(slots_.begin() + index);
}

void ItemStore::moveOnto(std::int32_t from, std::int32_t to) {
  makeAllItems();
  slot(from);
  Ref<ListItem> carried = slot(to);
  const auto exchange = [&](Ref<ListItem>& reference) { reference.swap(carried); };
  const auto first = slots_.begin();
  if (from < to)
    std::for_each(std::reverse_iterator(first + to), std::reverse_iterator(first + from), exchange);
  else
    std::for_each(first + to + 1, first + from + 1, exchange);
}

void ItemStore::reorder(std::span<const std::int32_t> order) {
  makeAllItems();
  std::vector<Ref<ListItem>> old(slots_.size());
  std::ranges::move(slots_, old.begin());
  auto slot = slots_.begin();
  for (const std::int32_t index : order) *slot++ = std::move(old[static_cast<std::size_t>(index)]);
}

}  // namespace norvane
