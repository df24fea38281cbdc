#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/platform/TipWindow.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Variant.h>

namespace norvane {

struct Module;

/// A tip window of the platform for any number of controls of one form.
///
/// Controls and forms are variants that hold a norvane::HostWindow. Before a successful Create, all
/// other members do nothing and return 0, false or an empty text.
class nvToolTip {
 public:
  nvToolTip() = default;
  nvToolTip(const nvToolTip&) = delete;
  nvToolTip& operator=(const nvToolTip&) = delete;

  /// Creates the tip window for a form, unless there is one already. Returns whether there is one
  /// now; false if `form` is not a form.
  Boolean Create(const Variant& form);

  /// Adds a tip to a control. Returns false and does nothing if it already has one. A control
  /// without `hwnd` or `Container` is a failure.
  Boolean AddTool(const Variant& control, const std::string& text);
  /// Removes the tip of a control. Returns false if it has none.
  Boolean RemoveTool(const Variant& control);

  Colour BackColor();
  void BackColor(Colour value);
  /// Reading sets the colour to black, as published, and returns the platform's result of that.
  Colour ForeColor();
  void ForeColor(Colour value);

  /// A time in milliseconds. The lowest two bits of `kind` are a norvane::TipDelay.
  std::int32_t DelayTime(std::int32_t kind);
  void DelayTime(std::int32_t kind, std::int32_t time);

  /// Pixels around the text: `side` 0 left, 1 top, 2 right, 3 bottom. Any other side reads as 0;
  /// setting it has no effect.
  std::int32_t Margin(std::int32_t side);
  void Margin(std::int32_t side, std::int32_t value);

  /// The width in pixels at which lines break; -1, the default, means no limit. Values below 1 set
  /// -1. Reading returns the low 16 bits.
  std::int16_t MaxTipWidth();
  void MaxTipWidth(std::int16_t value);

  std::int16_t ToolCount();

  /// The tip of a control, up to its first zero character; empty if it has none.
  std::string ToolText(const Variant& control);
  /// Has no effect on a control without a tip.
  void ToolText(const Variant& control, const std::string& text);

  /// The handle of the tip window.
  std::int32_t hwnd();

 private:
  static const Module here;

  bool IsWindow() const { return TipWindow_ != nullptr; }
  /// Finds the tool of a control. `record` receives it or, if it is not found, the last tool.
  Boolean GetToolInfo(std::int32_t controlHandle, TipTool& record, bool wantText = false);
  void keepLength(const std::string& text);
  static std::int16_t LoWord2(std::int32_t value);
  static std::string GetStrFromBufferA(std::string_view text);

  std::shared_ptr<TipWindow> TipWindow_;
  /// The length in bytes of the longest text so far, plus one for its terminator.
  std::size_t MaxTextLength_ = 0;
};

}  // namespace norvane
