#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Font.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Rectangle.h>

namespace norvane {

/// How Surface::Line draws.
enum class LineMode : std::int32_t {
  plainLine = 6,    ///< a line from the first point to the second, excluding the second
  outlineBox = 22,  ///< the outline of the rectangle between the points
  filledBox = 38    ///< that rectangle filled, outline included
};

/// How Surface::DrawTextA lays out a text. Both allow several lines.
enum class TextFormat : std::uint32_t {
  right = 2,       ///< right-aligned; tabs are not expanded
  expandTabs = 64  ///< left-aligned; a tab advances to the next stop of eight characters
};

/// A 24-bit bitmap: three bytes per pixel (blue, green, red), rows from the bottom up. Each row is
/// padded to a multiple of four bytes, except that a bitmap of one row is not padded.
struct Bitmap24 {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::vector<std::uint8_t> bytes;

  bool operator==(const Bitmap24&) const = default;

  /// Whether the bitmap has pixels, and enough bytes for all of them.
  bool isComplete() const {
    return width > 0 && height > 0 &&
           bytes.size() / rowLength() >= static_cast<std::size_t>(height);
  }

  /// A pixel of a complete bitmap; row 0 is the lowest.
  Colour pixel(std::int32_t column, std::int32_t row) const {
    const std::uint8_t* const channels = bytes.data() +
                                         static_cast<std::size_t>(row) * rowLength() +
                                         static_cast<std::size_t>(column) * 3;
    return channels[2] | channels[1] << 8 | channels[0] << 16;
  }

 private:
  std::size_t rowLength() const {
    const std::size_t length = static_cast<std::size_t>(width) * 3;
    return height == 1 ? length : (length + 3) / 4 * 4;
  }
};

/// What the list draws on: an image that persists between calls, with a current position, a font
/// and a text colour that persist until they are changed. All lengths are in pixels; texts are
/// UTF-8, and a platform draws a replacement character for invalid bytes.
///
/// There is no refresh call: the platform shows the image whenever the window needs it. Any call
/// may throw; the list then reports the failure (objects/Trap.h).
class Surface {
 public:
  virtual ~Surface() = default;

  /// Fills the whole image with the background colour; the current position becomes (0, 0).
  virtual void Cls() = 0;

  /// Draws lines one pixel wide, or a filled box, and leaves the current position at (x2, y2).
  virtual void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) = 0;
  /// Draws one pixel and leaves the current position there.
  virtual void PSet(float x, float y, Colour colour) = 0;

  /// Draws a picture with its top left corner at (x, y), in its natural size or scaled to the given
  /// size. Does not change the current position.
  virtual void PaintPicture(const Picture& picture, float x, float y) = 0;
  virtual void PaintPicture(const Picture& picture, float x, float y, float width,
                            float height) = 0;

  /// The size of a text in the current font with its current flags: the width of the widest line,
  /// and the height of all lines. The empty text has the height of one line.
  virtual float TextWidth(std::string_view text) = 0;
  virtual float TextHeight(std::string_view text) = 0;

  virtual float CurrentX() const = 0;
  virtual void CurrentX(float x) = 0;
  virtual float CurrentY() const = 0;
  virtual void CurrentY(float y) = 0;

  /// Size of the client area.
  virtual float ScaleWidth() const = 0;
  virtual float ScaleHeight() const = 0;

  /// The colour of Cls. Default: white.
  virtual void BackColor(Colour colour) = 0;
  /// The colour in which texts are written. Default: black.
  virtual void ForeColor(Colour colour) = 0;

  /// Sets the font, including its flags. An empty reference changes nothing.
  virtual void Font(const norvane::Font& font) = 0;
  virtual void FontBold(Boolean on) = 0;
  virtual void FontItalic(Boolean on) = 0;
  virtual void FontUnderline(Boolean on) = 0;

  /// The handle of the image, for the three calls below.
  virtual std::uintptr_t hDC() const = 0;

  /// Writes the first `length` bytes of the text (-1: all) into the rectangle, which clips it, on a
  /// transparent background. `&` is not shown but underlines the next character; `&&` shows one &.
  /// Line breaks start a new line.
  virtual void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                         const Rectangle& rectangle, TextFormat format) = 0;

  /// Inverts a dotted outline along the rectangle. Drawing it again at the same place removes it.
  virtual void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) = 0;

  /// Scales the bitmap to the rectangle. Each pixel gets the colour of the nearest bitmap pixel;
  /// nothing is blended. An empty rectangle shows nothing. Throws Failure 5 if the bitmap is not
  /// complete.
  virtual void StretchDIBits(std::uintptr_t hDC, const Rectangle& target,
                             const Bitmap24& bitmap) = 0;

  /// Writes the text at the current position, which then moves to the start of the next line.
  virtual void Print(std::string_view text) = 0;
};

}  // namespace norvane
