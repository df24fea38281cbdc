#pragma once

#include <memory>
#include <string>
#include <vector>

#include <nvlist/drawing/Surface.h>

namespace norvane {

/// A picture in SVG, made of surfaces one on the other. Texts stay texts, and pictures are embedded
/// as their files; a picture whose file is not a bitmap, PNG, GIF, JPEG or icon is left out. System
/// colours are those of the Windows XP styles. Replaying a recording draws on it:
///
///     SvgDocument document(200, 100);
///     container.replay([&](const Bounds& at) -> Surface& {
///       return document.add(at.Left, at.Top, at.Width, at.Height);
///     });
///     std::cout << document.text();
class SvgDocument {
 public:
  /// Size in pixels.
  SvgDocument(float width, float height);
  ~SvgDocument();

  /// Adds a surface at a place in the picture, in front of those before. What is drawn outside it
  /// is not shown. It lives as long as the document.
  Surface& add(float x, float y, float width, float height);

  /// The whole document, with what has been drawn so far.
  std::string text() const;

 private:
  class SvgSurface;

  float width_;
  float height_;
  std::vector<std::unique_ptr<SvgSurface>> surfaces_;
};

}  // namespace norvane
