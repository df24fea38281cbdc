#pragma once

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QSize>
#include <map>
#include <memory>

#include <nvlist/drawing/FontFaces.h>
#include <nvlist/drawing/Surface.h>
#include <nvlist/platform/qt/drawing/QtFace.h>

namespace norvane {

class QtPicture;

/// A surface that draws on a QImage immediately; QtSurface defers that. Coordinates are logical
/// pixels. Each logical pixel covers whole device pixels, so that edges stay sharp at any device
/// pixel ratio.
///
/// A QGuiApplication must exist.
class QtCanvas final : public Surface {
 public:
  /// Starts with one white pixel.
  QtCanvas();

  /// Replaces the image by one in the background colour. If the size has no area, drawing has no
  /// effect. `dpr` is the device pixel ratio; a value of 0 or less counts as 1.
  void resize(QSize logical, qreal dpr);

  /// The image so far, with its device pixel ratio. The reference is valid as long as the surface;
  /// a copy does not follow later drawing.
  const QImage& image();
  qreal devicePixelRatio() const { return dpr_; }
  QSize size() const { return size_; }

  /// Sets the palette that system colours come from. Default: the palette of the application. What
  /// is drawn already does not change.
  void setPalette(const QPalette& palette) { palette_ = palette; }

  /// Throws what PaintPicture would throw for a picture.
  void requireDrawable(const Picture& picture) { drawable(picture); }
  /// Whether a picture was not painted since the last Cls, because it could not be decoded again.
  bool isPictureMissing() const { return isPictureMissing_; }

  void Cls() override;
  /// Coordinates are rounded to the nearest pixel, ties to the even one.
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override;
  /// An empty reference throws Failure 5. The picture of another platform is decoded from the bytes
  /// of its file; if it has none, or none that Qt can decode, this throws Failure 481. A picture
  /// whose pixels cannot be decoded again (QtPicture::image) is not painted.
  void PaintPicture(const Picture& picture, float x, float y) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  /// In whole pixels. A tab extends to the next multiple of eight characters.
  float TextWidth(std::string_view text) override;
  float TextHeight(std::string_view text) override;
  float CurrentX() const override { return currentX_; }
  void CurrentX(float x) override { currentX_ = x; }
  float CurrentY() const override { return currentY_; }
  void CurrentY(float y) override { currentY_ = y; }
  float ScaleWidth() const override { return static_cast<float>(size_.width()); }
  float ScaleHeight() const override { return static_cast<float>(size_.height()); }
  void BackColor(Colour colour) override { backColor_ = colour; }
  void ForeColor(Colour colour) override { foreColor_ = colour; }
  void Font(const norvane::Font& font) override;
  void FontBold(Boolean on) override { faces_.bold(on); }
  void FontItalic(Boolean on) override { faces_.italic(on); }
  void FontUnderline(Boolean on) override { faces_.underline(on); }
  /// The address of the image; the calls that take a handle throw Failure 5 for any other.
  std::uintptr_t hDC() const override { return reinterpret_cast<std::uintptr_t>(&image_); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  /// All lines but the first begin at x 0.
  void Print(std::string_view text) override;

 private:
  struct ShownLine;

  QtFace& face();
  QRgb rgb(Colour colour) const;

  /// The active painter on the image, with the current font and text colour.
  QPainter& painter();
  void endPainter();
  /// The device pixel at which a logical pixel begins.
  int edge(int logical) const { return qRound(logical * dpr_); }
  /// The part of a rectangle that is on the image.
  QRect visiblePart(const Rectangle& rectangle) const;
  void fillAll();
  void fill(int left, int top, int right, int bottom, QRgb colour);
  void drawLine(int x1, int y1, int x2, int y2, QRgb colour);
  void invert(int x, int y);
  const QtPicture& drawable(const Picture& picture);
  double widthWithTabs(const QString& line);
  void drawLine(const ShownLine& line, double x, double tabOrigin, double baseline,
                const QRect& clip);
  void underlineMarked(const ShownLine& line, qsizetype from, qsizetype to, double x,
                       double baseline, const QRect& clip);

  QSize size_{1, 1};
  qreal dpr_ = 1;
  QImage image_;
  QPainter painter_;
  const QtFace* painterFace_ = nullptr;

  QPalette palette_;
  float currentX_ = 0;
  float currentY_ = 0;
  Colour backColor_ = colours::white;
  Colour foreColor_ = 0;
  bool isPictureMissing_ = false;
  FontFaces<std::unique_ptr<QtFace>> faces_;
  /// Pictures of other platforms with their conversions. The reference keeps the address unique.
  std::map<const PictureObject*, std::pair<Picture, Picture>> foreign_;
};

}  // namespace norvane
