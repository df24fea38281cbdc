#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <nvlist/values/Picture.h>

namespace norvane::art {

struct Pixel {
  std::uint8_t red, green, blue;

  friend bool operator==(const Pixel&, const Pixel&) = default;
};

/// The colour 0xRRGGBB.
constexpr Pixel pixel(std::uint32_t rgb) {
  return {static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
          static_cast<std::uint8_t>(rgb)};
}

/// The colour `step` of `steps` between two colours, rounded to the nearest.
constexpr Pixel mix(Pixel from, Pixel to, int step, int steps) {
  const auto between = [&](int first, int last) {
    return static_cast<std::uint8_t>((first * (steps - step) + last * step + steps / 2) / steps);
  };
  return {between(from.red, to.red), between(from.green, to.green), between(from.blue, to.blue)};
}

constexpr Pixel white = pixel(0xFFFFFF);

/// A picture in memory. Its file is an uncompressed 24-bit bitmap, which every platform can read.
class DrawnPicture final : public PictureObject {
 public:
  /// Creates a black picture. The size is in pixels, at least 1 by 1. `name` is its description.
  DrawnPicture(std::string name, int width, int height);

  float width() const override { return static_cast<float>(width_); }
  float height() const override { return static_cast<float>(height_); }
  std::vector<std::byte> fileBytes() const override;
  std::string description() const override { return name_; }

  /// The pixel in a row (counted from the top) and column; both must be inside the picture.
  Pixel& at(int row, int column) { return pixels_[index(row, column)]; }
  const Pixel& at(int row, int column) const { return pixels_[index(row, column)]; }

 private:
  std::size_t index(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(column);
  }

  std::string name_;
  int width_;
  int height_;
  std::vector<Pixel> pixels_;
};

/// Draws a picture pixel by pixel: `pixelAt(row, column)` returns each pixel.
template <class PixelAt>
Picture drawn(std::string name, int width, int height, PixelAt&& pixelAt) {
  auto picture = makeRef<DrawnPicture>(std::move(name), width, height);
  for (int row = 0; row < height; ++row)
    for (int column = 0; column < width; ++column) picture->at(row, column) = pixelAt(row, column);
  return picture;
}

}  // namespace norvane::art
