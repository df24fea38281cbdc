#pragma once

#include <cstddef>

/// The allocations of this program, whose operator new is replaced (Allocations.cpp).
namespace norvane::attacks::allocations {

/// The number of blocks and bytes that are allocated now.
long blocks();
std::size_t bytes();

/// Counts the allocations during its lifetime. The `first` one, counted from 1, fails, and with
/// `onward` all later ones; 0: none fails. Only one watch may exist.
class Watch {
 public:
  explicit Watch(long first = 0, bool onward = false);
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch();

  long count() const;
  /// The size of the largest block, and the most bytes in use at once beyond those in use before.
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
