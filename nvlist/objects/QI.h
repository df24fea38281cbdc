#pragma once

#include <cstdint>
#include <string>

#include <nvlist/objects/nvToolTip.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The short way to a tool tip. One of them serves one form: the first that it is given.
///
/// Forms and controls are variants that hold a norvane::HostWindow.
class QI {
 public:
  /// Gives a control a tip, or its tip another text. `displayTime`, in milliseconds, and
  /// `maxWidth`, in pixels with anything below 1 for no limit, count from now on for all controls
  /// of this object.
  void Create(const Variant& form, const Variant& control, const std::string& text,
              std::int32_t displayTime, std::int16_t maxWidth);
  /// Takes the tip of a control away, where it has one.
  void Remove(const Variant& control);
  /// Shows the library's about box.
  void About();

 private:
  /// Without a window until a form is given.
  nvToolTip ToolTip_;
};

}  // namespace norvane
