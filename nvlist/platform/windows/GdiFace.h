#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Font.h>

namespace norvane {

/// A font of the system with what measuring texts asks of it, in whole pixels.
class GdiFace {
 public:
  /// Selects the font into `dc` to measure it. The nearest font there is; a size of 0 is that of
  /// the system.
  GdiFace(HDC dc, const FontObject& font, int dpi);
  ~GdiFace();
  GdiFace(const GdiFace&) = delete;
  GdiFace& operator=(const GdiFace&) = delete;

  HFONT handle() const { return handle_; }
  int lineHeight() const { return lineHeight_; }
  /// Of the widest line. A tab goes on to the next stop of eight characters.
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
  /// What synthesised slanted or bold letters add at the end of a text.
  int overhang_ = 0;
  /// Of the printable ASCII characters, -1 until asked for: GDI does not kern, so widths add up.
  std::array<int, lastPrintable - firstPrintable + 1> widths_;
};

/// The faces in use on one thread, shared by everything that draws the same font.
class GdiFaces {
 public:
  GdiFaces();
  ~GdiFaces();
  GdiFaces(const GdiFaces&) = delete;
  GdiFaces& operator=(const GdiFaces&) = delete;

  /// Lives for as long as it is used. The flags of the font count, and pixels an inch.
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
