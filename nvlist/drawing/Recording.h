#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <nvlist/drawing/Surface.h>

namespace norvane {

/// The drawing calls of a surface as values. Pictures are equal if they are one object.
namespace calls {

struct Cls {
  bool operator==(const Cls&) const = default;
};
struct Line {
  LineMode mode;
  float x1, y1, x2, y2;
  Colour colour;
  bool operator==(const Line&) const = default;
};
struct PSet {
  float x, y;
  Colour colour;
  bool operator==(const PSet&) const = default;
};
struct PaintPicture {
  Picture picture;
  float x, y;
  bool isScaled;
  float width, height;  ///< used only if it is scaled
  bool operator==(const PaintPicture&) const = default;
};
struct CurrentX {
  float x;
  bool operator==(const CurrentX&) const = default;
};
struct CurrentY {
  float y;
  bool operator==(const CurrentY&) const = default;
};
struct BackColor {
  Colour colour;
  bool operator==(const BackColor&) const = default;
};
struct ForeColor {
  Colour colour;
  bool operator==(const ForeColor&) const = default;
};
struct SetFont {
  Font font;
  bool operator==(const SetFont& other) const { return isSameFont(font, other.font); }
};
struct FontBold {
  Boolean on;
  bool operator==(const FontBold&) const = default;
};
struct FontItalic {
  Boolean on;
  bool operator==(const FontItalic&) const = default;
};
struct FontUnderline {
  Boolean on;
  bool operator==(const FontUnderline&) const = default;
};
struct DrawTextA {
  std::string text;
  Rectangle rectangle;
  TextFormat format;
  bool operator==(const DrawTextA&) const = default;
};
struct DrawFocusRect {
  Rectangle rectangle;
  bool operator==(const DrawFocusRect&) const = default;
};
struct StretchDIBits {
  Rectangle target;
  Bitmap24 bitmap;
  bool operator==(const StretchDIBits&) const = default;
};
struct Print {
  std::string text;
  bool operator==(const Print&) const = default;
};

}  // namespace calls

using SurfaceCall =
    std::variant<calls::Cls, calls::Line, calls::PSet, calls::PaintPicture, calls::CurrentX,
                 calls::CurrentY, calls::BackColor, calls::ForeColor, calls::SetFont,
                 calls::FontBold, calls::FontItalic, calls::FontUnderline, calls::DrawTextA,
                 calls::DrawFocusRect, calls::StretchDIBits, calls::Print>;

/// A sequence of drawing calls. Copies share pictures and fonts.
class Recording {
 public:
  std::vector<SurfaceCall> calls;

  /// One line per call, such as `Line 38 (0, 3)-(200, 16) #FFFFFF`. Colours are written as
  /// `#RRGGBB`, system colours as `system 17`; unprintable bytes of texts as `\xNN`. A picture is
  /// written as its size and its description, if it has one; a bitmap as its size, the first pixel
  /// of its lowest row and the last pixel of its highest row.
  std::string text() const;

  /// Repeats the calls on another surface.
  void replay(Surface& onto) const;

  bool operator==(const Recording&) const = default;
};

/// A colour and a text as Recording::text writes them.
std::string textOfColour(Colour colour);
std::string quotedText(const std::string& text);

}  // namespace norvane
