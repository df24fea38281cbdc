#pragma once

#include <cstddef>

/// The allocations of this program, whose operator new is replaced (Allocations.cpp).
namespace norvane::attacks::allocations {

/// Blocks and bytes that are allocated now.
long blocks();
std::size_t bytes();

/// Counts the allocations of its lifetime and lets some of them fail: the `first` one, with
/// `onward` all after it too. 0: none. Only one may exist.
class Watch {
 public:
  explicit Watch(long first = 0, bool onward = false);
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch();

  long count() const;
  /// Size of the largest block, and the most bytes in use at once beyond those before.
  std::size_t largest() const;
  std::size_t peak() const;
};

/// Suspends the watch, if there is one.
class Pause {
 public:
  Pause();
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;
  ~Pause();

 private:
  bool wasOn_;
};

}  // namespace norvane::attacks::allocations
