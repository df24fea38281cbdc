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
  drawAnew();
  forget();
  drawn();
}

void DeferredSurface::drawWaiting() {
  flush();
  isChangeReported_ = false;
}

bool DeferredSurface::isChanged() {
  if (isChangeReported_ && isShown()) drawWaiting();
  return isChangeReported_;
}

void DeferredSurface::drawAnew() { std::vector<SurfaceCall>().swap(shown_.recording.calls); }

bool DeferredSurface::isShown() { return !shown_.recording.calls.empty() && frame() == shown_; }

void DeferredSurface::flush() {
  const std::vector<SurfaceCall>& waiting = frame().recording.calls;
  if (!waiting.empty() && !isShown()) {
    const bool isWhole = std::holds_alternative<calls::Cls>(waiting.front());
    // Memory may run out within a frame. The next one may succeed.
    const bool isDrawn = ignoringFailures([&] { frame().replay(canvas_); });
    std::swap(frame(), shown_);
    if (!isWhole || !isDrawn) drawAnew();
  }
  forget();
}

void DeferredSurface::drawn() {
  if (frame().recording.calls.size() > maximumWaiting) flush();
  if (std::exchange(isChangeReported_, true)) return;
  if (onDrawn) onDrawn();
}

void DeferredSurface::PaintPicture(const Picture& picture, float x, float y) {
  requireDrawable(picture);
  RecordingSurface::PaintPicture(picture, x, y);
}

void DeferredSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                   float height) {
  requireDrawable(picture);
  RecordingSurface::PaintPicture(picture, x, y, width, height);
}

void DeferredSurface::BackColor(Colour colour) {
  canvas_.BackColor(colour);
  RecordingSurface::BackColor(colour);
}

void DeferredSurface::Font(const norvane::Font& font) {
  // A copy, because the host may change its font before the calls are drawn.
  const norvane::Font own = CloneFont(font);
  canvas_.Font(own);
  RecordingSurface::Font(own);
}

void DeferredSurface::FontBold(Boolean on) {
  canvas_.FontBold(on);
  RecordingSurface::FontBold(on);
}

void DeferredSurface::FontItalic(Boolean on) {
  canvas_.FontItalic(on);
  RecordingSurface::FontItalic(on);
}

void DeferredSurface::FontUnderline(Boolean on) {
  canvas_.FontUnderline(on);
  RecordingSurface::FontUnderline(on);
}

}  // namespace norvane
