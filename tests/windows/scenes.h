#pragma once

#include <functional>
#include <string>

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

}  // namespace scenes
