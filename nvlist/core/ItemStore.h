#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <utility>

#include <nvlist/core/ListItem.h>

namespace norvane {

/// The array of the list: references to items from 0 to upperBound(). There is always at least one
/// slot. A slot may be empty; it gets a blank item the first time it is touched.
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

  /// The item in a slot, to look at; a blank one for an empty slot. Throws Failure 9 outside the
  /// bounds. Lives until the list changes.
  const ListItem& at(std::int32_t index) const;
  /// The item in a slot, made if the slot is empty. Throws Failure 9 outside the bounds.
  ListItem& touch(std::int32_t index);

  /// The reference in a slot, to be read or replaced. Throws Failure 9 outside the bounds.
  Ref<ListItem>& slot(std::int32_t index);

  /// The first index, from 0, whose item fits, or upperBound() + 1. Nothing but `fits` runs in it.
  template <class Fits>
  std::int32_t find(Fits&& fits) {
    std::int32_t index = 0;
    for (Ref<ListItem>& reference : slots_) {
      if (!reference) reference = makeRef<ListItem>();
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

  /// So many empty slots, at least one; all references are dropped.
  void recreate(std::size_t count);

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
  std::deque<Ref<ListItem>> slots_ = std::deque<Ref<ListItem>>(1);
};

}  // namespace norvane
