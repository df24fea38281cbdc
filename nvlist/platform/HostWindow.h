#pragma once

#include <cstdint>

#include <nvlist/values/Failure.h>
#include <nvlist/values/Ref.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// A form or control of the host, for which nvToolTip shows tool tips. Hosts and platforms derive
/// from it. A member that is not overridden throws Failure 438, as for a control without a window.
class HostWindow : public Object {
 public:
  /// Whether it is a form, including one that contains other forms. Default: false.
  virtual bool isForm() const { return false; }
  /// Its window handle on the platform.
  virtual std::int32_t hwnd() { throw Failure::noSuchMember(); }
  /// The form or control that contains it. Callers report an empty result as Failure 91.
  virtual Ref<HostWindow> Container() { throw Failure::noSuchMember(); }
};

}  // namespace norvane
