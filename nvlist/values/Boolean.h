#pragma once

#include <cstdint>

namespace norvane {

/// A 16-bit truth value in the host's format: true is -1, false is 0. Default: false.
///
/// It can hold any other number, which counts as true in an ordinary test (`if (b)`) but not in a
/// test for exactly true (`b.isTrue()`).
class Boolean {
 public:
  constexpr Boolean() = default;
  /// -1 or 0.
  constexpr Boolean(bool value) : number_(value ? -1 : 0) {}

  /// A value that holds exactly `number`.
  static constexpr Boolean ofNumber(std::int16_t number) {
    Boolean result;
    result.number_ = number;
    return result;
  }

  /// The number it holds.
  constexpr std::int16_t number() const { return number_; }
  /// Whether it is exactly true.
  constexpr bool isTrue() const { return number_ == -1; }
  /// Whether it is true in an ordinary test: any number but 0.
  constexpr explicit operator bool() const { return number_ != 0; }

  /// Inverts every bit: swaps true and false; any other number still counts as true.
  friend constexpr Boolean operator~(Boolean value) {
    return ofNumber(static_cast<std::int16_t>(~value.number_));
  }
  /// Compares the numbers.
  friend constexpr bool operator==(Boolean, Boolean) = default;

 private:
  std::int16_t number_ = 0;
};

}  // namespace norvane
