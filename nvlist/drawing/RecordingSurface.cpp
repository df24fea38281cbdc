#include <nvlist/drawing/RecordingSurface.h>

#include <algorithm>
#include <utility>

#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {

void RecordingSurface::resize(float width, float height) {
  width_ = width;
  height_ = height;
}

const Recording& RecordingSurface::image() const {
  if (beforeLook) beforeLook();
  return frame_.recording;
}

int RecordingSurface::frames() const {
  if (beforeLook) beforeLook();
  return frames_;
}

Colour RecordingSurface::background() const {
  if (beforeLook) beforeLook();
  return frame_.settings.backColor;
}

void RecordingSurface::replay(Surface& onto) const {
  if (beforeLook) beforeLook();
  frame_.replay(onto);
}

void RecordingSurface::Frame::replay(Surface& onto) const {
  onto.BackColor(settings.backColor);
  onto.Font(settings.font);
  onto.ForeColor(settings.foreColor);
  onto.FontBold(settings.bold);
  onto.FontItalic(settings.italic);
  onto.FontUnderline(settings.underline);
  recording.replay(onto);
}

bool RecordingSurface::Settings::operator==(const Settings& other) const {
  return backColor == other.backColor && foreColor == other.foreColor && bold == other.bold &&
         italic == other.italic && underline == other.underline && isSameFont(font, other.font);
}

void RecordingSurface::forget() {
  frame_.settings = settings_;
  // Swapped out first, because destroying a picture may run host code that draws. The memory is
  // reused.
  std::vector<SurfaceCall>& calls = frame_.recording.calls;
  std::vector<SurfaceCall> old;
  old.swap(calls);
  old.clear();
  if (calls.empty()) calls.swap(old);
}

void RecordingSurface::set(SurfaceCall&& call) {
  frame_.recording.calls.push_back(std::move(call));
}

void RecordingSurface::draw(SurfaceCall&& call) {
  frame_.recording.calls.push_back(std::move(call));
  drawn();
}

void RecordingSurface::requireOwn(std::uintptr_t hDC) const {
  if (hDC != this->hDC()) throw Failure::invalidCall();
}

void RecordingSurface::Cls() {
  forget();
  draw(calls::Cls{});
  currentX_ = 0;
  currentY_ = 0;
  ++frames_;
}

void RecordingSurface::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  draw(calls::Line{mode, x1, y1, x2, y2, colour});
  currentX_ = x2;
  currentY_ = y2;
}

void RecordingSurface::PSet(float x, float y, Colour colour) {
  draw(calls::PSet{x, y, colour});
  currentX_ = x;
  currentY_ = y;
}

void RecordingSurface::PaintPicture(const Picture& picture, float x, float y) {
  if (!picture) throw Failure::invalidCall();
  draw(calls::PaintPicture{picture, x, y, false, 0, 0});
}

void RecordingSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                    float height) {
  if (!picture) throw Failure::invalidCall();
  draw(calls::PaintPicture{picture, x, y, true, width, height});
}

float RecordingSurface::TextWidth(std::string_view text) {
  std::size_t widest = 0;
  forEachLine(text, [&](std::string_view line) {
    widest = std::max(widest, characterCount(line));
    return true;
  });
  return static_cast<float>(widest) * (settings_.bold ? measure_.boldWidth : measure_.width);
}

float RecordingSurface::TextHeight(std::string_view text) {
  int lines = 0;
  forEachLine(text, [&](std::string_view) { return ++lines > 0; });
  return static_cast<float>(lines) * measure_.height;
}

void RecordingSurface::CurrentX(float x) {
  set(calls::CurrentX{x});
  currentX_ = x;
}

void RecordingSurface::CurrentY(float y) {
  set(calls::CurrentY{y});
  currentY_ = y;
}

void RecordingSurface::BackColor(Colour colour) {
  set(calls::BackColor{colour});
  settings_.backColor = colour;
}

void RecordingSurface::ForeColor(Colour colour) {
  set(calls::ForeColor{colour});
  settings_.foreColor = colour;
}

void RecordingSurface::Font(const norvane::Font& font) {
  if (!font) return;
  set(calls::SetFont{font});
  settings_.font = font;
  settings_.bold = font->Bold;
  settings_.italic = font->Italic;
  settings_.underline = font->Underline;
}

void RecordingSurface::FontBold(Boolean on) {
  set(calls::FontBold{on});
  settings_.bold = on;
}

void RecordingSurface::FontItalic(Boolean on) {
  set(calls::FontItalic{on});
  settings_.italic = on;
}

void RecordingSurface::FontUnderline(Boolean on) {
  set(calls::FontUnderline{on});
  settings_.underline = on;
}

void RecordingSurface::DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                                 const Rectangle& rectangle, TextFormat format) {
  requireOwn(hDC);
  if (length >= 0) text = text.substr(0, static_cast<std::size_t>(length));
  draw(calls::DrawTextA{std::string(text), rectangle, format});
}

void RecordingSurface::DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) {
  requireOwn(hDC);
  draw(calls::DrawFocusRect{rectangle});
}

void RecordingSurface::StretchDIBits(std::uintptr_t hDC, const Rectangle& target,
                                     const Bitmap24& bitmap) {
  requireOwn(hDC);
  if (!bitmap.isComplete()) throw Failure::invalidCall();
  draw(calls::StretchDIBits{target, bitmap});
}

void RecordingSurface::Print(std::string_view text) {
  draw(calls::Print{std::string(text)});
  currentX_ = 0;
  currentY_ += TextHeight(text);
}

}  // namespace norvane
