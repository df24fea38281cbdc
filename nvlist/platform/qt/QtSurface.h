#pragma once

#include <functional>

#include <nvlist/drawing/RecordingSurface.h>
#include <nvlist/platform/qt/QtCanvas.h>

namespace norvane {

/// The surface of a list in a window. It draws when its image is looked at and not before: a host
/// that adds a hundred items makes the list paint itself a hundred times, and the window shows the
/// last of them. What is drawn waits as a recording, which the next Cls drops.
///
/// Texts are measured and pictures tried at once. A QGuiApplication must exist.
class QtSurface final : public Surface {
 public:
  /// Starts with one pixel in white.
  QtSurface() = default;

  /// As QtCanvas::resize.
  void resize(QSize logical, qreal dpr);

  /// The image with all that was drawn, its device pixel ratio set. The reference stays valid as
  /// long as the surface; a copy does not follow what is drawn later.
  const QImage& image();
  qreal devicePixelRatio() const { return canvas_.devicePixelRatio(); }
  /// As last given to resize.
  QSize size() const { return canvas_.size(); }

  /// Where the system colours come from. Default: the palette of the application. What was seen
  /// already stays as it is.
  void setPalette(const QPalette& palette) { canvas_.setPalette(palette); }

  /// Called when the image changes for the first time after image() handed it out. It must not draw
  /// on this surface. Default: none.
  std::function<void()> onDrawn;

  void Cls() override;
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override;
  /// An empty reference throws Failure 5, a picture that cannot be decoded Failure 481.
  void PaintPicture(const Picture& picture, float x, float y) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  float TextWidth(std::string_view text) override { return canvas_.TextWidth(text); }
  float TextHeight(std::string_view text) override { return canvas_.TextHeight(text); }
  float CurrentX() const override { return waiting_.CurrentX(); }
  void CurrentX(float x) override { waiting_.CurrentX(x); }
  float CurrentY() const override { return waiting_.CurrentY(); }
  void CurrentY(float y) override { waiting_.CurrentY(y); }
  float ScaleWidth() const override { return canvas_.ScaleWidth(); }
  float ScaleHeight() const override { return canvas_.ScaleHeight(); }
  void BackColor(Colour colour) override;
  void ForeColor(Colour colour) override { waiting_.ForeColor(colour); }
  void Font(const norvane::Font& font) override;
  void FontBold(Boolean on) override;
  void FontItalic(Boolean on) override;
  void FontUnderline(Boolean on) override;
  /// The calls that take a handle throw Failure 5 for any other.
  std::uintptr_t hDC() const override { return canvas_.hDC(); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  void Print(std::string_view text) override;

 private:
  void drawn();
  void drawWaiting();
  void requireOwn(std::uintptr_t hDC) const;

  QtCanvas canvas_;
  RecordingSurface waiting_{0, 0};
  bool isChangeTold_ = false;
};

}  // namespace norvane
