#include <nvlist/drawing/RecordingSurface.h>

#include <algorithm>

#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {

void RecordingSurface::resize(float width, float height) {
  width_ = width;
  height_ = height;
}

const Recording& RecordingSurface::image() const {
  if (beforeLook) beforeLook();
  return image_;
}

int RecordingSurface::frames() const {
  if (beforeLook) beforeLook();
  return frames_;
}

void RecordingSurface::replay(Surface& onto) const {
  if (beforeLook) beforeLook();
  onto.BackColor(settingsOfImage_.backColor);
  onto.Font(settingsOfImage_.font);
  onto.ForeColor(settingsOfImage_.foreColor);
  onto.FontBold(settingsOfImage_.bold);
  onto.FontItalic(settingsOfImage_.italic);
  onto.FontUnderline(settingsOfImage_.underline);
  image_.replay(onto);
}

void RecordingSurface::forget() {
  settingsOfImage_ = settings_;
  // Swapped out first, because destroying a picture may run host code that draws. The memory is
  // reused.
  std::vector<SurfaceCall> old;
  old.swap(image_.calls);
  old.clear();
  if (image_.calls.empty()) image_.calls.swap(old);
}

void RecordingSurface::Cls() {
  forget();
  image_.calls.push_back(calls::Cls{});
  currentX_ = 0;
  currentY_ = 0;
  ++frames_;
}

void RecordingSurface::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  image_.calls.push_back(calls::Line{mode, x1, y1, x2, y2, colour});
  currentX_ = x2;
  currentY_ = y2;
}

void RecordingSurface::PSet(float x, float y, Colour colour) {
  image_.calls.push_back(calls::PSet{x, y, colour});
  currentX_ = x;
  currentY_ = y;
}

void RecordingSurface::PaintPicture(const Picture& picture, float x, float y) {
  if (!picture) throw Failure::invalidCall();
  image_.calls.push_back(calls::PaintPicture{picture, x, y, false, 0, 0});
}

void RecordingSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                    float height) {
  if (!picture) throw Failure::invalidCall();
  image_.calls.push_back(calls::PaintPicture{picture, x, y, true, width, height});
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
  image_.calls.push_back(calls::CurrentX{x});
  currentX_ = x;
}

void RecordingSurface::CurrentY(float y) {
  image_.calls.push_back(calls::CurrentY{y});
  currentY_ = y;
}

void RecordingSurface::BackColor(Colour colour) {
  image_.calls.push_back(calls::BackColor{colour});
  settings_.backColor = colour;
}

void RecordingSurface::ForeColor(Colour colour) {
  image_.calls.push_back(calls::ForeColor{colour});
  settings_.foreColor = colour;
}

void RecordingSurface::Font(const norvane::Font& font) {
  if (!font) return;
  image_.calls.push_back(calls::SetFont{font});
  settings_.font = font;
  settings_.bold = font->Bold;
  settings_.italic = font->Italic;
  settings_.underline = font->Underline;
}

void RecordingSurface::FontBold(Boolean on) {
  image_.calls.push_back(calls::FontBold{on});
  settings_.bold = on;
}

void RecordingSurface::FontItalic(Boolean on) {
  image_.calls.push_back(calls::FontItalic{on});
  settings_.italic = on;
}

void RecordingSurface::FontUnderline(Boolean on) {
  image_.calls.push_back(calls::FontUnderline{on});
  settings_.underline = on;
}

void RecordingSurface::DrawTextA(std::uintptr_t, std::string_view text, std::int32_t length,
                                 const Rectangle& rectangle, TextFormat format) {
  if (length >= 0) text = text.substr(0, static_cast<std::size_t>(length));
  image_.calls.push_back(calls::DrawTextA{std::string(text), rectangle, format});
}

void RecordingSurface::DrawFocusRect(std::uintptr_t, const Rectangle& rectangle) {
  image_.calls.push_back(calls::DrawFocusRect{rectangle});
}

void RecordingSurface::StretchDIBits(std::uintptr_t, const Rectangle& target,
                                     const Bitmap24& bitmap) {
  if (!bitmap.isComplete()) throw Failure::invalidCall();
  image_.calls.push_back(calls::StretchDIBits{target, bitmap});
}

void RecordingSurface::Print(std::string_view text) {
  image_.calls.push_back(calls::Print{std::string(text)});
  currentX_ = 0;
  currentY_ += TextHeight(text);
}

}  // namespace norvane
