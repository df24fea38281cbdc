#pragma once

#include <functional>

#include <nvlist/drawing/RecordingSurface.h>

namespace norvane {

/// A recording that is drawn onto a canvas when its image is needed. Each Cls discards what has not
/// been drawn. A recording that equals the one drawn last is not drawn again. Texts are measured,
/// and pictures checked, immediately.
class DeferredSurface : public RecordingSurface {
 public:
  /// Called on the first change after each drawWaiting(). It must not draw on this surface.
  /// Default: empty.
  std::function<void()> onDrawn;

  /// Draws the pending calls onto the canvas. A failure leaves that frame incomplete and is not
  /// reported: a window that is painting itself has no caller that could handle it.
  void drawWaiting();
  /// Whether drawWaiting() would change the image. If not, the pending calls are discarded.
  bool isChanged();
  /// Draws the next recording even if it equals the last one: what the canvas makes of it has
  /// changed, for example the system colours.
  void drawAnew();

  /// Throws Failure 5 for an empty reference, and Failure 481 for a picture that cannot be decoded.
  void PaintPicture(const Picture& picture, float x, float y) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  float TextWidth(std::string_view text) override { return canvas_.TextWidth(text); }
  float TextHeight(std::string_view text) override { return canvas_.TextHeight(text); }
  float ScaleWidth() const override { return canvas_.ScaleWidth(); }
  float ScaleHeight() const override { return canvas_.ScaleHeight(); }
  void BackColor(Colour colour) override;
  void Font(const norvane::Font& font) override;
  void FontBold(Boolean on) override;
  void FontItalic(Boolean on) override;
  void FontUnderline(Boolean on) override;
  std::uintptr_t hDC() const override { return canvas_.hDC(); }

 protected:
  /// `canvas` draws immediately. It may be a member of the derived class.
  explicit DeferredSurface(Surface& canvas) : RecordingSurface(0, 0), canvas_(canvas) {}

  /// Throws the failure that the canvas would throw for the picture.
  virtual void requireDrawable(const Picture& picture) = 0;
  /// Discards the pending calls, because the size of the image has changed.
  void dropWaiting();
  void drawn() override;

 private:
  void flush();
  bool isShown();

  Surface& canvas_;
  /// The recording that the canvas shows. Empty if more was drawn than one recording.
  Frame shown_;
  bool isChangeReported_ = false;
};

}  // namespace norvane
