#include <nvlist/platform/headless/HeadlessSurface.h>

#include <algorithm>

#include <nvlist/core/text.h>
#include <nvlist/objects/Failure.h>

namespace norvane {
namespace {

/// Calls `take` with each line of a text; CR, LF and both together end one.
template <class Take>
void forEachLine(std::string_view text, Take&& take) {
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    take(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
  }
}

}  // namespace

void HeadlessSurface::resize(float width, float height) {
  width_ = width;
  height_ = height;
}

const Recording& HeadlessSurface::image() const {
  if (beforeLook) beforeLook();
  return image_;
}

int HeadlessSurface::frames() const {
  if (beforeLook) beforeLook();
  return frames_;
}

void HeadlessSurface::replay(Surface& onto) const {
  if (beforeLook) beforeLook();
  onto.BackColor(settingsOfImage_.backColor);
  onto.Font(settingsOfImage_.font);
  onto.ForeColor(settingsOfImage_.foreColor);
  onto.FontBold(settingsOfImage_.bold);
  onto.FontItalic(settingsOfImage_.italic);
  onto.FontUnderline(settingsOfImage_.underline);
  image_.replay(onto);
}

void HeadlessSurface::forget() {
  settingsOfImage_ = settings_;
  // Aside, as a picture that goes may let the host draw. The room is used again.
  std::vector<SurfaceCall> old;
  old.swap(image_.calls);
  old.clear();
  if (image_.calls.empty()) image_.calls.swap(old);
}

void HeadlessSurface::Cls() {
  forget();
  image_.calls.push_back(calls::Cls{});
  currentX_ = 0;
  currentY_ = 0;
  ++frames_;
}

void HeadlessSurface::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  image_.calls.push_back(calls::Line{mode, x1, y1, x2, y2, colour});
  currentX_ = x2;
  currentY_ = y2;
}

void HeadlessSurface::PSet(float x, float y, Colour colour) {
  image_.calls.push_back(calls::PSet{x, y, colour});
  currentX_ = x;
  currentY_ = y;
}

void HeadlessSurface::PaintPicture(const Picture& picture, float x, float y) {
  if (!picture) throw Failure::invalidCall();
  image_.calls.push_back(calls::PaintPicture{picture, x, y, false, 0, 0});
}

void HeadlessSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                   float height) {
  if (!picture) throw Failure::invalidCall();
  image_.calls.push_back(calls::PaintPicture{picture, x, y, true, width, height});
}

float HeadlessSurface::TextWidth(std::string_view text) {
  std::size_t widest = 0;
  forEachLine(text,
              [&](std::string_view line) { widest = std::max(widest, characterCount(line)); });
  return static_cast<float>(widest) * (settings_.bold ? measure_.boldWidth : measure_.width);
}

float HeadlessSurface::TextHeight(std::string_view text) {
  int lines = 0;
  forEachLine(text, [&](std::string_view) { ++lines; });
  return static_cast<float>(lines) * measure_.height;
}

void HeadlessSurface::CurrentX(float x) {
  image_.calls.push_back(calls::CurrentX{x});
  currentX_ = x;
}

void HeadlessSurface::CurrentY(float y) {
  image_.calls.push_back(calls::CurrentY{y});
  currentY_ = y;
}

void HeadlessSurface::BackColor(Colour colour) {
  image_.calls.push_back(calls::BackColor{colour});
  settings_.backColor = colour;
}

void HeadlessSurface::ForeColor(Colour colour) {
  image_.calls.push_back(calls::ForeColor{colour});
  settings_.foreColor = colour;
}

void HeadlessSurface::Font(const norvane::Font& font) {
  if (!font) return;
  image_.calls.push_back(calls::SetFont{font});
  settings_.font = font;
  settings_.bold = font->Bold;
  settings_.italic = font->Italic;
  settings_.underline = font->Underline;
}

void HeadlessSurface::FontBold(Boolean on) {
  image_.calls.push_back(calls::FontBold{on});
  settings_.bold = on;
}

void HeadlessSurface::FontItalic(Boolean on) {
  image_.calls.push_back(calls::FontItalic{on});
  settings_.italic = on;
}

void HeadlessSurface::FontUnderline(Boolean on) {
  image_.calls.push_back(calls::FontUnderline{on});
  settings_.underline = on;
}

void HeadlessSurface::DrawTextA(std::uintptr_t, std::string_view text, std::int32_t length,
                                const Rectangle& rectangle, TextFormat format) {
  if (length >= 0) text = text.substr(0, static_cast<std::size_t>(length));
  image_.calls.push_back(calls::DrawTextA{std::string(text), rectangle, format});
}

void HeadlessSurface::DrawFocusRect(std::uintptr_t, const Rectangle& rectangle) {
  image_.calls.push_back(calls::DrawFocusRect{rectangle});
}

void HeadlessSurface::StretchDIBits(std::uintptr_t, const Rectangle& target,
                                    const Bitmap24& bitmap) {
  if (!bitmap.isComplete()) throw Failure::invalidCall();
  image_.calls.push_back(calls::StretchDIBits{target, bitmap});
}

void HeadlessSurface::Print(std::string_view text) {
  image_.calls.push_back(calls::Print{std::string(text)});
  currentX_ = 0;
  currentY_ += TextHeight(text);
}

}  // namespace norvane
