#include <nvlist/core/PropertyBag.h>

#include <algorithm>

namespace norvane {
namespace {

bool areSame(const Variant& a, const Variant& b) {
  if (a.type() != b.type()) return false;
  if (a.type() == Variant::Type::Object) return a.object() == b.object();
  return a.isText() ? a.text() == b.text() : a.toNumber() == b.toNumber();
}

auto named(std::string_view name) {
  return [name](const PropertyBag::Property& property) { return property.name == name; };
}

}  // namespace

Variant PropertyBag::ReadProperty(std::string_view name, const Variant& defaultValue) const {
  const auto found = std::find_if(properties_.begin(), properties_.end(), named(name));
  return found == properties_.end() ? defaultValue : found->value;
}

void PropertyBag::WriteProperty(std::string_view name, const Variant& value,
                                const Variant& defaultValue) {
  const auto found = std::find_if(properties_.begin(), properties_.end(), named(name));
  if (areSame(value, defaultValue)) {
    if (found != properties_.end()) properties_.erase(found);
  } else if (found != properties_.end()) {
    found->value = value;
  } else {
    properties_.push_back({std::string(name), value});
  }
}

}  // namespace norvane
