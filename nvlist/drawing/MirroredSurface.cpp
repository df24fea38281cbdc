#include <nvlist/drawing/MirroredSurface.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace norvane {
namespace {

/// The text as it is shown, without the marks of underlined letters.
std::string shown(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] != '&' || (++i < text.size())) result += text[i];
  return result;
}

}  // namespace

/// A rectangle contains its left edge but not its right one; the mirrored one does so, too.
Rectangle MirroredSurface::mirrored(const Rectangle& rectangle) const {
  if (!isOn_) return rectangle;
  const auto width = static_cast<std::int32_t>(ScaleWidth());
  Rectangle result = rectangle;
  result.Left = width - rectangle.Right;
  result.Right = width - rectangle.Left;
  return result;
}

void MirroredSurface::Cls() {
  canvas_.Cls();
  currentX_ = 0;
}

void MirroredSurface::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  canvas_.Line(mode, pixel(x1), y1, pixel(x2), y2, colour);
  currentX_ = x2;
}

void MirroredSurface::PSet(float x, float y, Colour colour) {
  canvas_.PSet(pixel(x), y, colour);
  currentX_ = x;
}

void MirroredSurface::PaintPicture(const Picture& picture, float x, float y) {
  const float width = picture ? picture->width() : 0;
  canvas_.PaintPicture(picture, leftOf(x, width), y);
}

void MirroredSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                   float height) {
  canvas_.PaintPicture(picture, leftOf(x, width), y, width, height);
}

void MirroredSurface::DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                                const Rectangle& rectangle, TextFormat format) {
  if (!isOn_) return canvas_.DrawTextA(hDC, text, length, rectangle, format);
  Rectangle place = mirrored(rectangle);
  if (format == TextFormat::expandTabs) {
    const auto size = length < 0 ? text.size() : static_cast<std::size_t>(length);
    const float width = std::min(canvas_.TextWidth(shown(text.substr(0, size))), ScaleWidth());
    place.Left = std::max(place.Left, place.Right - static_cast<std::int32_t>(std::ceil(width)));
  }
  canvas_.DrawTextA(hDC, text, length, place, TextFormat::expandTabs);
}

void MirroredSurface::DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) {
  canvas_.DrawFocusRect(hDC, mirrored(rectangle));
}

void MirroredSurface::StretchDIBits(std::uintptr_t hDC, const Rectangle& target,
                                    const Bitmap24& bitmap) {
  canvas_.StretchDIBits(hDC, mirrored(target), bitmap);
}

void MirroredSurface::Print(std::string_view text) {
  canvas_.CurrentX(isOn_ ? leftOf(currentX_, canvas_.TextWidth(text)) : currentX_);
  canvas_.Print(text);
  currentX_ = 0;
}

}  // namespace norvane
