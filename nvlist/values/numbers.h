#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include <nvlist/values/Failure.h>

/// Checked integer arithmetic: each function throws Failure 6, Overflow, if the result does not
/// fit.
namespace norvane::checked {

template <class Integer>
Integer narrow(std::int64_t value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
    throw Failure::overflow();
  return static_cast<Integer>(value);
}

/// The nearest integer, halves to the even one: 2.5 gives 2, 3.5 gives 4. NaN overflows too. The
/// rounding mode of the thread must be the default.
template <class Integer>
Integer nearest(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max()))
    throw Failure::overflow();
  return static_cast<Integer>(rounded);
}

template <class Integer>
Integer add(Integer a, Integer b) {
  static_assert(sizeof(Integer) <= 4);
  return narrow<Integer>(std::int64_t{a} + b);
}

template <class Integer>
Integer subtract(Integer a, Integer b) {
  static_assert(sizeof(Integer) <= 4);
  return narrow<Integer>(std::int64_t{a} - b);
}

template <class Integer>
Integer multiply(Integer a, Integer b) {
  static_assert(sizeof(Integer) <= 4);
  return narrow<Integer>(std::int64_t{a} * b);
}

}  // namespace norvane::checked

namespace norvane {

/// The number that a text represents, or nothing. Accepts blanks around it, a sign, a decimal point
/// and an exponent, and the prefixes &H and &O. Does not depend on the locale.
std::optional<double> numberOf(std::string_view text);

/// A number in decimal, with up to the precision of its type and a point as decimal separator.
std::string textOf(std::int32_t number);
std::string textOf(float number);
/// A number in upper-case hexadecimal, padded with zeros to `width` digits.
std::string hexTextOf(std::uint32_t number, int width);

}  // namespace norvane
