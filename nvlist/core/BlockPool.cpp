#include <nvlist/core/BlockPool.h>

#include <algorithm>
#include <new>

namespace norvane {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool findsMisuse = true;
#elif defined(__has_feature)
constexpr bool findsMisuse = __has_feature(address_sanitizer);
#else
constexpr bool findsMisuse = false;
#endif

/// The address sanitizer checks heap blocks only, so under it each block is a heap block of its
/// own.
constexpr std::size_t mostSlots = findsMisuse ? 1 : 128;
/// Small, so that a list of a few items takes little memory.
constexpr std::size_t leastSlots = findsMisuse ? 1 : 8;

/// In a free block: the slot of the next one.
std::uint8_t& nextFree(void* block) { return *static_cast<std::uint8_t*>(block); }

}  // namespace

/// The header of a chunk, before its blocks.
struct alignas(BlockPool::unit) BlockPool::Chunk {
  static constexpr std::uint8_t none = 0xFF;

  std::byte* blockAt(std::size_t slot) {
    return reinterpret_cast<std::byte*>(this + 1) + slot * units * unit;
  }
  bool isFull() const { return used == slots; }

  Ref<BlockPool> pool;
  Chunk* previous = nullptr;
  Chunk* next = nullptr;
  const std::uint8_t units;
  const std::uint8_t slots;
  std::uint8_t used = 0;
  std::uint8_t fresh = 0;    ///< the blocks from here on have never been used
  std::uint8_t free = none;  ///< the first of those that were released
};

BlockPool::Block BlockPool::allocate(std::size_t units) {
  Chunk& chunk = sizes_[units].open ? *sizes_[units].open : addChunk(units);
  std::uint8_t slot = chunk.free;
  if (slot == Chunk::none)
    slot = chunk.fresh++;
  else
    chunk.free = nextFree(chunk.blockAt(slot));
  ++chunk.used;
  if (chunk.isFull()) unlink(chunk);
  return {chunk.blockAt(slot), slot};
}

void BlockPool::release(void* block, std::size_t units, std::size_t slot) {
  Chunk& chunk = chunkOf(block, units, slot);
  BlockPool& pool = *chunk.pool;
  if (chunk.isFull()) pool.link(chunk);
  nextFree(block) = chunk.free;
  chunk.free = static_cast<std::uint8_t>(slot);
  if (--chunk.used > 0) return;
  pool.unlink(chunk);
  pool.sizes_[units].nextSlots =
      static_cast<std::uint8_t>(std::max<std::size_t>(leastSlots, chunk.slots / 2));
  chunk.~Chunk();
  ::operator delete(&chunk);
}

BlockPool& BlockPool::of(void* block, std::size_t units, std::size_t slot) {
  return *chunkOf(block, units, slot).pool;
}

BlockPool::Chunk& BlockPool::chunkOf(void* block, std::size_t units, std::size_t slot) {
  return *(reinterpret_cast<Chunk*>(static_cast<std::byte*>(block) - slot * units * unit) - 1);
}

/// Each chunk of a size has twice the slots of the one before it, up to the limit.
BlockPool::Chunk& BlockPool::addChunk(std::size_t units) {
  std::uint8_t& nextSlots = sizes_[units].nextSlots;
  const std::size_t slots = nextSlots > 0 ? nextSlots : leastSlots;
  void* const memory = ::operator new(sizeof(Chunk) + slots * units * unit);
  auto& chunk = *new (memory) Chunk{.pool = Ref<BlockPool>(this),
                                    .units = static_cast<std::uint8_t>(units),
                                    .slots = static_cast<std::uint8_t>(slots)};
  nextSlots = static_cast<std::uint8_t>(std::min(2 * slots, mostSlots));
  link(chunk);
  return chunk;
}

void BlockPool::link(Chunk& chunk) {
  Chunk*& first = sizes_[chunk.units].open;
  chunk.next = first;
  if (first) first->previous = &chunk;
  first = &chunk;
}

void BlockPool::unlink(Chunk& chunk) {
  (chunk.previous ? chunk.previous->next : sizes_[chunk.units].open) = chunk.next;
  if (chunk.next) chunk.next->previous = chunk.previous;
  chunk.previous = chunk.next = nullptr;
}

}  // namespace norvane
