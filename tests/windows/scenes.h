#pragma once

#include <functional>
#include <string>
#include <vector>

#include <nvlist/drawing/RecordingSurface.h>

/// Scenes that every platform draws identically to the last pixel: lists whose texts are blanks,
/// which have a width but draw nothing. Glyphs are thus excluded; fills, lines, art and the
/// selection remain.
namespace scenes {

/// The image of one control: a list, or a control inside it.
struct Image {
  std::string name;
  const norvane::RecordingSurface& surface;
};

/// Builds the scenes in turn and calls `take` for each image of a visible control. An image is
/// valid until `take` returns.
void forEachImage(const std::function<void(const Image&)>& take);

/// The pixels of an image, as 0xRRGGBB, row by row from the top.
struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> values;
};

/// Writes the file format "P6", which picture viewers can show. Both throw std::runtime_error on
/// failure.
void write(const Pixels& pixels, const std::string& path);
Pixels read(const std::string& path);

}  // namespace scenes
