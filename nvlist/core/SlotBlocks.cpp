#include <nvlist/core/SlotBlocks.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <iterator>
#include <new>
#include <span>
#include <utility>

namespace norvane {
namespace {

template <class Element>
auto at(std::vector<Element>& elements, std::size_t index) {
  return elements.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

SlotBlocks::SlotBlocks(std::int32_t count) : size_(count) {
  constexpr auto step = static_cast<std::int32_t>(blockSize);
  for (std::int32_t left = count; left > 0; left -= step)
    addBlock(blocks_.size()).entries.resize(static_cast<std::size_t>(std::min(left, step)));
}

SlotBlocks::Place SlotBlocks::search(std::int32_t index) {
  const std::int32_t lastFirst = size_ - blocks_.back().length();
  if (index >= lastFirst) {
    if (placed_ == blocks_.size()) lastFound_ = placed_ - 1;
    return {blocks_.size() - 1, static_cast<std::size_t>(index - lastFirst)};
  }
  const auto end = [&](std::size_t block) {
    return blocks_[block].first + blocks_[block].length();
  };
  for (; index >= end(placed_ - 1); ++placed_) blocks_[placed_].first = end(placed_ - 1);
  const auto placed = std::span(blocks_).first(placed_);
  const auto behind = std::ranges::upper_bound(placed, index, {}, &Block::first);
  lastFound_ = static_cast<std::size_t>(behind - placed.begin()) - 1;
  return {lastFound_, static_cast<std::size_t>(index - blocks_[lastFound_].first)};
}

/// To be called when blocks after the first `count` have been moved, added or removed.
void SlotBlocks::keepPlaces(std::size_t count) {
  if (!blocks_.empty()) blocks_.front().first = 0;
  placed_ = std::clamp<std::size_t>(count, 1, placed_);
  lastFound_ = std::min(lastFound_, placed_ - 1);
}

void SlotBlocks::append() {
  if (blocks_.empty() || blocks_.back().entries.size() == blockSize) {
    addBlock(blocks_.size()).first = size_;
    if (placed_ == blocks_.size() - 1) lastFound_ = placed_++;
  }
  blocks_.back().entries.emplace_back();
  blocks_.back().isMeasured = false;
  ++size_;
}

// A reference is only a pointer: those of a block are moved as bytes, which is many times faster
// than one by one.

void SlotBlocks::insert(std::int32_t index, Slot slot) {
  if (blocks_.empty()) addBlock(0);
  Place place =
      index < size_ ? find(index) : Place{blocks_.size() - 1, blocks_.back().entries.size()};
  if (blocks_[place.block].entries.size() == blockSize) {
    if (place.offset == 0) {
      addBlock(place.block);
    } else if (place.offset == blockSize) {
      addBlock(++place.block);
      place.offset = 0;
    } else {
      split(place.block);
      place = find(index);
    }
  }
  std::vector<Slot>& entries = blocks_[place.block].entries;
  entries.emplace_back();
  Slot* const at = entries.data() + place.offset;
  // A reference is one pointer, which may be moved as bytes.
  // NOLINTNEXTLINE(bugprone-undefined-memory-manipulation)
  std::memmove(static_cast<void*>(at + 1), at, sizeof(Slot) * (entries.size() - 1 - place.offset));
  new (at) Slot(std::move(slot));
  blocks_[place.block].isMeasured = false;
  ++size_;
  keepPlaces(place.block + 1);
}

SlotBlocks::Slot SlotBlocks::take(std::int32_t index) {
  const Place place = find(index);
  std::vector<Slot>& entries = blocks_[place.block].entries;
  Slot* const at = entries.data() + place.offset;
  Slot taken = std::move(*at);
  // NOLINTNEXTLINE(bugprone-undefined-memory-manipulation)
  std::memmove(static_cast<void*>(at), at + 1, sizeof(Slot) * (entries.size() - 1 - place.offset));
  new (&entries.back()) Slot;
  entries.pop_back();
  blocks_[place.block].isMeasured = false;
  --size_;
  removeOrMerge(place.block);
  return taken;
}

std::vector<SlotBlocks::Slot> SlotBlocks::takeIf(std::int32_t first, std::int32_t end,
                                                 bool (*isTaken)(const Slot&)) {
  std::vector<Slot> taken;
  const Place start = find(first);
  const auto forEachPart = [&](auto&& visit) {
    std::ptrdiff_t left = end - first;
    auto offset = static_cast<std::ptrdiff_t>(start.offset);
    for (std::size_t block = start.block; left > 0; ++block, offset = 0) {
      const auto from = blocks_[block].entries.begin() + offset;
      const auto to = from + std::min(left, blocks_[block].entries.end() - from);
      left -= to - from;
      visit(blocks_[block], from, to);
    }
  };
  std::ptrdiff_t count = 0;
  forEachPart([&](Block&, auto from, auto to) { count += std::count_if(from, to, isTaken); });
  taken.reserve(static_cast<std::size_t>(count));
  forEachPart([&](Block& block, auto from, auto to) {
    const auto kept = std::stable_partition(from, to, std::not_fn(isTaken));
    if (kept == to) return;
    std::move(kept, to, std::back_inserter(taken));
    block.entries.erase(kept, to);
    block.isMeasured = false;
  });
  size_ -= static_cast<std::int32_t>(count);
  keepPlaces(start.block);
  for (std::size_t block = blocks_.size(); block-- > start.block;) removeOrMerge(block);
  return taken;
}

/// The first block of a list grows with it; the others have room for all their slots at once.
SlotBlocks::Block& SlotBlocks::addBlock(std::size_t place) {
  Block added;
  if (!blocks_.empty()) added.entries.reserve(blockSize);
  Block& result = *blocks_.insert(at(blocks_, place), std::move(added));
  keepPlaces(place);
  return result;
}

/// Moves the upper half of a full block to a new block after it.
void SlotBlocks::split(std::size_t block) {
  std::vector<Slot>& upper = addBlock(block + 1).entries;
  std::vector<Slot>& lower = blocks_[block].entries;
  const auto middle = at(lower, blockSize / 2);
  upper.assign(std::move_iterator(middle), std::move_iterator(lower.end()));
  lower.erase(middle, lower.end());
}

/// Prevents a list that has shrunk from consisting of nearly empty blocks. If memory runs out, the
/// blocks stay as they are.
void SlotBlocks::removeOrMerge(std::size_t block) {
  std::vector<Slot>& slots = blocks_[block].entries;
  if (slots.empty()) {
    blocks_.erase(at(blocks_, block));
    return keepPlaces(block);
  }
  keepPlaces(block + 1);
  if (slots.size() >= blockSize / 8 || block + 1 == blocks_.size()) return;
  std::vector<Slot>& next = blocks_[block + 1].entries;
  if (slots.size() + next.size() > std::min(blockSize / 2, slots.capacity())) return;
  std::ranges::move(next, std::back_inserter(slots));
  blocks_[block].isMeasured = false;
  blocks_.erase(at(blocks_, block + 1));
}

std::optional<SlotBlocks::Measured> SlotBlocks::measuredFrom(std::int32_t index) {
  const Place place = find(index);
  if (place.offset != 0) return std::nullopt;
  std::uint16_t widest = 0;
  std::size_t end = place.block;
  while (end < blocks_.size() && (blocks_[end].isMeasured || measure(blocks_[end])))
    widest = std::max(widest, blocks_[end++].widest);
  if (end == place.block) return std::nullopt;
  // Usually all blocks are measured, and need not be counted.
  if (end == blocks_.size()) return Measured{widest, size_};
  for (std::size_t block = place.block; block < end; ++block) index += blocks_[block].length();
  return Measured{widest, index};
}

/// Returns whether all texts of the block have been measured.
bool SlotBlocks::measure(Block& block) {
  std::uint16_t widest = 0;
  for (const Slot& slot : block.entries) {
    if (!slot || slot->textWidth == StoredItem::notMeasured) return false;
    widest = std::max(widest, slot->textWidth);
  }
  block.widest = widest;
  block.isMeasured = true;
  return true;
}

void SlotBlocks::forgetWidest() {
  for (Block& block : blocks_) block.isMeasured = false;
}

}  // namespace norvane
