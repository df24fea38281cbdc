#include <nvlist/platform/qt/QtSurface.h>

#include <utility>

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// More calls than a large window full of rows takes; a host that never clears is drawn in pieces.
constexpr std::size_t mostWaiting = 20000;

}  // namespace

void QtSurface::resize(QSize logical, qreal dpr) {
  canvas_.resize(logical, dpr);
  waiting_.forget();
  drawn();
}

const QImage& QtSurface::image() {
  drawWaiting();
  isChangeTold_ = false;
  return canvas_.image();
}

void QtSurface::drawWaiting() {
  try {
    waiting_.replay(canvas_);
  } catch (...) {
    // Memory has run out in the middle of a frame, and a window that paints itself has nobody to
    // tell. The next frame may fare better.
  }
  waiting_.forget();
}

void QtSurface::drawn() {
  if (waiting_.image().calls.size() > mostWaiting) drawWaiting();
  if (std::exchange(isChangeTold_, true)) return;
  if (onDrawn) onDrawn();
}

void QtSurface::requireOwn(std::uintptr_t hDC) const {
  if (hDC != canvas_.hDC()) throw Failure::invalidCall();
}

void QtSurface::Cls() {
  waiting_.Cls();
  drawn();
}

void QtSurface::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  waiting_.Line(mode, x1, y1, x2, y2, colour);
  drawn();
}

void QtSurface::PSet(float x, float y, Colour colour) {
  waiting_.PSet(x, y, colour);
  drawn();
}

void QtSurface::PaintPicture(const Picture& picture, float x, float y) {
  canvas_.requireDrawable(picture);
  waiting_.PaintPicture(picture, x, y);
  drawn();
}

void QtSurface::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
  canvas_.requireDrawable(picture);
  waiting_.PaintPicture(picture, x, y, width, height);
  drawn();
}

void QtSurface::BackColor(Colour colour) {
  canvas_.BackColor(colour);
  waiting_.BackColor(colour);
}

void QtSurface::Font(const norvane::Font& font) {
  // A copy, as the host may change its own before it is drawn with.
  const norvane::Font own = CloneFont(font);
  canvas_.Font(own);
  waiting_.Font(own);
}

void QtSurface::FontBold(Boolean on) {
  canvas_.FontBold(on);
  waiting_.FontBold(on);
}

void QtSurface::FontItalic(Boolean on) {
  canvas_.FontItalic(on);
  waiting_.FontItalic(on);
}

void QtSurface::FontUnderline(Boolean on) {
  canvas_.FontUnderline(on);
  waiting_.FontUnderline(on);
}

void QtSurface::DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                          const Rectangle& rectangle, TextFormat format) {
  requireOwn(hDC);
  waiting_.DrawTextA(hDC, text, length, rectangle, format);
  drawn();
}

void QtSurface::DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) {
  requireOwn(hDC);
  waiting_.DrawFocusRect(hDC, rectangle);
  drawn();
}

void QtSurface::StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) {
  requireOwn(hDC);
  waiting_.StretchDIBits(hDC, target, bitmap);
  drawn();
}

void QtSurface::Print(std::string_view text) {
  const float top = CurrentY();
  waiting_.Print(text);
  // The recording measures with characters of its own.
  waiting_.CurrentY(top + TextHeight(text));
  drawn();
}

}  // namespace norvane
