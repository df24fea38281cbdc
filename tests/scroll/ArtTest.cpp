#include <nvlist/scroll/art.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvane {
namespace {

using art::Arrow;
using scroll::Axis;

using Row = std::vector<std::uint32_t>;
using Pixels = std::vector<Row>;

/// The pixels of a picture as 0xRRGGBB, in rows from the top or in columns from the left.
Pixels pixelsOf(const Picture& picture, bool isTurned) {
  const std::vector<std::byte> file = picture->fileBytes();
  const auto byte = [&](std::size_t at) { return std::to_integer<std::uint32_t>(file.at(at)); };
  const std::size_t width = byte(18);
  const std::size_t height = byte(22);
  Pixels pixels(isTurned ? width : height, Row(isTurned ? height : width));
  for (std::size_t row = 0; row < height; ++row)
    for (std::size_t column = 0; column < width; ++column) {
      const std::size_t at = byte(10) + (height - 1 - row) * ((width * 3 + 3) / 4 * 4) + column * 3;
      std::uint32_t& pixel = isTurned ? pixels[column][row] : pixels[row][column];
      pixel = byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16;
    }
  return pixels;
}

TEST(Art, ButtonsDifferInTheirChevronAlone) {
  const auto pixels = [](Arrow arrow, int index) {
    return pixelsOf(art::button(arrow, index), arrow == Arrow::left || arrow == Arrow::right);
  };
  const auto chevron = [&](Arrow arrow) {
    std::vector<std::string> rows;
    for (const auto& row : pixels(arrow, 5)) {
      rows.emplace_back();
      for (const auto pixel : row) rows.back() += pixel == 0x393939 ? '#' : '.';
    }
    return rows;
  };
  for (const Arrow arrow : {Arrow::up, Arrow::down, Arrow::left, Arrow::right}) {
    const Pixels button = pixels(arrow, 1);
    ASSERT_EQ(button.size(), 17U);
    for (const auto& row : button)
      EXPECT_EQ(std::pair(row.size(), row[0]), std::pair(std::size_t{17}, 0xEFEFE7U));
    EXPECT_EQ(Row({button[8][1], button[3][3], button[13][13], button[16][8]}),
              Row({0xFFFFFF, 0xDEE7F7, 0xADC6F7, 0x7B9CD6}));
  }
  const auto up = chevron(Arrow::up);
  const auto down = chevron(Arrow::down);
  EXPECT_EQ(up[5], "........#........");
  EXPECT_EQ(up[9], "....###...###....");
  // The face fills the rows 1 to 14.
  for (std::size_t row = 1; row < 15; ++row) EXPECT_EQ(up[row], down[15 - row]) << row;
  EXPECT_EQ(chevron(Arrow::left), up);
  EXPECT_EQ(chevron(Arrow::right), down);
}

TEST(Art, TheHorizontalThumbIsTheVerticalOneTurnedExceptForThreePictures) {
  const auto pixels = [](Axis axis, int index) {
    return pixelsOf(art::thumb(axis, index), axis == Axis::horizontal);
  };
  std::vector<int> others;
  for (int i = 1; i <= 18; ++i)
    if (pixels(Axis::vertical, i) != pixels(Axis::horizontal, i)) others.push_back(i);
  EXPECT_EQ(others, std::vector<int>({7, 16, 18}));

  const Pixels body = pixels(Axis::horizontal, 7);
  EXPECT_EQ(body, Pixels(14, body[0]));
  EXPECT_EQ(Row({body[0].at(0), body[0].at(12)}), Row({0xA5B5CE, 0xFFFFFF}));
  const Row light = {0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xF7FBFF};
  const Row dark = {0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0xC6DAFF};
  EXPECT_EQ(pixels(Axis::vertical, 6),
            Pixels({light, dark, light, dark, light, dark, light, dark}));
}

}  // namespace
}  // namespace norvane
