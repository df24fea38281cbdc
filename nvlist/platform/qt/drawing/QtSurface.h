#pragma once

#include <nvlist/drawing/DeferredSurface.h>
#include <nvlist/drawing/MirroredSurface.h>
#include <nvlist/platform/qt/drawing/QtCanvas.h>

namespace norvane {

/// The surface of a control in a Qt window: a QtCanvas that is drawn on when its image is needed. A
/// QGuiApplication must exist.
class QtSurface final : public DeferredSurface {
 public:
  /// Starts with one pixel in white.
  QtSurface() : DeferredSurface(mirror_) {}

  /// See QtCanvas::resize.
  void resize(QSize logical, qreal dpr) {
    canvas_.resize(logical, dpr);
    dropWaiting();
  }

  /// The image with all that was drawn; its device pixel ratio is set. The reference stays valid as
  /// long as the surface; a copy does not show what is drawn later.
  const QImage& image() {
    drawWaiting();
    if (canvas_.isPictureMissing()) drawAnew();
    return canvas_.image();
  }
  qreal devicePixelRatio() const { return canvas_.devicePixelRatio(); }
  /// Whether what is drawn from now on is mirrored. Default: false.
  void mirror(bool on) {
    mirror_.turn(on);
    drawAnew();
  }
  /// As last given to resize.
  QSize size() const { return canvas_.size(); }

  /// The source of the system colours. Default: the palette of the application. What was drawn
  /// already keeps its colours.
  void setPalette(const QPalette& palette) {
    canvas_.setPalette(palette);
    drawAnew();
  }

 protected:
  void requireDrawable(const Picture& picture) override { canvas_.requireDrawable(picture); }

 private:
  QtCanvas canvas_;
  MirroredSurface mirror_{canvas_};
};

}  // namespace norvane
