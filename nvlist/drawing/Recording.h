#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <nvlist/drawing/Surface.h>

namespace norvane {

/// The calls that a surface takes, each as a small value.
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
  float width, height;  ///< only where it is scaled
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

/// Drawing calls in their order. Copies share pictures and fonts, nothing else.
class Recording {
 public:
  std::vector<SurfaceCall> calls;

  /// One line a call, such as `Line 38 (0, 3)-(200, 16) #FFFFFF`. Colours are #RRGGBB, system
  /// colours `system 17`; what is not printable in a text is escaped as \xNN. Of a picture the size
  /// is told, and its description where it has one; of a bitmap the size, the first pixel of its
  /// lowest row and the last one of its highest row.
  std::string text() const;

  /// Makes the same calls on another surface.
  void replay(Surface& onto) const;
};

}  // namespace norvane
