#include <nvlist/scroll/gradient.h>

#include <array>
#include <cstddef>
#include <vector>

#include <nvlist/objects/Trap.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

/// The width of an upright gradient. Rows of four pixels need no padding.
constexpr std::int32_t columns = 4;

/// Blue, green and red, the order in a bitmap.
std::array<int, 3> channelsOf(Colour colour) {
  return {colour >> 16 & 255, colour >> 8 & 255, colour & 255};
}

/// The pixels from one colour to the other, `perUnit` of them for each unit of length.
std::vector<std::uint8_t> pixelsBetween(Colour color1, Colour color2, std::int32_t length,
                                        std::int32_t perUnit) {
  if (length <= 0) throw Failure::subscriptOutOfRange();
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(checked::multiply(length, 3 * perUnit)));
  const std::array<int, 3> first = channelsOf(color1);
  const std::array<int, 3> last = channelsOf(color2);
  std::array<float, 3> levels;
  std::array<float, 3> steps;
  for (std::size_t i = 0; i < 3; ++i) {
    levels[i] = static_cast<float>(first[i]);
    steps[i] = static_cast<float>(static_cast<double>(last[i] - first[i]) / length / perUnit);
  }
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    for (std::size_t i = 0; i < 3; ++i) {
      bytes[at + i] = checked::nearest<std::uint8_t>(levels[i]);
      levels[i] += steps[i];
    }
  }
  return bytes;
}

}  // namespace

void DrawGradient(Surface& surface, const Rectangle& rectangle, Colour color1, Colour color2,
                  std::int32_t direction) {
  trapped(basList, "DrawGradient", [&](Trap& on) {
    // One step, so that nothing is drawn after a failure that is ignored.
    on.step([&] {
      const std::int32_t width = checked::subtract(rectangle.Right, rectangle.Left);
      const std::int32_t height = checked::subtract(rectangle.Bottom, rectangle.Top);
      Bitmap24 bitmap;
      if (direction == leftToRight)
        bitmap = {width, 1, pixelsBetween(color1, color2, width, 1)};
      else if (direction == bottomToTop)
        bitmap = {columns, height, pixelsBetween(color1, color2, height, columns)};
      else
        return;
      surface.StretchDIBits(surface.hDC(), rectangle, bitmap);
    });
  });
}

}  // namespace norvane
