#include <nvlist/render/art.h>

#include <array>
#include <string>
#include <string_view>

#include <nvlist/drawing/DrawnPicture.h>

namespace norvane::art {
namespace {

constexpr int boxSize = 13;

constexpr std::array<std::string_view, boxSize> checkMark = {".............",  //
                                                             ".............",  //
                                                             ".............",  //
                                                             ".........#...",  //
                                                             "........##...",  //
                                                             "...#...###...",  //
                                                             "...##.###....",  //
                                                             "...#####.....",  //
                                                             "....###......",  //
                                                             ".....#.......",  //
                                                             ".............",  //
                                                             ".............",  //
                                                             "............."};

/// The interior of an enabled box: a gradient, lighter towards the bottom right.
Pixel shade(int row, int column) {
  return mix(pixel(0xDEDED6), white, row - 1 + column - 1, 2 * (boxSize - 3));
}

bool isMark(int row, int column) {
  return checkMark[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] == '#';
}

Picture drawCheckBox(bool isChecked, bool isEnabled) {
  const Pixel frame = pixel(isEnabled ? 0x185284 : 0xCECEBD);
  const Pixel mark = pixel(isEnabled ? 0x21A521 : 0xCECEBD);
  const std::string name =
      std::string(isEnabled ? "" : "disabled ") + (isChecked ? "checked box" : "check box");
  return drawn(name, boxSize, boxSize, [&](int row, int column) {
    if (row == 0 || column == 0 || row == boxSize - 1 || column == boxSize - 1) return frame;
    if (isChecked && isMark(row, column)) return mark;
    return isEnabled ? shade(row, column) : white;
  });
}

/// A sheet of paper with lines of text.
Picture drawSampleIcon() {
  constexpr int size = 32;
  constexpr Pixel edge = pixel(0x7F9DB9);
  constexpr Pixel ink = pixel(0x316AC5);
  return drawn("sample icon", size, size, [&](int row, int column) {
    const bool isSheet = row >= 2 && row < 30 && column >= 5 && column < 27;
    const bool isInside = row >= 4 && row < 28 && column >= 7 && column < 25;
    const bool isText = isInside && row >= 8 && row < 26 && row % 4 < 2 && column >= 10 &&
                        column < (row / 4 % 2 == 0 ? 22 : 18);
    return isText ? ink : isSheet && !isInside ? edge : white;
  });
}

}  // namespace

Picture checkBox(bool isChecked, bool isEnabled) {
  static const std::array<Picture, 4> boxes = {drawCheckBox(false, false),
                                               drawCheckBox(false, true), drawCheckBox(true, false),
                                               drawCheckBox(true, true)};
  return boxes[(isChecked ? 2U : 0U) + (isEnabled ? 1U : 0U)];
}

Picture sampleIcon() {
  static const Picture icon = drawSampleIcon();
  return icon;
}

}  // namespace norvane::art
