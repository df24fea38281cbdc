#include <nvlist/render/art.h>

#include <array>
#include <string_view>

namespace norvane::art {
namespace {

struct Pixel {
  std::uint8_t red, green, blue;
};

constexpr Pixel white{0xFF, 0xFF, 0xFF};

/// A picture in memory; its file is an uncompressed bitmap of 24 bits, which every platform reads.
class DrawnPicture final : public PictureObject {
 public:
  explicit DrawnPicture(int size)
      : size_(size), pixels_(static_cast<std::size_t>(size) * static_cast<std::size_t>(size)) {}

  float width() const override { return static_cast<float>(size_); }
  float height() const override { return static_cast<float>(size_); }

  Pixel& at(int row, int column) { return pixels_[static_cast<std::size_t>(row * size_ + column)]; }

  std::vector<std::byte> fileBytes() const override {
    constexpr std::uint32_t headerSize = 54;
    const auto rowSize = static_cast<std::uint32_t>((size_ * 3 + 3) / 4 * 4);
    const std::uint32_t imageSize = rowSize * static_cast<std::uint32_t>(size_);
    std::vector<std::byte> file;
    file.reserve(headerSize + imageSize);
    const auto put = [&](std::uint32_t value, int bytes) {
      for (int i = 0; i < bytes; ++i) file.push_back(static_cast<std::byte>(value >> (8 * i)));
    };
    put('B' | 'M' << 8, 2);
    put(headerSize + imageSize, 4);
    put(0, 4);
    put(headerSize, 4);
    put(40, 4);
    put(static_cast<std::uint32_t>(size_), 4);
    put(static_cast<std::uint32_t>(size_), 4);
    put(1, 2);
    put(24, 2);
    put(0, 4);
    put(imageSize, 4);
    for (int i = 0; i < 4; ++i) put(0, 4);
    for (int row = size_ - 1; row >= 0; --row) {
      for (int column = 0; column < size_; ++column) {
        const Pixel& pixel = pixels_[static_cast<std::size_t>(row * size_ + column)];
        put(pixel.blue, 1);
        put(pixel.green, 1);
        put(pixel.red, 1);
      }
      put(0, static_cast<int>(rowSize) - size_ * 3);
    }
    return file;
  }

 private:
  int size_;
  std::vector<Pixel> pixels_;
};

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

/// The inside of an enabled box: lighter from the top left to the bottom right.
Pixel shade(int row, int column) {
  constexpr int steps = 2 * (boxSize - 3);
  const int step = row - 1 + column - 1;
  const auto mix = [&](int from, int to) {
    return static_cast<std::uint8_t>(from + ((to - from) * step + steps / 2) / steps);
  };
  return {mix(0xDE, 0xFF), mix(0xDE, 0xFF), mix(0xD6, 0xFF)};
}

Picture drawCheckBox(bool isChecked, bool isEnabled) {
  const Pixel frame = isEnabled ? Pixel{0x18, 0x52, 0x84} : Pixel{0xCE, 0xCE, 0xBD};
  const Pixel mark = isEnabled ? Pixel{0x21, 0xA5, 0x21} : Pixel{0xCE, 0xCE, 0xBD};
  auto box = makeRef<DrawnPicture>(boxSize);
  for (int row = 0; row < boxSize; ++row) {
    for (int column = 0; column < boxSize; ++column) {
      const bool isFrame = row == 0 || column == 0 || row == boxSize - 1 || column == boxSize - 1;
      const bool isMark =
          isChecked &&
          checkMark[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] == '#';
      box->at(row, column) = isFrame     ? frame
                             : isMark    ? mark
                             : isEnabled ? shade(row, column)
                                         : white;
    }
  }
  return box;
}

/// A sheet of paper with lines of text.
Picture drawSampleIcon() {
  constexpr int size = 32;
  constexpr Pixel edge{0x7F, 0x9D, 0xB9};
  constexpr Pixel ink{0x31, 0x6A, 0xC5};
  auto icon = makeRef<DrawnPicture>(size);
  for (int row = 0; row < size; ++row) {
    for (int column = 0; column < size; ++column) {
      const bool isSheet = row >= 2 && row < 30 && column >= 5 && column < 27;
      const bool isInside = row >= 4 && row < 28 && column >= 7 && column < 25;
      const bool isText = isInside && row >= 8 && row < 26 && row % 4 < 2 && column >= 10 &&
                          column < (row / 4 % 2 == 0 ? 22 : 18);
      icon->at(row, column) = isText ? ink : isSheet && !isInside ? edge : white;
    }
  }
  return icon;
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
