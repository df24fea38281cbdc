#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <nvlist/core/SlotBlocks.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// Creates items for slots on first access, for example from a list file.
class ItemSource {
 public:
  virtual ~ItemSource() = default;
  /// Fills the record of a slot's item, or returns false if it has none for it. Called at most once
  /// for each slot, unless it throws.
  virtual bool make(std::int32_t index, ListItem& item) = 0;
};

/// The items of a list: an array of references, from 0 to upperBound(), with at least one slot. A
/// slot may be empty; when first accessed, it gets an item from the source, or a blank one. So a
/// list of a million items that were loaded but never accessed costs little.
class ItemStore {
 public:
  ItemStore() = default;
  ItemStore(const ItemStore&) = delete;
  ItemStore& operator=(const ItemStore&) = delete;
  std::int32_t upperBound() const { return slots_.size() - 1; }

  bool holds(std::int32_t index) const { return index >= 0 && index <= upperBound(); }

  // The following functions create the item of an empty slot. They throw Failure 9 if the index is
  // outside the bounds.

  /// A copy of the item in a slot.
  ListItem at(std::int32_t index) const { return peek(index)->record(); }
  /// The item in a slot, for anything except changing its text or key. Valid until the list
  /// changes.
  StoredItem& touch(std::int32_t index) { return *peek(index); }
  /// Changes the text, or the key, of the item in a slot. `text` must not be that of an item.
  /// Returns the item's reference.
  const Ref<StoredItem>& setText(std::int32_t index, std::string_view text);
  void setKey(std::int32_t index, std::string_view key);
  /// Changes all fields of the item in a slot.
  void assign(std::int32_t index, const ListItem& values);
  /// Sets the look of an item that is, or will be, in the slot `index`. If an item shortly before
  /// it has the same look, they share it.
  void setLook(StoredItem& item, std::int32_t index, const ItemLook& look) const;
  /// To be called after the look of the item in a slot was changed, to share it again if possible.
  void shareLook(std::int32_t index);
  /// The reference in a slot, for replacing it, or for keeping the item alive while it is changed.
  Ref<StoredItem>& slot(std::int32_t index);

  /// The index of the first item for which `fits` returns true, or upperBound() + 1. `fits` must
  /// not change the list.
  template <class Fits>
  std::int32_t find(Fits&& fits) {
    std::int32_t found = upperBound() + 1;
    slots_.visitUntil([&](Ref<StoredItem>& reference, std::int32_t index) {
      if (!reference) makeItem(reference, index);
      if (!fits(*reference)) return false;
      found = index;
      return true;
    });
    return found;
  }

  /// The index of the first item with this text, or key, or upperBound() + 1. The second search in
  /// an unchanged list builds an index, which later searches use.
  std::int32_t findText(std::string_view text) { return find(texts_, &StoredItem::Text, text); }
  std::int32_t findKey(std::string_view key) { return find(keys_, &StoredItem::Key, key); }

  /// Calls `visit` with every item, in order. It must not change the list.
  template <class Visit>
  void forEach(Visit&& visit) {
    find([&](StoredItem& item) {
      visit(item);
      return false;
    });
  }

  /// The widest of the texts from `index` up to some later index, found without visiting each item.
  /// Empty if the width is not known: it is known only where a block of slots begins and all its
  /// texts have been measured since they last changed.
  std::optional<SlotBlocks::Measured> measuredFrom(std::int32_t index) {
    return holds(index) ? slots_.measuredFrom(index) : std::nullopt;
  }
  /// Forgets the measured width of every text.
  void forgetTextWidths();

  /// Adds an empty slot at the end.
  void grow();
  /// Removes the selected items from `first` to before `end` and returns their number.
  std::int32_t removeSelected(std::int32_t first, std::int32_t end);
  /// Removes all items and leaves one empty slot.
  void reset() { recreate(1); }

  /// Removes all items and leaves `count` empty slots (at least one), whose items `source` creates.
  void recreate(std::size_t count, std::shared_ptr<ItemSource> source = nullptr);

  /// Moves the reference at `from` to `to` and shifts the references between them by one slot
  /// towards `from`.
  void move(std::int32_t from, std::int32_t to);
  /// Removes the slot at an index.
  void remove(std::int32_t index);
  /// Moves to each slot the reference from the index that `order` names for it. `order` contains
  /// every index exactly once.
  void reorder(std::span<const std::int32_t> order);

 private:
  struct SearchEntry {
    std::uint32_t hash = 0;
    std::int32_t index = -1;  ///< the first one of a text; -1: free
  };
  struct SearchIndex {
    bool wasSearched = false;               ///< since the last change of the list
    std::vector<SearchEntry> entries = {};  ///< a hash table with open addressing
  };
  using Searched = std::string_view (StoredItem::*)() const;
  std::int32_t find(SearchIndex& index, Searched field, std::string_view text);
  SearchEntry& place(std::span<SearchEntry> entries, Searched field, std::string_view text) const;
  /// Drops what was made for searches. Called whenever a text, a key or a place may change.
  void changed() {
    if (texts_.wasSearched || keys_.wasSearched) dropSearches();
  }
  void dropSearches();

  Ref<StoredItem>& peek(std::int32_t index) const {
    if (!holds(index)) throw Failure::subscriptOutOfRange();
    Ref<StoredItem>& reference = slots_.peek(index);
    if (!reference) makeItem(reference, index);
    return reference;
  }
  void makeItem(Ref<StoredItem>& reference, std::int32_t index) const;
  void assign(StoredItem& item, std::int32_t index, const ListItem& values) const;
  bool sharesLook(StoredItem& item, std::int32_t index, const ItemLook& look) const;
  void makeAllItems();

  Ref<BlockPool> pool_ = makeRef<BlockPool>();
  /// Mutable, because reading a slot may create its item.
  mutable SlotBlocks slots_{1};
  /// Knows slots by their original indexes, so all items are created before any reference moves.
  std::shared_ptr<ItemSource> source_;
  SearchIndex texts_;
  SearchIndex keys_;
};

}  // namespace norvane
