#include <nvlist/platform/windows/GdiFace.h>

#include <algorithm>
#include <cmath>

#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr float pointsPerInch = 72;
/// Above this height the system draws nothing.
constexpr float maximumHeight = 4096;

HFONT create(const FontObject& font, int dpi) {
  LOGFONTW look{};
  const float height = font.Size * static_cast<float>(dpi) / pointsPerInch;
  look.lfHeight = -static_cast<LONG>(std::lrint(std::clamp(height, 0.0F, maximumHeight)));
  look.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
  look.lfItalic = font.Italic ? TRUE : FALSE;
  look.lfUnderline = font.Underline ? TRUE : FALSE;
  look.lfStrikeOut = font.Strikethrough ? TRUE : FALSE;
  look.lfCharSet = DEFAULT_CHARSET;
  const std::wstring name = wide(font.Name).substr(0, LF_FACESIZE - 1);
  std::copy(name.begin(), name.end(), look.lfFaceName);
  const HFONT result = CreateFontIndirectW(&look);
  if (!result) throw Failure::outOfMemory();
  return result;
}

}  // namespace

GdiFace::GdiFace(HDC dc, const FontObject& font, int dpi) : dc_(dc), handle_(create(font, dpi)) {
  widths_.fill(-1);
  const HGDIOBJ before = SelectObject(dc_, handle_);
  TEXTMETRICW metric{};
  GetTextMetricsW(dc_, &metric);
  SelectObject(dc_, before);
  lineHeight_ = std::max<int>(metric.tmHeight, 1);
  tabStop_ = 8 * std::max<int>(metric.tmAveCharWidth, 1);
  overhang_ = static_cast<int>(metric.tmOverhang);
}

GdiFace::~GdiFace() { DeleteObject(handle_); }

int GdiFace::extentOf(std::wstring_view text) const {
  SIZE size{};
  const HGDIOBJ before = SelectObject(dc_, handle_);
  GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(text.size()), &size);
  SelectObject(dc_, before);
  return size.cx;
}

int GdiFace::widthOf(std::string_view text) {
  int widest = 0;
  forEachLine(text, [&](std::string_view line) {
    widest = std::max(widest, widthOfLine(line));
    return true;
  });
  return widest;
}

int GdiFace::widthOfLine(std::string_view line) {
  int width = 0;
  std::size_t at = 0;
  for (; at < line.size(); ++at) {
    const unsigned character = static_cast<unsigned char>(line[at]);
    if (character < firstPrintable || character > lastPrintable) break;
    int& known = widths_[character - firstPrintable];
    if (known < 0) {
      const auto wideCharacter = static_cast<wchar_t>(character);
      known = extentOf({&wideCharacter, 1}) - overhang_;
    }
    width += known;
  }
  if (at == line.size()) return at == 0 ? 0 : width + overhang_;

  const std::wstring text = wide(line);
  const std::wstring_view all(text);
  width = 0;
  for (std::size_t from = 0;;) {
    const std::size_t tab = all.find(L'\t', from);
    if (tab != from && from < all.size()) width += extentOf(all.substr(from, tab - from));
    if (tab == std::wstring_view::npos) return width;
    width = (width / tabStop_ + 1) * tabStop_;
    from = tab + 1;
  }
}

GdiFaces::GdiFaces() : dc_(CreateCompatibleDC(nullptr)) {
  if (!dc_) throw Failure::outOfMemory();
}

GdiFaces::~GdiFaces() { DeleteDC(dc_); }

std::shared_ptr<GdiFace> GdiFaces::face(const FontObject& font, int dpi) {
  const unsigned flags = (font.Bold ? 1U : 0U) | (font.Italic ? 2U : 0U) |
                         (font.Underline ? 4U : 0U) | (font.Strikethrough ? 8U : 0U);
  const Key key{font.Name, font.Size, flags, dpi};
  if (const auto found = faces_.find(key); found != faces_.end())
    if (auto face = found->second.lock()) return face;
  std::erase_if(faces_, [](const auto& entry) { return entry.second.expired(); });
  auto face = std::make_shared<GdiFace>(dc_, font, dpi);
  faces_[key] = face;
  return face;
}

}  // namespace norvane
