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

/// A picture as its file has it: rows from the top, or columns from the left; colours as 0xRRGGBB.
Pixels pixelsOf(const Picture& picture, bool isTurned = false) {
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

Pixels buttonPixels(Arrow arrow, int index) {
  return pixelsOf(art::button(arrow, index), arrow == Arrow::left || arrow == Arrow::right);
}

TEST(Art, AButtonRunsFromTheTrackOverAWhiteLineAndItsFaceToTheShade) {
  for (const Arrow arrow : {Arrow::up, Arrow::down, Arrow::left, Arrow::right}) {
    const Pixels button = buttonPixels(arrow, 1);
    ASSERT_EQ(button.size(), 17U);
    ASSERT_EQ(button[16].size(), 17U);
    for (const auto& row : button) EXPECT_EQ(row[0], 0xEFEFE7U);
    EXPECT_EQ(button[8][1], 0xFFFFFFU);
    EXPECT_EQ(button[3][3], 0xDEE7F7U);
    EXPECT_EQ(button[13][13], 0xADC6F7U);
    EXPECT_EQ(button[16][8], 0x7B9CD6U);
  }
}

TEST(Art, ChevronsAreEachOthersMirrorImages) {
  const auto chevron = [](Arrow arrow) {
    std::vector<std::string> rows;
    for (const auto& row : buttonPixels(arrow, 5)) {
      rows.emplace_back();
      for (const auto pixel : row) rows.back() += pixel == 0x393939 ? '#' : '.';
    }
    return rows;
  };
  const auto up = chevron(Arrow::up);
  const auto down = chevron(Arrow::down);
  // The face lies in the rows 1 to 14, so this mirrors it in itself.
  for (std::size_t row = 1; row < 15; ++row) EXPECT_EQ(up[row], down[15 - row]) << row;
  EXPECT_EQ(up[5], "........#........");
  EXPECT_EQ(up[9], "....###...###....");
  EXPECT_EQ(chevron(Arrow::left), up);
  EXPECT_EQ(chevron(Arrow::right), down);
}

TEST(Art, TheHorizontalThumbIsTheVerticalOneTurnedButForThreePictures) {
  const auto vertical = [](int index) { return pixelsOf(art::thumb(Axis::vertical, index)); };
  const auto horizontal = [](int index) {
    return pixelsOf(art::thumb(Axis::horizontal, index), true);
  };
  std::vector<int> others;
  for (int i = 1; i <= 18; ++i)
    if (vertical(i) != horizontal(i)) others.push_back(i);
  EXPECT_EQ(others, std::vector<int>({7, 16, 18}));

  const Pixels body = horizontal(7);
  EXPECT_EQ(body, Pixels(14, body[0]));
  EXPECT_EQ(body[0][0], 0xA5B5CEU);
  EXPECT_EQ(body[0][12], 0xFFFFFFU);

  const Row light = {0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xEFF7FF, 0xF7FBFF};
  const Row dark = {0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0x8CB5FF, 0xC6DAFF};
  EXPECT_EQ(vertical(6), Pixels({light, dark, light, dark, light, dark, light, dark}));
}

}  // namespace
}  // namespace norvane
