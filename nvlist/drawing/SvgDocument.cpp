#include <nvlist/drawing/SvgDocument.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

#include <nvlist/drawing/RecordingSurface.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

/// RRGGBB by index.
constexpr const char* systemColours[] = {
    "D4D0C8", "004E98", "0054E3", "7A96DF", "FFFFFF", "FFFFFF", "000000", "000000", "000000",
    "FFFFFF", "D4D0C8", "D4D0C8", "808080", "316AC5", "FFFFFF", "ECE9D8", "ACA899", "ACA899",
    "000000", "D8E4F8", "FFFFFF", "716F64", "F1EFE2", "000000", "FFFFE1"};

std::string svgColour(Colour colour) {
  if (!isSystemColour(colour)) return textOfColour(colour & 0xFFFFFF);
  const auto index = static_cast<std::size_t>(colour & 0xFF);
  return std::string("#") + (index < std::size(systemColours) ? systemColours[index] : "000000");
}

void appendEscaped(std::string& out, char32_t character) {
  const bool isAllowed =
      character >= 0x20 && character != 0xFFFE && character != 0xFFFF && character < firstStrayByte;
  if (character == '<')
    out += "&lt;";
  else if (character == '>')
    out += "&gt;";
  else if (character == '&')
    out += "&amp;";
  else if (character == '"')
    out += "&quot;";
  else
    appendUtf8(out, isAllowed ? character : 0xFFFD);
}

/// One line of a text as the contents of an element: without its &, the characters after them
/// underlined, and with tabs as blanks.
std::string escapedLine(std::string_view line, bool expandsTabs) {
  constexpr int tabStop = 8;
  std::string result;
  int column = 0;
  for (std::size_t at = 0; at < line.size(); ++column) {
    char32_t character = decodeNext(line, at);
    const bool isMarked = character == '&' && at < line.size();
    if (isMarked) character = decodeNext(line, at);
    if (character == '&' && !isMarked) {
      --column;
    } else if (character == '\t') {
      const int blanks = expandsTabs ? tabStop - column % tabStop : 1;
      result.append(static_cast<std::size_t>(blanks), ' ');
      column += blanks - 1;
    } else if (isMarked && character != '&') {
      result += "<tspan text-decoration=\"underline\">";
      appendEscaped(result, character);
      result += "</tspan>";
    } else {
      appendEscaped(result, character);
    }
  }
  return result;
}

/// The media type of a picture file by its first bytes; empty for those that browsers do not show.
std::string_view mediaType(std::string_view file) {
  if (file.starts_with("\x89PNG")) return "image/png";
  if (file.starts_with("GIF8")) return "image/gif";
  if (file.starts_with("\xFF\xD8\xFF")) return "image/jpeg";
  if (file.starts_with("BM")) return "image/bmp";
  if (file.starts_with(std::string_view("\0\0\1\0", 4))) return "image/x-icon";
  return {};
}

std::string base64(std::string_view bytes) {
  constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string result;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    std::uint32_t three = 0;
    for (std::size_t i = at; i < at + 3; ++i)
      three = three << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    for (std::size_t digit = 0; digit < 4; ++digit)
      result += at + digit > bytes.size() ? '=' : digits[three >> (18 - 6 * digit) & 63];
  }
  return result;
}

std::string attribute(std::string_view name, float value) {
  return " " + std::string(name) + "=\"" + textOf(value) + "\"";
}

std::string box(float x, float y, float width, float height) {
  return attribute("x", x) + attribute("y", y) + attribute("width", width) +
         attribute("height", height);
}

}  // namespace

/// Collects the elements of one surface. Lines and boxes cover whole pixels, as on a screen.
class SvgDocument::SvgSurface final : public Surface {
 public:
  SvgSurface(float x, float y, float width, float height)
      : x_(x), y_(y), width_(width), height_(height) {}

  std::string element() const {
    return "<svg" + box(x_, y_, width_, height_) + ">\n" + elements_ + "</svg>\n";
  }

