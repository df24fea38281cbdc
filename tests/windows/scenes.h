#pragma once

#include <functional>
#include <string>
#include <vector>

#include <nvlist/drawing/RecordingSurface.h>

/// What every platform draws to the last pixel: lists whose texts are blanks, which have a width
/// and leave no trace. So glyphs are left out, and fills, lines, art and the selection remain.
namespace scenes {

/// The image of one control: a list, or a control in it.
struct Image {
  std::string name;
  const norvane::RecordingSurface& surface;
};

/// Builds the scenes one after the other and calls `take` for each image of a control that is
/// visible. An image lives until `take` returns.
void forEachImage(const std::function<void(const Image&)>& take);

/// The pixels of an image, as 0xRRGGBB, row by row from the top.
struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> values;
};

/// As a file of the form "P6", which picture viewers show. Both throw std::runtime_error on
/// failure.
void write(const Pixels& pixels, const std::string& path);
Pixels read(const std::string& path);

}  // namespace scenes
