#pragma once

#include <nvlist/values/Failure.h>
#include <nvlist/values/Ref.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The object in a variant, cast to a class. Throws Failure 424 if the variant holds no object, 91
/// if its reference is empty, and 438 if the object is of another class.
template <class Members>
Ref<Members> lateBound(const Variant& value) {
  if (value.type() != Variant::Type::Object) throw Failure::objectRequired();
  const Ref<Object> object = value.object();
  if (!object) throw Failure::objectNotSet();
  auto* members = dynamic_cast<Members*>(object.get());
  if (!members) throw Failure::noSuchMember();
  return Ref<Members>(members);
}

}  // namespace norvane
