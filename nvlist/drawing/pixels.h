#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace norvane {

/// In pixels: outside every image, and small enough to calculate with.
inline constexpr int farthestPixel = 1 << 24;

/// Rounds a coordinate to the nearest pixel, halves to even. The result is at most farthestPixel
/// from 0; for a coordinate that is not a number it is -farthestPixel.
inline int nearestPixel(float coordinate) {
  if (!(coordinate > -farthestPixel)) return -farthestPixel;
  return static_cast<int>(std::nearbyint(std::min(coordinate, static_cast<float>(farthestPixel))));
}

/// Returns which of `count` equal parts of the span from `from` to `to` contains the centre of
/// pixel `at`, which must be inside the span.
inline int nearestOf(int count, int at, int from, int to) {
  const auto place = static_cast<std::uint64_t>(std::int64_t{at} - from);
  const auto length = static_cast<std::uint64_t>(std::int64_t{to} - from);
  return static_cast<int>((2 * place + 1) * static_cast<std::uint64_t>(count) / (2 * length));
}

}  // namespace norvane
