#include <nvlist/drawing/Recording.h>

#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

std::string hex(std::uint32_t byte) { return hexTextOf(byte & 0xFF, 2); }

}  // namespace

std::string textOfColour(Colour colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  if (isSystemColour(colour)) return "system " + std::to_string(bits & 0xFF);
  return "#" + hex(bits) + hex(bits >> 8) + hex(bits >> 16);
}

std::string quotedText(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F)
      result += "\\x" + hex(byte);
    else if (c == '"' || c == '\\')
      result += {'\\', c};
    else
      result += c;
  }
  return result + "\"";
}

namespace {

std::string point(float x, float y) { return "(" + textOf(x) + ", " + textOf(y) + ")"; }

std::string textOfRectangle(const Rectangle& r) {
  return point(static_cast<float>(r.Left), static_cast<float>(r.Top)) + "-" +
         point(static_cast<float>(r.Right), static_cast<float>(r.Bottom));
}

std::string textOfPicture(const Picture& picture) {
  if (!picture) return "none";
  const std::string size = textOf(picture->width()) + "x" + textOf(picture->height());
  const std::string description = picture->description();
  return description.empty() ? size : size + " " + quotedText(description);
}

std::string onOff(Boolean on) { return on ? "on" : "off"; }

struct Printer {
  std::string operator()(const calls::Cls&) const { return "Cls"; }
  std::string operator()(const calls::Line& call) const {
    return "Line " + std::to_string(static_cast<int>(call.mode)) + " " + point(call.x1, call.y1) +
           "-" + point(call.x2, call.y2) + " " + textOfColour(call.colour);
  }
  std::string operator()(const calls::PSet& call) const {
    return "PSet " + point(call.x, call.y) + " " + textOfColour(call.colour);
  }
  std::string operator()(const calls::PaintPicture& call) const {
    std::string result = "PaintPicture " + textOfPicture(call.picture);
    result += " at " + point(call.x, call.y);
    if (call.isScaled) result += " as " + textOf(call.width) + "x" + textOf(call.height);
    return result;
  }
  std::string operator()(const calls::CurrentX& call) const { return "CurrentX " + textOf(call.x); }
  std::string operator()(const calls::CurrentY& call) const { return "CurrentY " + textOf(call.y); }
  std::string operator()(const calls::BackColor& call) const {
    return "BackColor " + textOfColour(call.colour);
  }
  std::string operator()(const calls::ForeColor& call) const {
    return "ForeColor " + textOfColour(call.colour);
  }
  std::string operator()(const calls::SetFont& call) const {
    return call.font ? "Font " + quotedText(call.font->Name) + " " + textOf(call.font->Size)
                     : "Font none";
  }
  std::string operator()(const calls::FontBold& call) const { return "FontBold " + onOff(call.on); }
  std::string operator()(const calls::FontItalic& call) const {
    return "FontItalic " + onOff(call.on);
  }
  std::string operator()(const calls::FontUnderline& call) const {
    return "FontUnderline " + onOff(call.on);
  }
  std::string operator()(const calls::DrawTextA& call) const {
    return "DrawTextA " + quotedText(call.text) + " " + textOfRectangle(call.rectangle) + " " +
           std::to_string(static_cast<unsigned>(call.format));
  }
  std::string operator()(const calls::DrawFocusRect& call) const {
    return "DrawFocusRect " + textOfRectangle(call.rectangle);
  }
  std::string operator()(const calls::StretchDIBits& call) const {
    const Bitmap24& bitmap = call.bitmap;
    return "StretchDIBits " + std::to_string(bitmap.width) + "x" + std::to_string(bitmap.height) +
           " " + textOfRectangle(call.target) + " " + textOfColour(bitmap.pixel(0, 0)) + ".." +
           textOfColour(bitmap.pixel(bitmap.width - 1, bitmap.height - 1));
  }
  std::string operator()(const calls::Print& call) const {
    return "Print " + quotedText(call.text);
  }
};

struct Player {
  Surface& onto;

  void operator()(const calls::Cls&) const { onto.Cls(); }
  void operator()(const calls::Line& call) const {
    onto.Line(call.mode, call.x1, call.y1, call.x2, call.y2, call.colour);
  }
  void operator()(const calls::PSet& call) const { onto.PSet(call.x, call.y, call.colour); }
  void operator()(const calls::PaintPicture& call) const {
    if (call.isScaled)
      onto.PaintPicture(call.picture, call.x, call.y, call.width, call.height);
    else
      onto.PaintPicture(call.picture, call.x, call.y);
  }
  void operator()(const calls::CurrentX& call) const { onto.CurrentX(call.x); }
  void operator()(const calls::CurrentY& call) const { onto.CurrentY(call.y); }
  void operator()(const calls::BackColor& call) const { onto.BackColor(call.colour); }
  void operator()(const calls::ForeColor& call) const { onto.ForeColor(call.colour); }
  void operator()(const calls::SetFont& call) const { onto.Font(call.font); }
  void operator()(const calls::FontBold& call) const { onto.FontBold(call.on); }
  void operator()(const calls::FontItalic& call) const { onto.FontItalic(call.on); }
  void operator()(const calls::FontUnderline& call) const { onto.FontUnderline(call.on); }
  void operator()(const calls::DrawTextA& call) const {
    onto.DrawTextA(onto.hDC(), call.text, -1, call.rectangle, call.format);
  }
  void operator()(const calls::DrawFocusRect& call) const {
    onto.DrawFocusRect(onto.hDC(), call.rectangle);
  }
  void operator()(const calls::StretchDIBits& call) const {
    onto.StretchDIBits(onto.hDC(), call.target, call.bitmap);
  }
  void operator()(const calls::Print& call) const { onto.Print(call.text); }
};

}  // namespace

std::string Recording::text() const {
  std::string result;
  for (const SurfaceCall& call : calls) result += std::visit(Printer{}, call) + "\n";
  return result;
}

void Recording::replay(Surface& onto) const {
  for (const SurfaceCall& call : calls) std::visit(Player{onto}, call);
}

}  // namespace norvane
