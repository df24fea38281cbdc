#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <nvlist/drawing/Surface.h>

namespace norvane {

/// The drawing calls of a surface as values.
namespace calls {

struct Cls {};
struct Line {
  LineMode mode;
  float x1, y1, x2, y2;
  Colour colour;
};
struct PSet {
  float x, y;
  Colour colour;
};
struct PaintPicture {
  Picture picture;
  float x, y;
  bool isScaled;
  float width, height;  ///< used only if it is scaled
};
struct CurrentX {
  float x;
};
struct CurrentY {
  float y;
};
struct BackColor {
  Colour colour;
};
struct ForeColor {
  Colour colour;
};
struct SetFont {
  Font font;
};
struct FontBold {
  Boolean on;
};
struct FontItalic {
  Boolean on;
};
struct FontUnderline {
  Boolean on;
};
struct DrawTextA {
  std::string text;
  Rectangle rectangle;
  TextFormat format;
};
struct DrawFocusRect {
  Rectangle rectangle;
};
struct StretchDIBits {
  Rectangle target;
  Bitmap24 bitmap;
};
struct Print {
  std::string text;
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
};

/// A colour and a text as Recording::text writes them.
std::string textOfColour(Colour colour);
std::string quotedText(const std::string& text);

}  // namespace norvane
