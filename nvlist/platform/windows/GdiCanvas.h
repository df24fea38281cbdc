#pragma once

#include <memory>
#include <vector>

#include <nvlist/drawing/FontFaces.h>
#include <nvlist/drawing/Surface.h>
#include <nvlist/platform/windows/Apartment.h>

namespace norvane {

/// A surface that draws immediately, with GDI, on an image in memory; GdiSurface defers drawing.
/// The image is created when something is first drawn, because most child controls are never
/// visible. It belongs to the thread that created it.
class GdiCanvas final : public Surface {
 public:
  GdiCanvas() = default;
  ~GdiCanvas() override;
  GdiCanvas(const GdiCanvas&) = delete;
  GdiCanvas& operator=(const GdiCanvas&) = delete;

  /// Starts a new image in the background colour. With an empty size, drawing has no effect.
  void resize(int width, int height);
  int width() const { return width_; }
  int height() const { return height_; }
  /// Sets the pixels per inch, which determine the size of the font. Default: those of the screen.
  void resolution(int dpi);

  /// Copies a part of the image to a position on another device.
  void copyTo(HDC target, int x, int y, int width, int height, int fromX = 0, int fromY = 0);
  /// Throws the failure that PaintPicture would throw for the picture.
  void requireDrawable(const Picture& picture);

  void Cls() override;
  /// Coordinates are rounded to the nearest pixel, halves to even.
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override;
  /// Throws Failure 5 for an empty reference. A picture of another platform is decoded from the
  /// bytes of its file; if it has no file, or one that the system cannot decode, this throws
  /// Failure 481.
  void PaintPicture(const Picture& picture, float x, float y) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  float TextWidth(std::string_view text) override;
  float TextHeight(std::string_view text) override;
  float CurrentX() const override { return currentX_; }
  void CurrentX(float x) override { currentX_ = x; }
  float CurrentY() const override { return currentY_; }
  void CurrentY(float y) override { currentY_ = y; }
  float ScaleWidth() const override { return static_cast<float>(width_); }
  float ScaleHeight() const override { return static_cast<float>(height_); }
  void BackColor(Colour colour) override { backColor_ = colour; }
  void ForeColor(Colour colour) override { foreColor_ = colour; }
  void Font(const norvane::Font& font) override { faces_.font(font); }
  void FontBold(Boolean on) override { faces_.bold(on); }
  void FontItalic(Boolean on) override { faces_.italic(on); }
  void FontUnderline(Boolean on) override { faces_.underline(on); }
  /// Identifies this surface; it is not a system handle. Calls that take a handle throw Failure 5
  /// for any other.
  std::uintptr_t hDC() const override { return reinterpret_cast<std::uintptr_t>(this); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  /// Lines after the first begin at x = 0.
  void Print(std::string_view text) override;

  static COLORREF colourRef(Colour colour);

 private:
  GdiFace& face();
  /// The device context of the image, which is created if necessary.
  HDC dc();
  /// The same, with the current font and text colour.
  HDC textDc();
  void dropImage();
  void fill(int left, int top, int right, int bottom, Colour colour);

  std::shared_ptr<Apartment> apartment_ = Apartment::current();
  HDC dc_ = nullptr;
  HBITMAP image_ = nullptr;
  HGDIOBJ imageBefore_ = nullptr;
  HGDIOBJ fontBefore_ = nullptr;
  /// The pixels, top row first.
  std::uint32_t* pixels_ = nullptr;
  int width_ = 0;
  int height_ = 0;

  float currentX_ = 0;
  float currentY_ = 0;
  Colour backColor_ = colours::white;
  Colour foreColor_ = 0;
  int dpi_ = 0;  ///< 0 until a text is measured or resolution() is called
  FontFaces<std::shared_ptr<GdiFace>> faces_;
};

}  // namespace norvane
