#pragma once

#include <string>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// A font as hosts describe it. The platform uses the closest font it has.
class FontObject final : public Object {
 public:
  /// The name of the font's family.
  std::string Name = "Tahoma";
  /// Height in points.
  float Size = 8.25F;
  /// The style.
  Boolean Bold = false;
  Boolean Italic = false;
  Boolean Underline = false;
  Boolean Strikethrough = false;

  /// Compares all fields.
  bool isSame(const Object& other) const override;

  /// A copy, which can be changed independently.
  Ref<FontObject> Clone() const { return makeRef<FontObject>(*this); }
};

inline bool FontObject::isSame(const Object& other) const {
  const auto* font = dynamic_cast<const FontObject*>(&other);
  return font && Name == font->Name && Size == font->Size && Bold == font->Bold &&
         Italic == font->Italic && Underline == font->Underline &&
         Strikethrough == font->Strikethrough;
}

/// A reference to a font object; it may be empty.
using Font = Ref<FontObject>;

/// Whether two references are empty, or their fonts equal in all fields.
inline bool isSameFont(const Font& a, const Font& b) { return a && b ? a->isSame(*b) : a == b; }

/// An independent copy of a font; empty for an empty reference.
inline Font CloneFont(const Font& font) { return font ? font->Clone() : Font(); }

}  // namespace norvane
