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

/// One tip window of the platform for any number of controls of one form.
///
/// Controls and forms are variants that hold a norvane::HostWindow. Until a Create was successful
/// everything else does nothing and answers 0, false or the empty text.
class nvToolTip {
 public:
  nvToolTip() = default;
  nvToolTip(const nvToolTip&) = delete;
  nvToolTip& operator=(const nvToolTip&) = delete;

  /// Makes the tip window for a form; one that was made before stays. True where there is one
  /// afterwards; always false for what is no form.
  Boolean Create(const Variant& form);

  /// Gives a control a tip. False, and nothing happens, where it has one. A control without `hwnd`
  /// or `Container` is a failure.
  Boolean AddTool(const Variant& control, const std::string& text);
  /// False where the control has no tip.
  Boolean RemoveTool(const Variant& control);

  Colour BackColor();
  void BackColor(Colour value);
  /// Reading makes the text black, and answers what the platform says to that.
  Colour ForeColor();
  void ForeColor(Colour value);

  /// A time in milliseconds. `kind` is a norvane::TipDelay, of which the lowest two bits count.
  std::int32_t DelayTime(std::int32_t kind);
  void DelayTime(std::int32_t kind, std::int32_t time);

  /// Pixels around the text: `side` 0 left, 1 top, 2 right, 3 bottom. Any other side reads as 0,
  /// and setting it changes nothing.
  std::int32_t Margin(std::int32_t side);
  void Margin(std::int32_t side, std::int32_t value);

  /// Pixels at which a line breaks; -1, the default, for no limit. Anything below 1 sets that.
  /// Reading answers the low 16 bits.
  std::int16_t MaxTipWidth();
  void MaxTipWidth(std::int16_t value);

  std::int16_t ToolCount();

  /// The tip of a control, up to its first zero character; empty where it has none.
  std::string ToolText(const Variant& control);
  /// Changes nothing for a control without a tip.
  void ToolText(const Variant& control, const std::string& text);

  /// The handle of the tip window.
  std::int32_t hwnd();

 private:
  bool IsWindow() const { return TipWindow_ != nullptr; }
  /// Looks for the tool of a control; `record` is the tool, or whatever was looked at last.
  Boolean GetToolInfo(std::int32_t controlHandle, TipTool& record, bool wantText = false);
  void keepLength(const std::string& text);
  static std::int16_t LoWord2(std::int32_t value);
  static std::string GetStrFromBufferA(std::string_view text);

  std::shared_ptr<TipWindow> TipWindow_;
  /// Bytes of the longest text given so far, and one more for its end.
  std::size_t MaxTextLength_ = 0;
};

}  // namespace norvane
