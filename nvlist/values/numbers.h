#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include <nvlist/values/Failure.h>

/// Whole numbers that never wrap round: each of these throws Failure 6, Overflow, where the result
/// does not fit.
namespace norvane::checked {

template <class Integer>
Integer narrow(std::int64_t value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
    throw Failure::overflow();
  return static_cast<Integer>(value);
}

/// The nearest whole number, halves to the even neighbour: 2.5 gives 2, 3.5 gives 4. A value that
/// is no number at all overflows too.
template <class Integer>
Integer nearest(double value) {
  const double floor = std::floor(value);
  const double rest = value - floor;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(floor, 2.0) != 0.0);
  const double rounded = up ? floor + 1 : floor;
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

/// The number that a text reads as, or nothing where it reads as none. Outer blanks, a sign, a
/// decimal point and an exponent are taken, as are the prefixes &H and &O; whatever the locale.
std::optional<double> numberOf(std::string_view text);

/// The decimal form of a number: no more digits than the type holds, a point as decimal separator.
std::string textOf(std::int32_t number);
std::string textOf(float number);
/// Upper-case hexadecimal digits, with zeros in front up to `width` of them.
std::string hexTextOf(std::uint32_t number, int width);

}  // namespace norvane
