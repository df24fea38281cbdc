#pragma once

#include <cstddef>
#include <utility>

/// The allocations of this program, whose operator new is replaced (Allocations.cpp).
namespace norvane::attacks::allocations {

/// The number of blocks and bytes that are allocated now.
long blocks();
std::size_t bytes();

/// Counts the allocations during its lifetime. The `first` one, counted from 1, fails, and with
/// `onward` all later ones; 0: none fails. Only one watch may exist.
class Watch {
 public:
  explicit Watch(long first = 0, bool onward = false) : first_(first), onward_(onward) {
    current = this;
  }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch() { current = nullptr; }

  long count = 0;
  /// The size of the largest block, and the most bytes in use at once beyond those in use before.
  std::size_t largest = 0, peak = 0;

  /// The watch that counts, or nullptr.
  static inline Watch* current = nullptr;
  /// Counts an allocation. Returns true if it has to fail.
  bool refuses(std::size_t size);

 private:
  const long first_;
  const bool onward_;
  const std::size_t before_ = bytes();
};

/// Suspends the watch, if there is one.
class Pause {
 public:
  Pause() : paused_(std::exchange(Watch::current, nullptr)) {}
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;
  ~Pause() { Watch::current = paused_; }

 private:
  Watch* const paused_;
};

}  // namespace norvane::attacks::allocations
