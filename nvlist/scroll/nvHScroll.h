#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/HScrollBar.h>
#include <nvlist/scroll/VBtnLeft.h>
#include <nvlist/scroll/VBtnRight.h>
#include <nvlist/scroll/values.h>
#include <nvlist/values/PropertyBag.h>

namespace norvane {

/// What the list hears of its horizontal bar.
struct nvHScrollEvents {
  /// After a step of a button or of the track, also at an end of the range, and when the thumb is
  /// let go.
  virtual void HScroll1_Change() = 0;
  /// After each change of the value by the thumb; for the last one of a drag before Change.
  virtual void HScroll1_Scroll() = 0;

 protected:
  ~nvHScrollEvents() = default;
};

/// The horizontal scroll bar: a track, the thumb on it and a button at either end, 17 pixels high.
///
/// Buttons and track step by 1. Whoever has made one calls UserControl_InitProperties or
/// UserControl_ReadProperties; before, all values are 0 and false. It comes up hidden and 17 pixels
/// long. The vertical bar is a twin with small differences, each of which is meant; this one alone
/// has custom colours.
class nvHScroll final : public UserControl,
                        private HScrollBarEvents,
                        private VBtnLeftEvents,
                        private VBtnRightEvents {
 public:
  nvHScroll(std::unique_ptr<Container> place, nvHScrollEvents& owner);

  /// The range. Default: 0 to 100. A minimum above the maximum is refused with a box, as is a
  /// maximum below the minimum. The thumb is shorter by a pixel for each unit of the maximum.
  std::int32_t Min() const { return state_.Min; }
  void Min(std::int32_t value);
  std::int32_t Max() const { return state_.Max; }
  void Max(std::int32_t value);
  /// The position. Any value is kept, and the thumb then stands off the track. Setting it raises
  /// nothing. Default: 0.
  std::int32_t Value() const { return state_.Value; }
  void Value(std::int32_t value);
  /// Whether the track is shaded, or white. Default: true.
  Boolean Gradient() const { return state_.Gradient; }
  void Gradient(Boolean value);
  /// The track in custom style. Default: white.
  Colour BackColor() const { return backColor_; }
  void BackColor(Colour value);
  /// The family of thumb and buttons, or `custom`: flat colours as SetNewProperty gives them. For
  /// any other value there are no pictures: nothing of them is painted, and each try is reported.
  /// Default: cXPScrollBlue.
  cScrollColorStyle ColorStyle() const { return state_.ColorStyle; }
  void ColorStyle(cScrollColorStyle value);
  static constexpr auto custom = static_cast<cScrollColorStyle>(scroll::customStyle);

  /// Whether the value follows the thumb while it is dragged, or when it is let go. Default: true.
  Boolean ActiveScrolling() const { return state_.ActiveScrolling; }
  void ActiveScrolling(Boolean value);
  /// Kept for the host; nothing goes by them. Default: 1.
  std::int32_t SmallChange() const { return state_.SmallChange; }
  void SmallChange(std::int32_t value);
  std::int32_t LargeChange() const { return state_.LargeChange; }
  void LargeChange(std::int32_t value);
  /// False: a white track without a thumb, and no mouse. Default: true.
  Boolean Enabled() const { return state_.Enabled; }
  void Enabled(Boolean value);
  /// Shows a box with the name and the version of the library.
  void About();

  /// Takes the colours of the custom style: ScrollBackColor for the track; ScrollBar, ScrollBarDown
  /// and ScrollBarHover for the thumb; ScrollArrows, ScrollArrowsDown, ScrollArrowsHover,
  /// ScrollButtons, ScrollButtonsDown and ScrollButtonsHover for both buttons. What is missing is
  /// white for the track, black for the arrows and the button face for the rest. They show once
  /// ColorStyle is `custom`, which this does not set. A value that is no 32-bit number is a
  /// failure; what came before it stays.
  void SetNewProperty(const PropertyBag& Bag);

  /// A free text of the owner. Default: "False".
  const std::string& Tag() const { return tag_; }
  void Tag(std::string_view value) { tag_ = value; }

  void UserControl_InitProperties() override;
  /// Keys and defaults are those of UserControl_WriteProperties. Each value goes through its
  /// setter, so that a minimum above the maximum of the moment is refused.
  void UserControl_ReadProperties(const PropertyBag& PropBag) override;
  void UserControl_WriteProperties(PropertyBag& PropBag) override;
  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Show() override;
  void UserControl_Paint() override;

  /// Everything the bar knows of itself but its colours, for a look from outside.
  const scroll::ScrollState& state() const { return state_; }

 private:
  static constexpr Module here{kinds::control, "nvHScroll"};

  template <class Field>
  void assign(Trap& on, const char* name, Field scroll::ScrollState::*field, const Field& value);
  template <class Field>
  void assignOnly(const char* name, Field scroll::ScrollState::*field, const Field& value);
  template <class Field>
  void assignAndRedraw(const char* name, Field scroll::ScrollState::*field, const Field& value);
  void assignRange(const char* name, std::int32_t scroll::ScrollState::*field, std::int32_t value,
                   bool isRefused, const char* refusal);

  void HScrollBar1_MouseDown(std::int16_t Button, float X, float Y) override;
  void HScrollBar1_MouseMove(std::int16_t Button, float X, float Y) override;
  void HScrollBar1_MouseUp() override;
  void VBtnLeft1_ValueUp() override;
  void VBtnRight1_ValueDown() override;

  double GetIMX();
  void ÜberprüfeValue();
  void ÜberprüfeWidth();
  void MoveScroll(scroll::ThumbAction Action, std::int16_t Button, float Position);
  void drag(Trap& on, float Position);

  void Redraw();
  bool isPlaced() const { return isPlaced_ && !state_.PageActive; }
  void layOut(Trap& on);
  void endReachedPress(Trap& on);
  void placeThumb(Trap& on);
  void paintTrack(Colour shade, float from, float to);
  void paintPressedTrack(Trap& on);
  float thumbEnd() const { return HScrollBar1_.Left() + HScrollBar1_.Width(); }

  nvHScrollEvents& owner_;
  scroll::ScrollState state_;
  Colour backColor_ = 0;
  std::string tag_ = "False";
  /// Whether the thumb stands where the values put it. A list that is being filled sets most of
  /// them to what they are already.
  bool isPlaced_ = false;
  HScrollBar HScrollBar1_;
  VBtnLeft VBtnLeft1_;
  VBtnRight VBtnRight1_;
};

}  // namespace norvane
