#include "../Lists.h"

#include <cstdint>
#include <limits>
#include <tuple>

#include <nvlist/scroll/art.h>
#include <nvlist/scroll/gradient.h>

namespace norvane {
namespace {

using art::Arrow;
using scroll::Axis;

/// Pictures are checked as a whole, since a wrong pixel is hard to find by eye: after an intended
/// change, look at them and write the new numbers here.
TEST(Art, HasTheseChecksums) {
  const auto checksum = [](auto picture, auto kind, int count) {
    std::uint32_t result = 2166136261;
    for (int i = 1; i <= count; ++i)
      for (const std::byte byte : picture(kind, i)->fileBytes())
        result = (result ^ std::to_integer<std::uint32_t>(byte)) * 16777619;
    return result;
  };
  EXPECT_EQ(checksum(art::thumb, Axis::vertical, 18), 1671884161);
  EXPECT_EQ(checksum(art::thumb, Axis::horizontal, 18), 810803759);
  EXPECT_EQ(checksum(art::button, Arrow::up, 12), 3960588473);
  EXPECT_EQ(checksum(art::button, Arrow::down, 12), 3401648823);
  EXPECT_EQ(checksum(art::button, Arrow::left, 12), 4131172503);
  EXPECT_EQ(checksum(art::button, Arrow::right, 12), 2601227279);
}

class Gradient : public ListTest {
 protected:
  /// The bitmap that is stretched over the rectangle; an empty one if nothing is drawn.
  Bitmap24 drawn(const Rectangle& rectangle, Colour color1, Colour color2, int direction) {
    RecordingSurface surface(100, 100);
    DrawGradient(surface, rectangle, color1, color2, direction);
    if (surface.image().calls.empty()) return {};
    const auto& call = std::get<calls::StretchDIBits>(surface.image().calls.at(0));
    EXPECT_EQ(call.target, rectangle);
    return call.bitmap;
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
  // The upper byte of a system colour is ignored.
  EXPECT_EQ(drawn({0, 0, 1, 9}, systemColour(15), 0, 0).bytes, (Bytes{0, 0, 15}));
}

TEST_F(Gradient, AddsUpSinglesAndRoundsHalvesToEven) {
  std::string halves;
  for (int i = 0; i < 8; ++i) halves += std::to_string(drawn({0, 0, 8, 1}, 0, 4, 0).pixel(i, 0));
  EXPECT_EQ(halves, "00122234");
  // A sixth added nine times falls just short of the half in 32 bits, and is above it in 64.
  EXPECT_EQ(drawn({0, 0, 12, 1}, 0, 2, 0).pixel(9, 0), 1);
}

TEST_F(Gradient, FailsWithoutALengthAndDrawsNothing) {
  constexpr int huge = std::numeric_limits<std::int32_t>::max();
  using Case = std::tuple<Rectangle, int, const char*>;
  for (const auto& [rectangle, direction, report] :
       {Case{{5, 0, 5, 9}, 0, "9 DrawGradient"}, Case{{0, 0, 9, -huge}, 1, "9 DrawGradient"},
        Case{{-2, 0, huge, 9}, 1, "6 DrawGradient"}, Case{{0, -2, 9, huge}, 7, "6 DrawGradient"},
        Case{{0, 0, huge, 9}, 0, "6 DrawGradient"}, Case{{0, 0, 9, 9}, 2, ""}}) {
    EXPECT_TRUE(drawn(rectangle, 0, 0xFFFFFF, direction).bytes.empty());
    EXPECT_EQ(reports(), report) << rectangle.Right << " " << rectangle.Bottom;
  }
  // A gradient over the width does not need a height.
  EXPECT_EQ(drawn({0, 9, 3, 9}, 0, 0xFFFFFF, 0).width, 3);
}

}  // namespace
}  // namespace norvane
