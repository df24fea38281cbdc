#pragma once

#include <nvlist/drawing/DeferredSurface.h>
#include <nvlist/platform/windows/GdiCanvas.h>

namespace norvane {

/// The surface of a control on Windows: an image that is drawn on demand.
class GdiSurface final : public DeferredSurface {
 public:
  GdiSurface() : DeferredSurface(canvas_) {}

  /// Sets the size in pixels. A new size discards what was drawn.
  void resize(int width, int height);
  int width() const { return canvas_.width(); }
  int height() const { return canvas_.height(); }
  void resolution(int dpi) { canvas_.resolution(dpi); }

  /// The image, with all pending calls drawn.
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
