#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <nvlist/core/Variant.h>

namespace norvane {

/// The store in which a container keeps the properties of a control: values by name. Names are
/// compared byte by byte. A host may supply its own, which may throw; the control then reports the
/// failure.
class PropertyBag {
 public:
  struct Property {
    std::string name;
    Variant value;
  };

  virtual ~PropertyBag() = default;

  /// The value stored under the name, or else the default.
  virtual Variant ReadProperty(std::string_view name, const Variant& defaultValue) const;
  /// Stores the value. One that is its default, in type and in value, is not kept and takes away
  /// what was stored under the name.
  virtual void WriteProperty(std::string_view name, const Variant& value,
                             const Variant& defaultValue);

  /// What is stored, in the order in which the names came in.
  const std::vector<Property>& properties() const { return properties_; }

 private:
  std::vector<Property> properties_;
};

}  // namespace norvane
