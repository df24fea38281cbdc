#include <nvlist/core/SlotBlocks.h>

#include <algorithm>
#include <iterator>
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
    addBlock(blocks_.size(), count - left)
        .entries.resize(static_cast<std::size_t>(std::min(left, step)));
}

SlotBlocks::Place SlotBlocks::find(std::int32_t index) const {
  const auto offsetIn = [&](std::size_t block) {
    return static_cast<std::size_t>(std::int64_t{index} - blocks_[block].first);
  };
  const auto holds = [&](std::size_t block) {
    return block < blocks_.size() && offsetIn(block) < blocks_[block].entries.size();
  };
  // Most calls are for a slot near the last one.
  if (!holds(lastFound_)) {
    const auto behind = std::ranges::upper_bound(blocks_, index, {}, &Block::first);
    lastFound_ = static_cast<std::size_t>(behind - blocks_.begin()) - 1;
  }
  return {lastFound_, offsetIn(lastFound_)};
}

void SlotBlocks::insert(std::int32_t index, Slot slot) {
  if (blocks_.empty()) addBlock(0, 0);
  Place place =
      index < size_ ? find(index) : Place{blocks_.size() - 1, blocks_.back().entries.size()};
  if (blocks_[place.block].entries.size() == blockSize) {
    if (place.offset == 0) {
      addBlock(place.block, index).entries.reserve(blockSize);
    } else if (place.offset == blockSize) {
      addBlock(++place.block, index).entries.reserve(blockSize);
      place.offset = 0;
    } else {
      split(place.block);
      place = find(index);
    }
  }
  Block& block = blocks_[place.block];
  block.entries.insert(at(block.entries, place.offset), std::move(slot));
  block.isMeasured = false;
  ++size_;
  moveFirsts(place.block, 1);
}

SlotBlocks::Slot SlotBlocks::take(std::int32_t index) {
  const Place place = find(index);
  Block& block = blocks_[place.block];
  const auto slot = at(block.entries, place.offset);
  Slot taken = std::move(*slot);
  block.entries.erase(slot);
  block.isMeasured = false;
  --size_;
  moveFirsts(place.block, -1);
  removeOrMerge(place.block);
  return taken;
}

SlotBlocks::Block& SlotBlocks::addBlock(std::size_t place, std::int32_t first) {
  Block& block = *blocks_.emplace(at(blocks_, place));
  block.first = first;
  return block;
}

/// Moves the upper half of a full block to a new block after it.
void SlotBlocks::split(std::size_t block) {
  std::vector<Slot> upper;
  upper.reserve(blockSize);
  constexpr std::size_t half = blockSize / 2;
  Block& added = addBlock(block + 1, blocks_[block].first + static_cast<std::int32_t>(half));
  std::vector<Slot>& lower = blocks_[block].entries;
  upper.assign(std::move_iterator(at(lower, half)), std::move_iterator(lower.end()));
  lower.resize(half);
  added.entries = std::move(upper);
}

void SlotBlocks::moveFirsts(std::size_t behindBlock, std::int32_t difference) {
  for (std::size_t block = behindBlock + 1; block < blocks_.size(); ++block)
    blocks_[block].first += difference;
}

/// Prevents a list that has shrunk from consisting of nearly empty blocks. If memory runs out, the
/// blocks stay as they are.
void SlotBlocks::removeOrMerge(std::size_t block) {
  std::vector<Slot>& slots = blocks_[block].entries;
  if (slots.empty()) {
    blocks_.erase(at(blocks_, block));
  } else if (slots.size() < blockSize / 8 && block + 1 < blocks_.size()) {
    std::vector<Slot>& next = blocks_[block + 1].entries;
    if (slots.size() + next.size() > blockSize / 2 || slots.size() + next.size() > slots.capacity())
      return;
    std::ranges::move(next, std::back_inserter(slots));
    blocks_.erase(at(blocks_, block + 1));
  }
}

std::optional<SlotBlocks::Measured> SlotBlocks::measuredFrom(std::int32_t index) {
  const Place place = find(index);
  if (place.offset != 0) return std::nullopt;
  Measured result{0, index};
  for (std::size_t block = place.block; block < blocks_.size() && measure(blocks_[block]);
       ++block) {
    result.widest = std::max(result.widest, blocks_[block].widest);
    result.end += static_cast<std::int32_t>(blocks_[block].entries.size());
  }
  if (result.end == index) return std::nullopt;
  return result;
}

/// Returns whether all texts of the block have been measured.
bool SlotBlocks::measure(Block& block) {
  if (block.isMeasured) return true;
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
