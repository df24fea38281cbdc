#pragma once

#include <cstdint>

#include <nvlist/values/Failure.h>
#include <nvlist/values/Ref.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// A form or a control of the host, as tool tips ask it. A host or a platform derives from it. What
/// it does not override it does not have, as a control without a window, and calling that is
/// Failure 438.
class HostWindow : public Object {
 public:
  /// Whether it is a form, which may be one that holds other forms.
  virtual bool isForm() const { return false; }
  /// Its handle, by which the platform knows it.
  virtual std::int32_t hwnd() { throw Failure::noSuchMember(); }
  /// What it stands in. An empty one is Failure 91 for who needs it.
  virtual Ref<HostWindow> Container() { throw Failure::noSuchMember(); }
};

}  // namespace norvane
