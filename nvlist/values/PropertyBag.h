#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <nvlist/values/Variant.h>

namespace norvane {

/// A property store: it maps names to values and keeps nothing that equals its default. A host may
/// derive one that keeps them elsewhere.
class PropertyBag {
 public:
  struct Property {
    std::string name;
    Variant value;
  };

  virtual ~PropertyBag() = default;

  /// The value stored under the name, or the default. Names are compared exactly.
  virtual Variant ReadProperty(std::string_view name, const Variant& defaultValue) const;
  /// Stores the value; one that is the same as its default is not stored, and what was stored under
  /// the name goes.
  virtual void WriteProperty(std::string_view name, const Variant& value,
                             const Variant& defaultValue);

  /// What is stored, in the order in which the names first came.
  const std::vector<Property>& properties() const { return properties_; }

 private:
  std::vector<Property> properties_;
};

/// The store as text, a line each: `ForeColor = 255`. A number above 65535 or below 0 is written as
/// &H and its digits, as colours read best; truth values as True and False; texts in double quotes,
/// with \" \\ and \xNN in them; a font as `font "Tahoma" 8.25 bold italic underline strikethrough`.
/// Other objects have no text and are left out.
std::string propertyText(const PropertyBag& bag);

/// The store that such a text describes. Empty lines, and those that begin with #, say nothing. A
/// word that is none of the forms above is kept as a text, so that whoever reads the property
/// tells what is wrong with it. A line without a name and =, or with a quote that does not end,
/// throws Failure 321 with the number of the line.
PropertyBag propertiesOf(std::string_view text);

}  // namespace norvane
