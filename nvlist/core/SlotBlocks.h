#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <nvlist/core/StoredItem.h>

namespace norvane {

/// A sequence of references to items, stored in blocks of at most 256, so that inserting or
/// removing one in the middle of a million costs little more than at the end. A reference may be
/// empty.
///
/// Each block also caches the width of its widest text, so that the widest of all is found without
/// visiting a million items. The cached width is dropped when a reference of the block may have
/// changed.
class SlotBlocks {
 public:
  using Slot = Ref<StoredItem>;

  /// `count` empty slots.
  explicit SlotBlocks(std::int32_t count);

  std::int32_t size() const { return size_; }

  /// The reference at an index below size(), for reading. Valid until a slot is inserted or
  /// removed. An empty reference may be filled.
  Slot& peek(std::int32_t index) {
    const Place place = find(index);
    return blocks_[place.block].entries[place.offset];
  }
  /// The same, for writing.
  Slot& write(std::int32_t index) {
    const Place place = find(index);
    blocks_[place.block].isMeasured = false;
    return blocks_[place.block].entries[place.offset];
  }

  /// Adds an empty slot at the end. If memory runs out, nothing changes.
  void append();
  /// Inserts a reference before `index`, or at the end. If memory runs out, nothing changes.
  void insert(std::int32_t index, Slot slot);
  /// Removes the slot at `index` and returns its reference.
  Slot take(std::int32_t index);
  /// Removes the slots from `first` to before `end` for which `isTaken` returns true and returns
  /// their references. If memory runs out, nothing changes.
  std::vector<Slot> takeIf(std::int32_t first, std::int32_t end, bool (*isTaken)(const Slot&));

  /// Calls `visit(slot, index)` for each slot in order until it returns true.
  template <class Visit>
  void visitUntil(Visit&& visit) {
    std::int32_t index = 0;
    for (Block& block : blocks_)
      for (Slot& slot : block.entries)
        if (visit(slot, index++)) return;
  }

  /// The measured texts of consecutive blocks.
  struct Measured {
    std::uint16_t widest;  ///< width of the widest text, in pixels
    std::int32_t end;      ///< one past the index of the last one
  };
  /// The texts from `index` on. Empty unless a block begins at `index` and all its texts have been
  /// measured.
  std::optional<Measured> measuredFrom(std::int32_t index);
  /// To be called when a text may have changed in any block.
  void forgetWidest();

 private:
  struct Block {
    std::vector<Slot> entries;  // "slots" is a macro of Qt
    std::int32_t first = 0;     ///< the index of its first slot, in the first `placed_` blocks
    std::uint16_t widest = 0;
    bool isMeasured = false;  ///< `widest` is known

    std::int32_t length() const { return static_cast<std::int32_t>(entries.size()); }
  };
  struct Place {
    std::size_t block;
    std::size_t offset;
  };
  static constexpr std::size_t blockSize = 256;

  Place find(std::int32_t index) {
    // Most calls are for a slot near the last one.
    const Block& last = blocks_[lastFound_];
    const auto offset = static_cast<std::size_t>(std::int64_t{index} - last.first);
    return offset < last.entries.size() ? Place{lastFound_, offset} : search(index);
  }
  Place search(std::int32_t index);
  Block& addBlock(std::size_t place);
  void split(std::size_t block);
  void keepPlaces(std::size_t count);
  void removeOrMerge(std::size_t block);
  static bool measure(Block& block);

  std::vector<Block> blocks_;
  std::int32_t size_ = 0;
  /// How many blocks know their first index, at least one. A change drops it for the blocks after
  /// it, which are many and often not needed again before the next change.
  std::size_t placed_ = 1;
  std::size_t lastFound_ = 0;  ///< the block that find() returned last, below placed_
};

}  // namespace norvane
