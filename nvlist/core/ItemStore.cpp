#include <nvlist/core/ItemStore.h>

#include <algorithm>
#include <limits>
#include <vector>

#include <nvlist/values/Failure.h>

namespace norvane {

Ref<ListItem>& ItemStore::peek(std::int32_t index) const {
  if (!holds(index)) throw Failure::subscriptOutOfRange();
  Ref<ListItem>& reference = slots_.peek(index);
  if (!reference) makeItem(reference, index);
  return reference;
}

Ref<ListItem>& ItemStore::slot(std::int32_t index) {
  peek(index);
  return slots_.write(index);
}

void ItemStore::setText(std::int32_t index, std::string text) {
  const Ref<ListItem>& reference = slot(index);
  norvane::setText(*reference, std::move(text));
  // Another slot may hold the same item.
  if (!reference->isHeldOnce()) slots_.forgetWidest();
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
  slots_.visitUntil([](const Ref<ListItem>& reference, std::int32_t) {
    if (reference) reference->textWidth = ListItem::notMeasured;
    return false;
  });
  slots_.forgetWidest();
}

void ItemStore::grow() {
  if (upperBound() == std::numeric_limits<std::int32_t>::max()) throw Failure::overflow();
  slots_.insert(slots_.size(), nullptr);
}

// Memory is allocated before anything moves, so that running out of it loses no item. References
// are released last, because destroying the objects of an item may run host code.

void ItemStore::shrink() {
  makeAllItems();
  const Ref<ListItem> last = slots_.take(upperBound());
}

void ItemStore::recreate(std::size_t count, std::shared_ptr<ItemSource> source) {
  SlotBlocks old(static_cast<std::int32_t>(count));
  std::swap(slots_, old);
  source_.swap(source);
}

void ItemStore::move(std::int32_t from, std::int32_t to) {
  makeAllItems();
  slot(to);
  const Ref<ListItem> moved = slot(from);
  if (from == to) return;
  slots_.insert(to > from ? to + 1 : to, moved);
  slots_.take(from < to ? from : from + 1);
}

void ItemStore::moveDownOnto(std::int32_t index) {
  makeAllItems();
  const Ref<ListItem> removed = slot(index);
  slots_.insert(slots_.size(), slot(upperBound()));
  slots_.take(index);
}

void ItemStore::reorder(std::span<const std::int32_t> order) {
  makeAllItems();
  std::vector<Ref<ListItem>> old;
  old.reserve(order.size());
  slots_.visitUntil([&](Ref<ListItem>& reference, std::int32_t) {
    old.push_back(std::move(reference));
    return false;
  });
  slots_.visitUntil([&](Ref<ListItem>& reference, std::int32_t index) {
    reference = std::move(old[static_cast<std::size_t>(order[static_cast<std::size_t>(index)])]);
    return false;
  });
  slots_.forgetWidest();
}

}  // namespace norvane
