#pragma once

#include <nvlist/drawing/DeferredSurface.h>
#include <nvlist/platform/windows/GdiCanvas.h>

namespace norvane {

/// The surface of a control on Windows: an image that is drawn when it is needed.
class GdiSurface final : public DeferredSurface {
 public:
  GdiSurface() : DeferredSurface(canvas_) {}

  /// In pixels. Drops what was drawn where that is another size.
  void resize(int width, int height);
  int width() const { return canvas_.width(); }
  int height() const { return canvas_.height(); }
  void resolution(int dpi) { canvas_.resolution(dpi); }

  /// The image with all that was drawn.
  GdiCanvas& image() {
    drawWaiting();
    return canvas_;
  }

 protected:
  void requireDrawable(const Picture& picture) override { canvas_.requireDrawable(picture); }

 private:
  GdiCanvas canvas_;
};

inline void GdiSurface::resize(int width, int height) {
  if (width == canvas_.width() && height == canvas_.height()) return;
  canvas_.resize(width, height);
  dropWaiting();
}

}  // namespace norvane
