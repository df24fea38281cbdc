#pragma once

#include <span>
#include <string_view>

#include <nvlist/values/Variant.h>

namespace norvane {

class nvList;

enum class PropertyType {
  font,
  colour,
  boolean,
  integer,  ///< 32 bits
  single,   ///< a 32-bit float
  colorStyle,
  scrollColorStyle,
  listStyle,
  wheelFunction,
  scrollBars
};

/// A property of the list that a property store holds.
struct StoredProperty {
  /// The published name, which is also the key in the store.
  const char* name;
  PropertyType type;
  /// The value of a list without a stored one. Empty for the font, whose default is the ambient
  /// font of the container.
  Variant defaultValue;
  /// Calls the public getter. The result holds a FontObject, a truth value, a float or, for all
  /// other types, a 32-bit integer.
  Variant (*get)(const nvList& list);
  /// Calls the public setter, with all its effects. Throws Failure 13 or 6, and changes nothing, if
  /// the value cannot be converted to the type.
  void (*set)(nvList& list, const Variant& value);
};

/// All stored properties in the order in which they are read and written. The order matters:
/// setting ColorStyle also sets ScrollColorStyle, whose own stored value follows.
std::span<const StoredProperty> storedProperties();

/// Returns the stored property with exactly this name, or nullptr.
const StoredProperty* storedProperty(std::string_view name);

}  // namespace norvane
