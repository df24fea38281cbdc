#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/VBtnDown.h>
#include <nvlist/scroll/VBtnUp.h>
#include <nvlist/scroll/VScrollBar.h>
#include <nvlist/scroll/values.h>
#include <nvlist/values/PropertyBag.h>

namespace norvane {

/// What the list hears of its vertical bar.
struct nvVScrollEvents {
  /// After a step of a button or of the track, also at an end of the range, and when the thumb is
  /// let go.
  virtual void VScroll1_Change() = 0;
  /// After each change of the value by the thumb; for the last one of a drag before Change.
  virtual void VScroll1_Scroll() = 0;

 protected:
  ~nvVScrollEvents() = default;
};

/// The vertical scroll bar: a track, the thumb on it and a button at either end, 17 pixels wide.
///
/// Buttons and track step by 1. Whoever has made one calls UserControl_InitProperties or
/// UserControl_ReadProperties; before, all values are 0 and false. It comes up hidden and 17 pixels
/// long. The horizontal bar is a twin with small differences, each of which is meant.
class nvVScroll final : public UserControl,
                        private VScrollBarEvents,
                        private VBtnUpEvents,
                        private VBtnDownEvents {
 public:
  nvVScroll(std::unique_ptr<Container> place, nvVScrollEvents& owner);

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
  /// The family of thumb and buttons. For any but the three of the enumeration there are no
  /// pictures: nothing of them is painted, and each try is reported. Default: cXPScrollBlue.
  cScrollColorStyle ColorStyle() const { return state_.ColorStyle; }
  void ColorStyle(cScrollColorStyle value);

  /// Places the thumb by the value, unless it is being dragged, and paints the track when it is
  /// looked at next: a list that is being filled moves its bar for every item.
  void Redraw();

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

  /// Everything the bar knows of itself, for a look from outside.
  const scroll::ScrollState& state() const { return state_; }

 private:
  static constexpr Module here{kinds::control, "nvVScroll"};

  template <class Field>
  void assign(Trap& on, const char* name, Field scroll::ScrollState::*field, const Field& value);
  template <class Field>
  void assignOnly(const char* name, Field scroll::ScrollState::*field, const Field& value);
  template <class Field>
  void assignAndRedraw(const char* name, Field scroll::ScrollState::*field, const Field& value);
  void assignRange(const char* name, std::int32_t scroll::ScrollState::*field, std::int32_t value,
                   bool isRefused, const char* refusal);

  void VScrollBar1_MouseDown(std::int16_t Button, float X, float Y) override;
  void VScrollBar1_MouseMove(std::int16_t Button, float X, float Y) override;
  void VScrollBar1_MouseUp() override;
  void VBtnUp1_ValueUp() override;
  void VBtnDown1_ValueDown() override;

  double GetIMX();
  void ÜberprüfeValue();
  void ÜberprüfeHeight();
  void MoveScroll(scroll::ThumbAction Action, std::int16_t Button, float Position);
  void drag(Trap& on, float Position);

  bool isPlaced() const { return isPlaced_ && !state_.PageActive; }
  void layOut(Trap& on);
  void endReachedPress(Trap& on);
  void placeThumb(Trap& on);
  void paintTrack(Colour shade, float from, float to);
  void paintPressedTrack(Trap& on);
  float thumbEnd() const { return VScrollBar1_.Top() + VScrollBar1_.Height(); }

  nvVScrollEvents& owner_;
  scroll::ScrollState state_;
  std::string tag_ = "False";
  /// Whether the thumb stands where the values put it. A list that is being filled sets most of
  /// them to what they are already.
  bool isPlaced_ = false;
  VScrollBar VScrollBar1_;
  VBtnUp VBtnUp1_;
  VBtnDown VBtnDown1_;
};

}  // namespace norvane