  void Cls() override {
    elements_.clear();
    fill(0, 0, width_, height_, backColor_);
    x1_ = y1_ = 0;
  }
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override {
    fill(x, y, 1, 1, colour);
    x1_ = x;
    y1_ = y;
  }
  void PaintPicture(const Picture& picture, float x, float y) override {
    if (!picture) throw Failure::invalidCall();
    PaintPicture(picture, x, y, picture->width(), picture->height());
  }
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  float TextWidth(std::string_view text) override { return measuring_.TextWidth(text); }
  float TextHeight(std::string_view text) override { return measuring_.TextHeight(text); }
  float CurrentX() const override { return x1_; }
  void CurrentX(float x) override { x1_ = x; }
  float CurrentY() const override { return y1_; }
  void CurrentY(float y) override { y1_ = y; }
  float ScaleWidth() const override { return width_; }
  float ScaleHeight() const override { return height_; }
  void BackColor(Colour colour) override { backColor_ = colour; }
  void ForeColor(Colour colour) override { foreColor_ = colour; }
  void Font(const norvane::Font& font) override {
    if (font) font_ = *font;
  }
  void FontBold(Boolean on) override { font_.Bold = on; }
  void FontItalic(Boolean on) override { font_.Italic = on; }
  void FontUnderline(Boolean on) override { font_.Underline = on; }
  std::uintptr_t hDC() const override { return reinterpret_cast<std::uintptr_t>(this); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  void Print(std::string_view text) override;

 private:
  void fill(float x, float y, float width, float height, Colour colour) {
    elements_ += "<rect" + box(x, y, width, height) + " fill=\"" + svgColour(colour) + "\"/>\n";
  }
  void appendText(float x, float y, std::string_view text, const char* anchor, bool expandsTabs);
  std::string fontAttributes() const;
  std::string decoration() const;

  const float x_, y_, width_, height_;
  RecordingSurface measuring_{0, 0};
  float x1_ = 0;
  float y1_ = 0;
  Colour backColor_ = colours::white;
  Colour foreColor_ = 0;
  FontObject font_;
  std::string elements_;
};

void SvgDocument::SvgSurface::Line(LineMode mode, float x1, float y1, float x2, float y2,
                                   Colour colour) {
  x1_ = x2;
  y1_ = y2;
  const float left = std::min(x1, x2), top = std::min(y1, y2);
  const float width = std::abs(x2 - x1), height = std::abs(y2 - y1);
  if (mode == LineMode::filledBox) {
    fill(left, top, width + 1, height + 1, colour);
  } else if (mode == LineMode::outlineBox) {
    elements_ += "<rect" + box(left + 0.5F, top + 0.5F, width, height) +
                 " fill=\"none\" stroke=\"" + svgColour(colour) + "\"/>\n";
  } else if (y1 == y2) {
    fill(x1 <= x2 ? x1 : x2 + 1, y1, width, 1, colour);
  } else if (x1 == x2) {
    fill(x1, y1 <= y2 ? y1 : y2 + 1, 1, height, colour);
  } else {
    elements_ += "<line" + attribute("x1", x1 + 0.5F) + attribute("y1", y1 + 0.5F) +
                 attribute("x2", x2 + 0.5F) + attribute("y2", y2 + 0.5F) + " stroke=\"" +
                 svgColour(colour) + "\"/>\n";
  }
}

void SvgDocument::SvgSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                           float height) {
  if (!picture) throw Failure::invalidCall();
  const std::vector<std::byte> bytes = picture->fileBytes();
  const std::string_view file(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::string_view type = mediaType(file);
  if (type.empty()) return;
  elements_ += "<image" + box(x, y, width, height) +
               " preserveAspectRatio=\"none\" href=\"data:" + std::string(type) + ";base64," +
               base64(file) + "\"/>\n";
}

std::string SvgDocument::SvgSurface::fontAttributes() const {
  constexpr float pixelsPerPoint = 96.0F / 72;
  std::string result = " font-family=\"";
  // Quotes could end the name.
  for (std::size_t at = 0; at < font_.Name.size();)
    if (const char32_t character = decodeNext(font_.Name, at); character != '\'')
      appendEscaped(result, character);
  result += ", Tahoma, 'DejaVu Sans Condensed', 'DejaVu Sans', sans-serif\"";
  result += attribute("font-size", font_.Size * pixelsPerPoint);
  if (font_.Bold) result += " font-weight=\"bold\"";
  if (font_.Italic) result += " font-style=\"italic\"";
  return result + " fill=\"" + svgColour(foreColor_) + "\"";
}

/// Texts do not inherit this one, so each has it.
std::string SvgDocument::SvgSurface::decoration() const {
  if (!font_.Underline && !font_.Strikethrough) return {};
  return std::string(" text-decoration=\"") + (font_.Underline ? "underline" : "") +
         (font_.Underline && font_.Strikethrough ? " " : "") +
         (font_.Strikethrough ? "line-through" : "") + "\"";
}

/// Writes lines from the point on down.
void SvgDocument::SvgSurface::appendText(float x, float y, std::string_view text,
                                         const char* anchor, bool expandsTabs) {
  // Where letters stand on a line, as part of its height.
  constexpr float baseline = 0.79F;
  const float lineHeight = TextHeight("");
  elements_ += "<g" + fontAttributes() + " xml:space=\"preserve\" text-anchor=\"" + anchor + "\">";
  forEachLine(text, [&](std::string_view line) {
    elements_ += "<text" + attribute("x", x) +
                 attribute("y", y + std::round(lineHeight * baseline)) + decoration() + ">" +
                 escapedLine(line, expandsTabs) + "</text>";
    y += lineHeight;
    return true;
  });
  elements_ += "</g>\n";
}

void SvgDocument::SvgSurface::DrawTextA(std::uintptr_t, std::string_view text, std::int32_t length,
                                        const Rectangle& rectangle, TextFormat format) {
  if (length >= 0) text = text.substr(0, static_cast<std::size_t>(length));
  const auto width = static_cast<float>(rectangle.Right) - static_cast<float>(rectangle.Left);
  const auto height = static_cast<float>(rectangle.Bottom) - static_cast<float>(rectangle.Top);
  if (width <= 0 || height <= 0) return;
  elements_ +=
      "<svg" +
      box(static_cast<float>(rectangle.Left), static_cast<float>(rectangle.Top), width, height) +
      ">";
  if (format == TextFormat::right)
    appendText(width, 0, text, "end", false);
  else
    appendText(0, 0, text, "start", true);
  elements_ += "</svg>\n";
}

void SvgDocument::SvgSurface::DrawFocusRect(std::uintptr_t, const Rectangle& rectangle) {
  const auto left = static_cast<float>(rectangle.Left), top = static_cast<float>(rectangle.Top);
  const float width = static_cast<float>(rectangle.Right) - left - 1;
  const float height = static_cast<float>(rectangle.Bottom) - top - 1;
  if (width <= 0 || height <= 0) return;
  elements_ += "<rect" + box(left + 0.5F, top + 0.5F, width, height) +
               " fill=\"none\" stroke=\"#000000\" stroke-dasharray=\"1 1\"/>\n";
}

/// Each run of equal pixels becomes a box, because viewers blend the pixels of scaled pictures.
void SvgDocument::SvgSurface::StretchDIBits(std::uintptr_t, const Rectangle& target,
                                            const Bitmap24& bitmap) {
  if (!bitmap.isComplete()) throw Failure::invalidCall();
  const auto left = static_cast<float>(target.Left), top = static_cast<float>(target.Top);
  const float width = (static_cast<float>(target.Right) - left) / static_cast<float>(bitmap.width);
  const float height =
      (static_cast<float>(target.Bottom) - top) / static_cast<float>(bitmap.height);
  for (std::int32_t row = 0; row < bitmap.height; ++row)
    for (std::int32_t column = 0, end = 0; column < bitmap.width; column = end) {
      const Colour colour = bitmap.pixel(column, row);
      while (end < bitmap.width && bitmap.pixel(end, row) == colour) ++end;
      fill(left + static_cast<float>(column) * width,
           top + static_cast<float>(bitmap.height - 1 - row) * height,
           static_cast<float>(end - column) * width, height, colour);
    }
}

void SvgDocument::SvgSurface::Print(std::string_view text) {
  appendText(x1_, y1_, text, "start", false);
  x1_ = 0;
  y1_ += TextHeight(text);
}

SvgDocument::SvgDocument(float width, float height) : width_(width), height_(height) {}
SvgDocument::~SvgDocument() = default;

Surface& SvgDocument::add(float x, float y, float width, float height) {
  return *surfaces_.emplace_back(std::make_unique<SvgSurface>(x, y, width, height));
}

std::string SvgDocument::text() const {
  std::string result = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute("width", width_) +
                       attribute("height", height_) + " shape-rendering=\"crispEdges\">\n";
  for (const auto& surface : surfaces_) result += surface->element();
  return result + "</svg>\n";
}

}  // namespace norvane
