#pragma once

#include <functional>

#include <nvlist/drawing/RecordingSurface.h>

namespace norvane {

/// The calls are kept in a recording, which the next Cls discards. Texts are measured, and pictures
/// checked, immediately.
class DeferredSurface : public Surface {
 public:
  /// Called on the first change after each drawWaiting(). It must not draw on this surface.
  /// Default: empty.
  std::function<void()> onDrawn;

  /// Draws the pending calls onto the canvas. A failure leaves that frame incomplete and is not
  /// reported: a window that is painting itself has no caller that could handle it.
  void drawWaiting();

  void Cls() override;
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override;
  /// Throws Failure 5 for an empty reference, and Failure 481 for a picture that cannot be decoded.
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
  /// Calls that take a handle throw Failure 5 for any other handle.
  std::uintptr_t hDC() const override { return canvas_.hDC(); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  void Print(std::string_view text) override;

 protected:
  /// `canvas` draws immediately. It may be a member of the derived class.
  explicit DeferredSurface(Surface& canvas) : canvas_(canvas) {}

  /// Throws the failure that the canvas would throw for the picture.
  virtual void requireDrawable(const Picture& picture) = 0;
  /// Discards the pending calls, because the size of the image has changed.
  void dropWaiting();

 private:
  void flush();
  void drawn();
  void requireOwn(std::uintptr_t hDC) const;

  Surface& canvas_;
  RecordingSurface waiting_{0, 0};
  bool isChangeReported_ = false;
};

}  // namespace norvane
