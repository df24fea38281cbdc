#include "../Lists.h"

#include <cstdint>
#include <limits>

#include <nvlist/scroll/gradient.h>

namespace norvane {
namespace {

class Gradient : public ListTest {
 protected:
  /// The bitmap that is stretched over the rectangle; an empty one where none is.
  Bitmap24 drawn(const Rectangle& rectangle, Colour color1, Colour color2, int direction) {
    RecordingSurface surface(100, 100);
    DrawGradient(surface, rectangle, color1, color2, direction);
    if (surface.image().calls.empty()) return {};
    const auto& call = std::get<calls::StretchDIBits>(surface.image().calls.at(0));
    EXPECT_EQ(call.target, rectangle);
    return call.bitmap;
  }

  /// The levels of red in buffer order, where the other channels are 0.
  std::vector<int> reds(const Rectangle& rectangle, Colour color1, Colour color2, int direction) {
    std::vector<int> result;
    const Bitmap24 bitmap = drawn(rectangle, color1, color2, direction);
    for (int row = 0; row < bitmap.height; ++row)
      for (int column = 0; column < bitmap.width; ++column)
        result.push_back(bitmap.pixel(column, row));
    return result;
  }
};

TEST_F(Gradient, RunsOverOneRowOrFourColumns) {
  using Bytes = std::vector<std::uint8_t>;
  const Bitmap24 row = drawn({5, 7, 8, 50}, 0x201000, 0x231306, 0);
  EXPECT_EQ(row.bytes, (Bytes{0x20, 0x10, 0, 0x21, 0x11, 2, 0x22, 0x12, 4}));
  const Bitmap24 strip = drawn({5, 7, 90, 9}, 0x0800C8, 0x100000, 1);
  EXPECT_EQ(strip.width, 4);
  EXPECT_EQ(strip.bytes, (Bytes{8,  0, 200, 9,  0, 175, 10, 0, 150, 11, 0, 125,
                                12, 0, 100, 13, 0, 75,  14, 0, 50,  15, 0, 25}));
  // The upper byte of a system colour is no part of it.
  EXPECT_EQ(reds({0, 0, 1, 9}, systemColour(15), 0, 0), (std::vector<int>{15}));
}

TEST_F(Gradient, AddsUpSinglesAndRoundsHalvesToEven) {
  EXPECT_EQ(reds({0, 0, 8, 1}, 0, 4, 0), (std::vector<int>{0, 0, 1, 2, 2, 2, 3, 4}));
  // A sixth added nine times falls just short of the half in 32 bits, and is above it in 64.
  EXPECT_EQ(reds({0, 0, 12, 1}, 0, 2, 0).at(9), 1);
}

TEST_F(Gradient, FailsWithoutALengthAndDrawsNothing) {
  constexpr int huge = std::numeric_limits<std::int32_t>::max();
  const struct {
    Rectangle rectangle;
    int direction;
    std::string report;
  } cases[] = {{{5, 0, 5, 9}, 0, "9 DrawGradient"},     {{0, 0, 9, -huge}, 1, "9 DrawGradient"},
               {{-2, 0, huge, 9}, 1, "6 DrawGradient"}, {{0, -2, 9, huge}, 7, "6 DrawGradient"},
               {{0, 0, huge, 9}, 0, "6 DrawGradient"},  {{0, 0, 9, 9}, 2, ""}};
  for (const auto& [rectangle, direction, report] : cases) {
    EXPECT_TRUE(drawn(rectangle, 0, 0xFFFFFF, direction).bytes.empty());
    EXPECT_EQ(reports(), report) << rectangle.Right << " " << rectangle.Bottom;
  }
  // A rectangle without height is no failure of a gradient that runs over its width.
  EXPECT_EQ(drawn({0, 9, 3, 9}, 0, 0xFFFFFF, 0).width, 3);
}

}  // namespace
}  // namespace norvane
