#include <nvlist/drawing/DrawnPicture.h>

#include <utility>

namespace norvane::art {

DrawnPicture::DrawnPicture(std::string name, int width, int height)
    : name_(std::move(name)),
      width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

std::vector<std::byte> DrawnPicture::fileBytes() const {
  constexpr std::uint32_t headerSize = 54;
  const auto rowSize = static_cast<std::uint32_t>((width_ * 3 + 3) / 4 * 4);
  const std::uint32_t imageSize = rowSize * static_cast<std::uint32_t>(height_);
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
  put(static_cast<std::uint32_t>(width_), 4);
  put(static_cast<std::uint32_t>(height_), 4);
  put(1, 2);
  put(24, 2);
  put(0, 4);
  put(imageSize, 4);
  for (int i = 0; i < 4; ++i) put(0, 4);
  for (int row = height_ - 1; row >= 0; --row) {
    for (int column = 0; column < width_; ++column) {
      const Pixel& pixel = at(row, column);
      put(pixel.blue, 1);
      put(pixel.green, 1);
      put(pixel.red, 1);
    }
    put(0, static_cast<int>(rowSize) - width_ * 3);
  }
  return file;
}

}  // namespace norvane::art
