#pragma once

#include <cstdint>
#include <string>

#include <nvlist/objects/nvToolTip.h>
#include <nvlist/values/Variant.h>

namespace norvane {

struct Module;

/// A simple interface to tool tips. Each object serves one form, the first one passed to Create.
///
/// Forms and controls are variants that hold a norvane::HostWindow.
class QI {
 public:
  /// Adds a tip to a control, or changes the text of its tip. From now on, tips of all controls of
  /// this object stay for `displayTime` milliseconds and are at most `maxWidth` pixels wide; below
  /// 1 means no limit.
  void Create(const Variant& form, const Variant& control, const std::string& text,
              std::int32_t displayTime, std::int16_t maxWidth);
  /// Removes the tip of a control, if it has one.
  void Remove(const Variant& control);
  /// Shows the library's about box.
  void About();

 private:
  static const Module here;

  /// Has no window before the first Create with a form.
  nvToolTip ToolTip_;
};

}  // namespace norvane
