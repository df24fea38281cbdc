#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <utility>

#include <nvlist/core/ListItem.h>

namespace norvane {

/// Where the items of untouched slots come from, such as a list file that has been read.
class ItemSource {
 public:
  virtual ~ItemSource() = default;
  /// Makes the item of a slot; empty where the source has none for it. Asked once a slot at most,
  /// unless it throws.
  virtual Ref<ListItem> make(std::int32_t index) = 0;
};

/// The array of the list: references to items from 0 to upperBound(). There is always at least one
/// slot. A slot may be empty; the first time it is touched, it gets an item from the source, or a
/// blank one. So a list of a million items that were loaded but never looked at costs little.
///
/// The slots stand in a deque, so that adding and removing at either end costs nothing more than
/// the slot itself, and in the middle moves the shorter side only.
class ItemStore {
 public:
  ItemStore() = default;
  ItemStore(const ItemStore&) = delete;
  ItemStore& operator=(const ItemStore&) = delete;
  std::int32_t upperBound() const { return static_cast<std::int32_t>(slots_.size()) - 1; }

  bool holds(std::int32_t index) const { return index >= 0 && index <= upperBound(); }

  // These make the item of a slot that has none yet, and throw Failure 9 outside the bounds.

  /// The item in a slot, to look at. Lives until the list changes.
  const ListItem& at(std::int32_t index) const { return *reference(index); }
  ListItem& touch(std::int32_t index) { return *reference(index); }
  /// The reference in a slot, to be read or replaced.
  Ref<ListItem>& slot(std::int32_t index) { return reference(index); }

  /// The first index, from 0, whose item fits, or upperBound() + 1. Nothing but `fits` runs in it.
  template <class Fits>
  std::int32_t find(Fits&& fits) {
    std::int32_t index = 0;
    for (Ref<ListItem>& reference : slots_) {
      if (!reference) makeItem(reference, index);
      if (fits(std::as_const(*reference))) break;
      ++index;
    }
    return index;
  }

  /// Shows every item to `look`, from 0. Nothing but `look` runs in it.
  template <class Look>
  void forEach(Look&& look) {
    find([&](const ListItem& item) {
      look(item);
      return false;
    });
  }

  /// Forgets what every text was measured with.
  void forgetTextWidths();

  /// One more, empty slot at the end.
  void grow();
  /// Drops the last slot with its reference.
  void shrink();
  /// A single empty slot again; all references are dropped.
  void reset() { recreate(1); }

  /// So many empty slots, at least one, and who makes their items; all references are dropped.
  void recreate(std::size_t count, std::shared_ptr<ItemSource> source = nullptr);

  /// Moves the reference in the last slot to `index` and those behind it up by one.
  void moveLastTo(std::int32_t index);
  /// Takes the reference at `index` out and moves those behind it down by one. The last slot keeps
  /// the reference that stood there, as after a move slot by slot.
  void moveDownOnto(std::int32_t index);
  /// Moves the references behind `from` up to `to` by one, onto `from`; where `to` lies before it,
  /// the other way round. `to` keeps the reference that stood there, `from` loses its own.
  void moveOnto(std::int32_t from, std::int32_t to);
  /// Gives each slot the reference that stood at the index named for it. Every index is named once.
  void reorder(std::span<const std::int32_t> order);

 private:
  Ref<ListItem>& reference(std::int32_t index) const;
  void makeItem(Ref<ListItem>& reference, std::int32_t index) const;
  void makeAllItems();

  /// That some are still empty shows nowhere outside.
  mutable std::deque<Ref<ListItem>> slots_ = std::deque<Ref<ListItem>>(1);
  /// Knows the slots by their first places: all items are made before any reference moves.
  std::shared_ptr<ItemSource> source_;
};

}  // namespace norvane
