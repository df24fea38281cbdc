#include <nvlist/platform/windows/GdiCanvas.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/drawing/pixels.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

/// Converts the byte order of a Colour to that of an image, which begins with blue.
std::uint32_t pixelOf(Colour colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  return (bits & 0xFF) << 16 | (bits & 0xFF00) | (bits >> 16 & 0xFF);
}

HBRUSH brushOf(HDC dc, COLORREF colour) {
  SetDCBrushColor(dc, colour);
  return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

}  // namespace

COLORREF GdiCanvas::colourRef(Colour colour) {
  return isSystemColour(colour) ? GetSysColor(colour & 0xFF)
                                : static_cast<COLORREF>(colour & 0xFFFFFF);
}

GdiCanvas::~GdiCanvas() { dropImage(); }

// ---- the image ----

void GdiCanvas::resize(int width, int height) {
  dropImage();
  width_ = std::clamp(width, 0, farthestPixel);
  height_ = std::clamp(height, 0, farthestPixel);
}

void GdiCanvas::resolution(int dpi) {
  if (std::exchange(dpi_, dpi) != dpi) faces_.drop();
}

void GdiCanvas::dropImage() {
  if (dc_) {
    SelectObject(dc_, imageBefore_);
    SelectObject(dc_, fontBefore_);
    DeleteDC(std::exchange(dc_, nullptr));
  }
  if (image_) DeleteObject(std::exchange(image_, nullptr));
  pixels_ = nullptr;
}

HDC GdiCanvas::dc() {
  if (dc_) return dc_;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = std::max(width_, 1);
  info.bmiHeader.biHeight = -std::max(height_, 1);
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* pixels = nullptr;
  dc_ = CreateCompatibleDC(nullptr);
  if (dc_) image_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (!image_) {
    if (dc_) DeleteDC(std::exchange(dc_, nullptr));
    throw Failure::outOfMemory();
  }
  pixels_ = static_cast<std::uint32_t*>(pixels);
  imageBefore_ = SelectObject(dc_, image_);
  fontBefore_ = GetCurrentObject(dc_, OBJ_FONT);
  SetBkMode(dc_, TRANSPARENT);
  fill(0, 0, width_, height_, backColor_);
  return dc_;
}

void GdiCanvas::copyTo(HDC target, int x, int y, int width, int height, int fromX, int fromY) {
  BitBlt(target, x, y, width, height, dc(), fromX, fromY, SRCCOPY);
}

// ---- lines, boxes and pictures ----

void GdiCanvas::fill(int left, int top, int right, int bottom, Colour colour) {
  const RECT box{left, top, right, bottom};
  const HDC on = dc();
  FillRect(on, &box, brushOf(on, colourRef(colour)));
}

void GdiCanvas::Cls() {
  fill(0, 0, width_, height_, backColor_);
  currentX_ = currentY_ = 0;
}

void GdiCanvas::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  currentX_ = x2;
  currentY_ = y2;
  const auto [left, right] = std::minmax({nearestPixel(x1), nearestPixel(x2)});
  const auto [top, bottom] = std::minmax({nearestPixel(y1), nearestPixel(y2)});
  if (mode == LineMode::filledBox) {
    fill(left, top, right + 1, bottom + 1, colour);
    return;
  }
  const HDC on = dc();
  if (mode == LineMode::outlineBox) {
    const RECT box{left, top, right + 1, bottom + 1};
    FrameRect(on, &box, brushOf(on, colourRef(colour)));
    return;
  }
  const HGDIOBJ pen = SelectObject(on, GetStockObject(DC_PEN));
  SetDCPenColor(on, colourRef(colour));
  MoveToEx(on, nearestPixel(x1), nearestPixel(y1), nullptr);
  LineTo(on, nearestPixel(x2), nearestPixel(y2));
  SelectObject(on, pen);
}

void GdiCanvas::PSet(float x, float y, Colour colour) {
  SetPixelV(dc(), nearestPixel(x), nearestPixel(y), colourRef(colour));
  currentX_ = x;
  currentY_ = y;
}

void GdiCanvas::requireDrawable(const Picture& picture) {
  // The library's own pictures always are. Decoding them only when they are drawn makes a new
  // control twice as fast.
  if (!dynamic_cast<const art::DrawnPicture*>(picture.get())) apartment_->drawable(picture);
}

void GdiCanvas::PaintPicture(const Picture& picture, float x, float y) {
  const OlePicture& shown = apartment_->drawable(picture);
  PaintPicture(picture, x, y, shown.width(), shown.height());
}

