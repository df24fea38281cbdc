#include <nvlist/drawing/DeferredSurface.h>

#include <utility>

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// More calls than a large window full of rows needs. If a host never clears the surface, drawing
/// is flushed at this many calls.
constexpr std::size_t maximumWaiting = 20000;

}  // namespace

void DeferredSurface::dropWaiting() {
  waiting_.forget();
  drawn();
}

void DeferredSurface::drawWaiting() {
  flush();
  isChangeReported_ = false;
}

void DeferredSurface::flush() {
  try {
    waiting_.replay(canvas_);
  } catch (...) {
    // Memory ran out within a frame. The next frame may succeed.
  }
  waiting_.forget();
}

void DeferredSurface::drawn() {
  if (waiting_.image().calls.size() > maximumWaiting) flush();
  if (std::exchange(isChangeReported_, true)) return;
  if (onDrawn) onDrawn();
}

void DeferredSurface::requireOwn(std::uintptr_t hDC) const {
  if (hDC != canvas_.hDC()) throw Failure::invalidCall();
}

void DeferredSurface::Cls() {
  waiting_.Cls();
  drawn();
}

void DeferredSurface::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  waiting_.Line(mode, x1, y1, x2, y2, colour);
  drawn();
}

void DeferredSurface::PSet(float x, float y, Colour colour) {
  waiting_.PSet(x, y, colour);
  drawn();
}

void DeferredSurface::PaintPicture(const Picture& picture, float x, float y) {
  requireDrawable(picture);
  waiting_.PaintPicture(picture, x, y);
  drawn();
}

void DeferredSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                   float height) {
  requireDrawable(picture);
  waiting_.PaintPicture(picture, x, y, width, height);
  drawn();
}

void DeferredSurface::BackColor(Colour colour) {
  canvas_.BackColor(colour);
  waiting_.BackColor(colour);
}

void DeferredSurface::Font(const norvane::Font& font) {
  // A copy, because the host may change its font before the calls are drawn.
  const norvane::Font own = CloneFont(font);
  canvas_.Font(own);
  waiting_.Font(own);
}

void DeferredSurface::FontBold(Boolean on) {
  canvas_.FontBold(on);
  waiting_.FontBold(on);
}

void DeferredSurface::FontItalic(Boolean on) {
  canvas_.FontItalic(on);
  waiting_.FontItalic(on);
}

void DeferredSurface::FontUnderline(Boolean on) {
  canvas_.FontUnderline(on);
  waiting_.FontUnderline(on);
}

void DeferredSurface::DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                                const Rectangle& rectangle, TextFormat format) {
  requireOwn(hDC);
  waiting_.DrawTextA(hDC, text, length, rectangle, format);
  drawn();
}

void DeferredSurface::DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) {
  requireOwn(hDC);
  waiting_.DrawFocusRect(hDC, rectangle);
  drawn();
}

void DeferredSurface::StretchDIBits(std::uintptr_t hDC, const Rectangle& target,
                                    const Bitmap24& bitmap) {
  requireOwn(hDC);
  waiting_.StretchDIBits(hDC, target, bitmap);
  drawn();
}

void DeferredSurface::Print(std::string_view text) {
  const float top = CurrentY();
  waiting_.Print(text);
  // The recording uses a fixed character size instead of measuring the font.
  waiting_.CurrentY(top + TextHeight(text));
  drawn();
}

}  // namespace norvane
