#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include <nvlist/values/Ref.h>

namespace norvane {

/// Allocates the items of one list. Blocks of the same size are adjacent, in chunks of up to 128,
/// so an item has no heap overhead of its own and a search reads memory in order.
///
/// The owner of a block keeps its size and slot, from which its chunk is found. So a block can be
/// released without naming its pool, which its chunks keep alive. Not thread-safe, like the list.
class BlockPool : public SharedInThread {
 public:
  /// Sizes are multiples of it. Blocks are aligned to it.
  static constexpr std::size_t unit = 8;
  /// The size of the largest block, in units.
  static constexpr std::size_t mostUnits = 36;

  struct Block {
    void* memory;
    std::uint8_t slot;  ///< its place in its chunk, below 128
  };

  BlockPool() = default;
  BlockPool(const BlockPool&) = delete;
  BlockPool& operator=(const BlockPool&) = delete;

  /// A block of `units` units, at most mostUnits. Throws std::bad_alloc if there is no memory.
  Block allocate(std::size_t units);
  /// Returns a block. A chunk without blocks in use is returned to the heap.
  static void release(void* block, std::size_t units, std::size_t slot);
  /// The pool of a block.
  static BlockPool& of(void* block, std::size_t units, std::size_t slot);

 private:
  struct Chunk;
  static Chunk& chunkOf(void* block, std::size_t units, std::size_t slot);
  Chunk& addChunk(std::size_t units);
  void link(Chunk& chunk);
  void unlink(Chunk& chunk);

  struct Size {
    Chunk* open = nullptr;       ///< the first of its chunks with a free block
    std::uint8_t nextSlots = 0;  ///< of the next chunk; 0: the least
  };
  std::array<Size, mostUnits + 1> sizes_ = {};
};

}  // namespace norvane
