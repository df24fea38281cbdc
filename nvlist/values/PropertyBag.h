#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <nvlist/values/Variant.h>

namespace norvane {

/// A property store, which maps names to values. It does not store values equal to their defaults.
/// A host may derive a class from it that stores them elsewhere.
class PropertyBag {
 public:
  /// A stored property.
  struct Property {
    std::string name;  ///< as it was written
    Variant value;     ///< differs from the default
  };

  virtual ~PropertyBag() = default;

  /// The value stored under exactly this name, or the default.
  virtual Variant ReadProperty(std::string_view name, const Variant& defaultValue) const;
  /// Stores the value under the name. A value equal to its default removes the stored one instead.
  virtual void WriteProperty(std::string_view name, const Variant& value,
                             const Variant& defaultValue);

  /// The stored properties, in the order in which their names were first written.
  const std::vector<Property>& properties() const { return properties_; }

 private:
  std::vector<Property> properties_;
};

/// The store as text with one property a line: `ForeColor = 255`. Numbers above 65535 and below 0
/// are written in hexadecimal with &H, as suits colours; truth values as True and False; texts in
/// double quotes with the escapes `\"`, `\\` and `\xNN`; a font as
/// `font "Tahoma" 8.25 bold italic underline strikethrough`. Other objects are omitted.
std::string propertyText(const PropertyBag& bag);

/// The store that such a text describes. Empty lines and lines starting with # are skipped. A value
/// in none of the forms above is stored as a text, so that the property that reads it reports the
/// failure. Throws Failure 321 with the line number for a line without a name and =, or with an
/// unclosed quote.
PropertyBag propertiesOf(std::string_view text);

}  // namespace norvane
