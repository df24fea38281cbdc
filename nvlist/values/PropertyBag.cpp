#include <nvlist/values/PropertyBag.h>

#include <algorithm>

namespace norvane {
namespace {

bool isSame(const Variant& a, const Variant& b) {
  constexpr auto object = Variant::Type::Object;
  if (a.type() == object || b.type() == object) {
    const Ref<Object> one = a.object();
    const Ref<Object> other = b.object();
    return one && other ? one->isSame(*other) : a.type() == b.type() && one == other;
  }
  if (a.isText() || b.isText()) return a.isText() && b.isText() && a.text() == b.text();
  return a.toNumber() == b.toNumber();
}

}  // namespace

Variant PropertyBag::ReadProperty(std::string_view name, const Variant& defaultValue) const {
  const auto found = std::ranges::find(properties_, name, &Property::name);
  return found == properties_.end() ? defaultValue : found->value;
}

void PropertyBag::WriteProperty(std::string_view name, const Variant& value,
                                const Variant& defaultValue) {
  const auto found = std::ranges::find(properties_, name, &Property::name);
  if (isSame(value, defaultValue)) {
    if (found != properties_.end()) properties_.erase(found);
  } else if (found != properties_.end()) {
    found->value = value;
  } else {
    properties_.push_back({std::string(name), value});
  }
}

}  // namespace norvane
