#pragma once

#include <string>

#include <nvlist/core/Boolean.h>
#include <nvlist/core/Ref.h>

namespace norvane {

/// A font as hosts describe it. A platform looks up the nearest face it has.
class FontObject final : public Shared {
 public:
  std::string Name = "Tahoma";
  /// Height in points.
  float Size = 8.25F;
  Boolean Bold = false;
  Boolean Italic = false;
  Boolean Underline = false;
  Boolean Strikethrough = false;

  Ref<FontObject> Clone() const { return makeRef<FontObject>(*this); }
};

/// A reference to a font object; it may be empty.
using Font = Ref<FontObject>;

/// A font object of its own with the same look; empty for an empty reference.
inline Font CloneFont(const Font& font) { return font ? font->Clone() : Font(); }

}  // namespace norvane