void GdiCanvas::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
  const OlePicture& shown = apartment_->drawable(picture);
  const int wide = nearestPixel(width);
  const int high = nearestPixel(height);
  if (wide <= 0 || high <= 0) return;
  const HDC on = dc();
  // Integer multiples are scaled without smoothing; anything else would look ragged.
  const bool isWhole =
      std::fmod(width, shown.width()) == 0 && std::fmod(height, shown.height()) == 0;
  SetStretchBltMode(on, isWhole ? COLORONCOLOR : HALFTONE);
  SetBrushOrgEx(on, 0, 0, nullptr);
  shown.render(on, nearestPixel(x), nearestPixel(y), wide, high);
}

/// Writes into the image directly, because the result of GDI's own scaling depends on the driver.
void GdiCanvas::StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) {
  if (hDC != this->hDC() || !bitmap.isComplete()) throw Failure::invalidCall();
  const int left = std::max(target.Left, 0);
  const int right = std::min(target.Right, width_);
  const int top = std::max(target.Top, 0);
  const int bottom = std::min(target.Bottom, height_);
  if (left >= right || top >= bottom) return;
  dc();
  // GDI must finish its pending drawing first.
  GdiFlush();
  std::vector<std::uint32_t> line(static_cast<std::size_t>(right - left));
  int rowInLine = -1;
  for (int y = top; y < bottom; ++y) {
    const int row = bitmap.height - 1 - nearestOf(bitmap.height, y, target.Top, target.Bottom);
    if (std::exchange(rowInLine, row) != row)
      for (int x = left; x < right; ++x)
        line[static_cast<std::size_t>(x - left)] =
            pixelOf(bitmap.pixel(nearestOf(bitmap.width, x, target.Left, target.Right), row));
    std::copy(line.begin(), line.end(), pixels_ + std::ptrdiff_t{y} * std::max(width_, 1) + left);
  }
}

void GdiCanvas::DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) {
  if (hDC != this->hDC()) throw Failure::invalidCall();
  const RECT box{rectangle.Left, rectangle.Top, rectangle.Right, rectangle.Bottom};
  const HDC on = dc();
  SetTextColor(on, 0);
  ::DrawFocusRect(on, &box);
}

// ---- texts ----

GdiFace& GdiCanvas::face() {
  std::shared_ptr<GdiFace>& face = faces_.current();
  if (!face) {
    if (dpi_ == 0) dpi_ = screenResolution().cy;
    face = apartment_->faces().face(faces_.font(), dpi_);
  }
  return *face;
}

HDC GdiCanvas::textDc() {
  const HDC on = dc();
  SelectObject(on, face().handle());
  SetTextColor(on, colourRef(foreColor_));
  return on;
}

float GdiCanvas::TextWidth(std::string_view text) {
  return static_cast<float>(face().widthOf(text));
}

float GdiCanvas::TextHeight(std::string_view text) {
  int lines = 0;
  forEachLine(text, [&](std::string_view) { return ++lines > 0; });
  return static_cast<float>(lines) * static_cast<float>(face().lineHeight());
}

void GdiCanvas::DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                          const Rectangle& rectangle, TextFormat format) {
  if (hDC != this->hDC()) throw Failure::invalidCall();
  if (length >= 0) text = text.substr(0, static_cast<std::size_t>(length));
  const std::wstring shown = wide(text);
  const auto count = static_cast<UINT>(shown.size());
  RECT box{rectangle.Left, rectangle.Top, rectangle.Right, rectangle.Bottom};
  // The same pixels a quarter faster, for the texts that most rows have.
  if (format == TextFormat::expandTabs && text.find_first_of("&\t\r\n") == text.npos)
    ExtTextOutW(textDc(), box.left, box.top, ETO_CLIPPED, &box, shown.data(), count, nullptr);
  else
    DrawTextW(textDc(), shown.data(), static_cast<int>(count), &box, static_cast<UINT>(format));
}

void GdiCanvas::Print(std::string_view text) {
  const HDC on = textDc();
  int x = nearestPixel(currentX_);
  int y = nearestPixel(currentY_);
  forEachLine(text, [&](std::string_view line) {
    const std::wstring shown = wide(line);
    RECT box{x, y, farthestPixel, y + face().lineHeight()};
    DrawTextW(on, shown.data(), static_cast<int>(shown.size()), &box,
              DT_NOPREFIX | DT_EXPANDTABS | DT_SINGLELINE);
    x = 0;
    y += face().lineHeight();
    return true;
  });
  currentX_ = 0;
  currentY_ += TextHeight(text);
}

}  // namespace norvane
