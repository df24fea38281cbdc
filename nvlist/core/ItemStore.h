#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include <nvlist/core/SlotBlocks.h>

namespace norvane {

/// Makes the items of slots that have not been accessed yet, for example from a list file.
class ItemSource {
 public:
  virtual ~ItemSource() = default;
  /// Makes the item of a slot, or returns an empty reference if it has none for it. Called at most
  /// once for each slot, unless it throws.
  virtual Ref<ListItem> make(std::int32_t index) = 0;
};

/// The array of the list: references to items from 0 to upperBound(). There is always at least one
/// slot. A slot may be empty; the first time it is accessed, it gets an item from the source, or a
/// blank one. So a list of a million items that were loaded but never accessed costs little.
class ItemStore {
 public:
  ItemStore() = default;
  ItemStore(const ItemStore&) = delete;
  ItemStore& operator=(const ItemStore&) = delete;
  std::int32_t upperBound() const { return slots_.size() - 1; }

  bool holds(std::int32_t index) const { return index >= 0 && index <= upperBound(); }

  // These make the item of a slot that has none yet, and throw Failure 9 outside the bounds.

  /// The item in a slot, for reading. It lives until the list changes.
  const ListItem& at(std::int32_t index) const { return *peek(index); }
  /// The item in a slot, for changing anything but its text.
  ListItem& touch(std::int32_t index) { return *peek(index); }
  /// Changes the text of the item in a slot.
  void setText(std::int32_t index, std::string text);
  /// The reference in a slot, to be replaced, or to be kept while the item is changed.
  Ref<ListItem>& slot(std::int32_t index);

  /// The first index, from 0, whose item `fits`, or upperBound() + 1. `fits` must not change the
  /// list.
  template <class Fits>
  std::int32_t find(Fits&& fits) {
    std::int32_t found = upperBound() + 1;
    slots_.visitUntil([&](Ref<ListItem>& reference, std::int32_t index) {
      if (!reference) makeItem(reference, index);
      if (!fits(*reference)) return false;
      found = index;
      return true;
    });
    return found;
  }

  /// Calls `visit` with every item, from 0. It must not change the list.
  template <class Visit>
  void forEach(Visit&& visit) {
    find([&](ListItem& item) {
      visit(item);
      return false;
    });
  }

  /// The widest of the texts from `index` on up to some index behind it, where a row of texts
  /// begins there that all have been measured since they changed. Found without visiting each.
  std::optional<SlotBlocks::Measured> measuredFrom(std::int32_t index) {
    return holds(index) ? slots_.measuredFrom(index) : std::nullopt;
  }
  /// Forgets the measured width of every text.
  void forgetTextWidths();

  /// Adds an empty slot at the end.
  void grow();
  /// Drops the last slot with its reference.
  void shrink();
  /// Drops all references and leaves a single empty slot.
  void reset() { recreate(1); }

  /// Drops all references and leaves `count` empty slots, at least one, whose items `source` makes.
  void recreate(std::size_t count, std::shared_ptr<ItemSource> source = nullptr);

  /// Moves the reference at `from` to `to`, and those on the way by one slot towards `from`.
  void move(std::int32_t from, std::int32_t to);
  /// Moves the references behind `index` down by one slot, onto it. The last slot keeps its
  /// reference, as it would if they were moved slot by slot.
  void moveDownOnto(std::int32_t index);
  /// Gives each slot the reference that stood at the index named for it. Every index is named once.
  void reorder(std::span<const std::int32_t> order);

 private:
  Ref<ListItem>& peek(std::int32_t index) const;
  void makeItem(Ref<ListItem>& reference, std::int32_t index) const;
  void makeAllItems();

  /// Mutable, as callers cannot tell a slot that is still empty from one that has its item.
  mutable SlotBlocks slots_{1};
  /// Knows the slots by their first places, so all items are made before any reference moves.
  std::shared_ptr<ItemSource> source_;
};

}  // namespace norvane
