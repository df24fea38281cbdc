#include <nvlist/core/ItemStore.h>

#include <algorithm>
#include <bit>
#include <functional>
#include <limits>
#include <vector>

#include <nvlist/values/Failure.h>

namespace norvane {

Ref<StoredItem>& ItemStore::slot(std::int32_t index) {
  if (!holds(index)) throw Failure::subscriptOutOfRange();
  changed();
  Ref<StoredItem>& reference = slots_.write(index);
  if (!reference) makeItem(reference, index);
  return reference;
}

const Ref<StoredItem>& ItemStore::setText(std::int32_t index, std::string_view text) {
  if (!holds(index)) throw Failure::subscriptOutOfRange();
  changed();
  Ref<StoredItem>& reference = slots_.write(index);
  if (!reference && !source_) return reference = StoredItem::make(*pool_, text);
  if (!reference) makeItem(reference, index);
  reference->Text(text);
  // Another slot may hold the same item.
  if (!reference->isHeldOnce()) slots_.forgetWidest();
  return reference;
}

void ItemStore::setKey(std::int32_t index, std::string_view key) { slot(index)->Key(key); }

std::int32_t ItemStore::find(SearchIndex& index, Searched field, std::string_view text) {
  if (!index.wasSearched) {
    index.wasSearched = true;
    return find([&](const StoredItem& item) { return (item.*field)() == text; });
  }
  if (index.entries.empty()) {
    const std::size_t twice = 2 * static_cast<std::size_t>(slots_.size());
    std::vector<SearchEntry> entries(std::bit_ceil(twice));
    std::int32_t at = 0;
    forEach([&](const StoredItem& item) {
      SearchEntry& entry = place(entries, field, (item.*field)());
      if (entry.index < 0) entry.index = at;
      ++at;
    });
    index.entries = std::move(entries);
  }
  const std::int32_t found = place(index.entries, field, text).index;
  return found >= 0 ? found : upperBound() + 1;
}

/// The entry of a text. If the text is not in the table, the entry is free and gets its hash.
ItemStore::SearchEntry& ItemStore::place(std::span<SearchEntry> entries, Searched field,
                                         std::string_view text) const {
  const std::size_t whole = std::hash<std::string_view>()(text);
  const auto hash = static_cast<std::uint32_t>(whole >> (sizeof whole * 4));
  for (std::size_t at = whole;; ++at) {
    SearchEntry& entry = entries[at & (entries.size() - 1)];
    if (entry.index < 0) {
      entry.hash = hash;
      return entry;
    }
    if (entry.hash == hash && (peek(entry.index).get()->*field)() == text) return entry;
  }
}

void ItemStore::dropSearches() {
  texts_ = {};
  keys_ = {};
}

void ItemStore::makeItem(Ref<StoredItem>& reference, std::int32_t index) const {
  ListItem values;
  if (!source_ || !source_->make(index, values)) {
    reference = StoredItem::make(*pool_);
    return;
  }
  auto item = StoredItem::make(*pool_, values.Text);
  assign(*item, index, values);
  reference = std::move(item);
}

void ItemStore::assign(std::int32_t index, const ListItem& values) {
  const Ref<StoredItem> item = setText(index, values.Text);
  assign(*item, index, values);
}

/// Sets all fields but the text.
void ItemStore::assign(StoredItem& item, std::int32_t index, const ListItem& values) const {
  item.KeyAndTag(values.Key, values.Tag);
  item.Checked(values.Checked);
  setLook(item, index, values);
  item.Selected(values.Selected);
}

void ItemStore::setLook(StoredItem& item, std::int32_t index, const ItemLook& look) const {
  if (!sharesLook(item, index, look)) item.ownLook() = look;
}

void ItemStore::shareLook(std::int32_t index) {
  if (!holds(index)) return;
  StoredItem& item = touch(index);
  sharesLook(item, index, item.look());
}

/// Compares with a few items only: a list of which neighbours all differ would gain little by more.
bool ItemStore::sharesLook(StoredItem& item, std::int32_t index, const ItemLook& look) const {
  constexpr std::int32_t reach = 8;
  for (std::int32_t i = index - 1; i >= std::max(0, index - reach); --i) {
    const Ref<StoredItem>& other = slots_.peek(i);
    if (other && item.shareLookOf(*other, look)) return true;
  }
  return false;
}

void ItemStore::makeAllItems() {
  if (!source_) return;
  forEach([](const StoredItem&) {});
  source_.reset();
}

void ItemStore::forgetTextWidths() {
  slots_.visitUntil([](const Ref<StoredItem>& reference, std::int32_t) {
    if (reference) reference->textWidth = StoredItem::notMeasured;
    return false;
  });
  slots_.forgetWidest();
}

void ItemStore::grow() {
  if (upperBound() == std::numeric_limits<std::int32_t>::max()) throw Failure::overflow();
  changed();
  slots_.append();
}

// Memory is allocated before anything moves, so that running out of it loses no item. References
// are released last, because destroying the objects of an item may run host code.

void ItemStore::remove(std::int32_t index) {
  if (!holds(index)) throw Failure::subscriptOutOfRange();
  makeAllItems();
  changed();
  const Ref<StoredItem> removed = slots_.take(index);
}

std::int32_t ItemStore::removeSelected(std::int32_t first, std::int32_t end) {
  if (!holds(first) || !holds(end - 1)) throw Failure::subscriptOutOfRange();
  makeAllItems();
  changed();
  const auto isSelected = [](const Ref<StoredItem>& item) {
    return item && static_cast<bool>(item->Selected());
  };
  return static_cast<std::int32_t>(slots_.takeIf(first, end, isSelected).size());
}

void ItemStore::recreate(std::size_t count, std::shared_ptr<ItemSource> source) {
  SlotBlocks old(static_cast<std::int32_t>(count));
  changed();
  std::swap(slots_, old);
  source_.swap(source);
}

void ItemStore::move(std::int32_t from, std::int32_t to) {
  if (!holds(from) || !holds(to)) throw Failure::subscriptOutOfRange();
  makeAllItems();
  changed();
  if (from == to) return;
  slots_.insert(to > from ? to + 1 : to, slots_.peek(from));
  slots_.take(from < to ? from : from + 1);
}

void ItemStore::reorder(std::span<const std::int32_t> order) {
  makeAllItems();
  changed();
  std::vector<Ref<StoredItem>> old;
  old.reserve(order.size());
  slots_.visitUntil([&](Ref<StoredItem>& reference, std::int32_t) {
    old.push_back(std::move(reference));
    return false;
  });
  slots_.visitUntil([&](Ref<StoredItem>& reference, std::int32_t index) {
    reference = std::move(old[static_cast<std::size_t>(order[static_cast<std::size_t>(index)])]);
    return false;
  });
  slots_.forgetWidest();
}

}  // namespace norvane
