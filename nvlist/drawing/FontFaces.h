#pragma once

#include <array>

#include <nvlist/values/Font.h>

namespace norvane {

/// The faces that a surface draws its font with: one for each combination of bold, italic and
/// underline. `Face` is a smart pointer, empty until the surface makes the face.
template <class Face>
class FontFaces {
 public:
  const FontObject& font() const { return font_; }
  /// Sets the font; an empty reference is ignored. Drops the faces if name, size or strikethrough
  /// differ, and returns whether it did.
  bool font(const Font& font) {
    if (!font) return false;
    const bool isSame = font->Name == font_.Name && font->Size == font_.Size &&
                        font->Strikethrough == font_.Strikethrough;
    if (!isSame) {
      font_ = *font;
      drop();
    }
    bold(font->Bold);
    italic(font->Italic);
    underline(font->Underline);
    return !isSame;
  }
  void bold(Boolean on) { font_.Bold = on; }
  void italic(Boolean on) { font_.Italic = on; }
  void underline(Boolean on) { font_.Underline = on; }

  Face& current() {
    return faces_[(font_.Bold ? 1U : 0U) | (font_.Italic ? 2U : 0U) | (font_.Underline ? 4U : 0U)];
  }
  void drop() { faces_ = {}; }

 private:
  FontObject font_;
  std::array<Face, 8> faces_;
};

}  // namespace norvane
