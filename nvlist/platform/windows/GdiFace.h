#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Font.h>

namespace norvane {

/// A system font with its metrics, in whole pixels.
class GdiFace {
 public:
  /// Selects the font into `dc` to measure it. Uses the nearest font available; size 0 means the
  /// size of the system font.
  GdiFace(HDC dc, const FontObject& font, int dpi);
  ~GdiFace();
  GdiFace(const GdiFace&) = delete;
  GdiFace& operator=(const GdiFace&) = delete;

  HFONT handle() const { return handle_; }
  int lineHeight() const { return lineHeight_; }
  /// Width of the widest line. A tab advances to the next stop of eight characters.
  int widthOf(std::string_view text);

 private:
  static constexpr unsigned firstPrintable = 0x20;
  static constexpr unsigned lastPrintable = 0x7E;

  int widthOfLine(std::string_view line);
  int extentOf(std::wstring_view text) const;

  HDC dc_;
  HFONT handle_;
  int lineHeight_ = 1;
  int tabStop_ = 1;
  /// What synthesised italic or bold letters add at the end of a text.
  int overhang_ = 0;
  /// Widths of the printable ASCII characters, -1 until measured. GDI does not kern, so widths add
  /// up.
  std::array<int, lastPrintable - firstPrintable + 1> widths_;
};

/// The faces in use on one thread, shared by all surfaces with the same font.
class GdiFaces {
 public:
  GdiFaces();
  ~GdiFaces();
  GdiFaces(const GdiFaces&) = delete;
  GdiFaces& operator=(const GdiFaces&) = delete;

  /// Returns the face for a font with its flags at a resolution in pixels per inch. It lives as
  /// long as it is used.
  std::shared_ptr<GdiFace> face(const FontObject& font, int dpi);

 private:
  struct Key {
    std::string name;
    float size;
    unsigned flags;
    int dpi;
    auto operator<=>(const Key&) const = default;
  };

  HDC dc_;
  std::map<Key, std::weak_ptr<GdiFace>> faces_;
};

}  // namespace norvane
