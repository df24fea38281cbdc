#include "Allocations.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#include <utility>

namespace norvane::attacks::allocations {
namespace {

// Each block begins with its size.
constexpr std::size_t headSize = alignof(std::max_align_t);

std::atomic<long> blockCount = 0;
std::atomic<std::size_t> byteCount = 0;

struct {
  bool isOn = false;
  long first = 0;
  bool onward = false;
  long count = 0;
  std::size_t largest = 0;
  std::size_t before = 0;
  std::size_t peak = 0;
} watch;

bool isRefused(std::size_t size) {
  if (!watch.isOn) return false;
  ++watch.count;
  watch.largest = std::max(watch.largest, size);
  watch.peak = std::max(watch.peak, byteCount + size);
  return watch.first > 0 &&
         (watch.onward ? watch.count >= watch.first : watch.count == watch.first);
}

void* allocated(std::size_t size) {
  if (isRefused(size)) return nullptr;
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

Watch::Watch(long first, bool onward) { watch = {true, first, onward, 0, 0, byteCount, byteCount}; }
Watch::~Watch() { watch.isOn = false; }
long Watch::count() const { return watch.count; }
std::size_t Watch::largest() const { return watch.largest; }
std::size_t Watch::peak() const { return watch.peak - watch.before; }

Pause::Pause() : wasOn_(std::exchange(watch.isOn, false)) {}
Pause::~Pause() { watch.isOn = wasOn_; }

}  // namespace norvane::attacks::allocations

using norvane::attacks::allocations::allocated;
using norvane::attacks::allocations::freed;

void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocated(size); }
void* operator new(std::size_t size) {
  if (void* memory = allocated(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { freed(memory); }
void operator delete(void* memory, std::size_t) noexcept { freed(memory); }
