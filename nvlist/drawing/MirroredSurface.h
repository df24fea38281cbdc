#pragma once

#include <nvlist/drawing/Surface.h>

namespace norvane {

/// Draws on a canvas, while it is on with left and right exchanged, for layouts from right to left:
/// everything is where a mirror would show it, but texts and pictures are not reversed themselves.
/// A text that was left-aligned then ends at the right edge of its place.
class MirroredSurface final : public Surface {
 public:
  /// The canvas must live as long as this surface.
  explicit MirroredSurface(Surface& canvas) : canvas_(canvas) {}

  /// Default: false.
  bool isOn() const { return isOn_; }
  void turn(bool on) { isOn_ = on; }

  void Cls() override;
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override;
  void PaintPicture(const Picture& picture, float x, float y) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  float TextWidth(std::string_view text) override { return canvas_.TextWidth(text); }
  float TextHeight(std::string_view text) override { return canvas_.TextHeight(text); }
  float CurrentX() const override { return currentX_; }
  void CurrentX(float x) override { currentX_ = x; }
  float CurrentY() const override { return canvas_.CurrentY(); }
  void CurrentY(float y) override { canvas_.CurrentY(y); }
  float ScaleWidth() const override { return canvas_.ScaleWidth(); }
  float ScaleHeight() const override { return canvas_.ScaleHeight(); }
  void BackColor(Colour colour) override { canvas_.BackColor(colour); }
  void ForeColor(Colour colour) override { canvas_.ForeColor(colour); }
  void Font(const norvane::Font& font) override { canvas_.Font(font); }
  void FontBold(Boolean on) override { canvas_.FontBold(on); }
  void FontItalic(Boolean on) override { canvas_.FontItalic(on); }
  void FontUnderline(Boolean on) override { canvas_.FontUnderline(on); }
  std::uintptr_t hDC() const override { return canvas_.hDC(); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  void Print(std::string_view text) override;

 private:
  float pixel(float x) const { return isOn_ ? ScaleWidth() - 1 - x : x; }
  float leftOf(float x, float width) const { return isOn_ ? ScaleWidth() - x - width : x; }
  Rectangle mirrored(const Rectangle& rectangle) const;

  Surface& canvas_;
  float currentX_ = 0;
  bool isOn_ = false;
};

}  // namespace norvane
