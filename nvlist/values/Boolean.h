#pragma once

#include <cstdint>

namespace norvane {

/// A truth value of 16 bits, as hosts keep it: true is -1, false is 0.
///
/// It can hold any other number, which counts as true in an ordinary test (`if (b)`) but not where
/// a rule asks for true exactly (`b.isTrue()`). Default: false.
class Boolean {
 public:
  constexpr Boolean() = default;
  constexpr Boolean(bool value) : number_(value ? -1 : 0) {}

  /// The value that holds `number` as it stands.
  static constexpr Boolean ofNumber(std::int16_t number) {
    Boolean result;
    result.number_ = number;
    return result;
  }

  constexpr std::int16_t number() const { return number_; }
  constexpr bool isTrue() const { return number_ == -1; }
  constexpr explicit operator bool() const { return number_ != 0; }

  /// Every bit turned round: true and false change places, any other number stays true.
  friend constexpr Boolean operator~(Boolean value) {
    return ofNumber(static_cast<std::int16_t>(~value.number_));
  }
  friend constexpr bool operator==(Boolean, Boolean) = default;

 private:
  std::int16_t number_ = 0;
};

}  // namespace norvane
