#include "Allocations.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace norvane::attacks::allocations {
namespace {

// Each block begins with its size.
constexpr std::size_t headSize = alignof(std::max_align_t);

std::atomic<long> blockCount = 0;
std::atomic<std::size_t> byteCount = 0;

void* allocated(std::size_t size) {
  if (Watch::current && Watch::current->refuses(size)) return nullptr;
  void* block = std::malloc(size + headSize);
  if (!block) return nullptr;
  ++blockCount;
  byteCount += size;
  *static_cast<std::size_t*>(block) = size;
  return static_cast<char*>(block) + headSize;
}

void freed(void* memory) {
  if (!memory) return;
  void* block = static_cast<char*>(memory) - headSize;
  --blockCount;
  byteCount -= *static_cast<std::size_t*>(block);
  std::free(block);
}

}  // namespace

long blocks() { return blockCount; }
std::size_t bytes() { return byteCount; }

bool Watch::refuses(std::size_t size) {
  ++count;
  largest = std::max(largest, size);
  const std::size_t inUse = byteCount + size;
  peak = std::max(peak, inUse - std::min(inUse, before_));
  return first_ > 0 && (onward_ ? count >= first_ : count == first_);
}

}  // namespace norvane::attacks::allocations

using namespace norvane::attacks::allocations;

void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocated(size); }
void* operator new(std::size_t size) {
  if (void* memory = allocated(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { freed(memory); }
void operator delete(void* memory, std::size_t) noexcept { freed(memory); }
