#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/RepeatButton.h>
#include <nvlist/scroll/Thumb.h>
#include <nvlist/scroll/differences.h>
#include <nvlist/values/PropertyBag.h>
#include <nvlist/values/enumerations.h>

namespace norvane::scroll {

/// The state of a bar. Lengths are pixels along the bar. UserControl_InitProperties sets the
/// defaults of the properties.
struct ScrollState {
  std::int32_t Min = 0;
  std::int32_t Max = 0;
  std::int32_t Value = 0;
  Boolean Gradient;
  cScrollColorStyle ColorStyle = cXPScrollBlue;
  Boolean ActiveScrolling;
  std::int32_t SmallChange = 0;
  std::int32_t LargeChange = 0;
  Boolean Enabled;
  Boolean Dragging;             ///< the thumb is being dragged
  std::int32_t GrabOffset = 0;  ///< the press inside the thumb, rounded
  double UnitPixels = 0;        ///< pixels of track per unit of the value
  float ThumbLength = 0;        ///< before the minimum length of a thumb is applied
  Boolean PageActive;           ///< a press on the bare track is repeating
  float PageClickPos = 0;       ///< the position of that press
  /// Which way the press repeats; 0 while none does. See BarKind for the codes.
  std::int32_t PageDirection = 0;
};

/// A scroll bar along an axis: a track, the thumb on it and a button at each end, 17 pixels across.
///
/// Buttons and track step by 1. The creator calls UserControl_InitProperties or
/// UserControl_ReadProperties; until then all values are 0 and false. A new bar is hidden and 17
/// pixels long. The file differences.h lists how the
/// two bars differ.
class Bar : public UserControl, protected ThumbEvents, protected ButtonEvents {
 public:
  /// The range. Default: 0 to 100. A minimum above the maximum and a maximum below the minimum are
  /// refused with a message box. Each unit of the maximum makes the thumb one pixel shorter.
  std::int32_t Min() const { return state_.Min; }
  void Min(std::int32_t value);
  std::int32_t Max() const { return state_.Max; }
  void Max(std::int32_t value);
  /// The position. Default: 0. It is not checked: a value outside the range puts the thumb off the
  /// track. Setting it raises no event.
  std::int32_t Value() const { return state_.Value; }
  void Value(std::int32_t value);
  /// Whether the track is a gradient; otherwise it is white. Default: true.
  Boolean Gradient() const { return state_.Gradient; }
  void Gradient(Boolean value);
  /// The style of thumb and buttons. Default: cXPScrollBlue. A value without pictures leaves them
  /// unpainted, and each repaint of them is reported.
  cScrollColorStyle ColorStyle() const { return state_.ColorStyle; }
  void ColorStyle(cScrollColorStyle value);
  /// True: the value follows the thumb while it is dragged. False: it changes at the release.
  /// Default: true.
  Boolean ActiveScrolling() const { return state_.ActiveScrolling; }
  void ActiveScrolling(Boolean value);
  /// Stored only. Default: 1.
  std::int32_t SmallChange() const { return state_.SmallChange; }
  void SmallChange(std::int32_t value);
  std::int32_t LargeChange() const { return state_.LargeChange; }
  void LargeChange(std::int32_t value);
  /// False: the track is white and without a thumb, and the mouse is ignored. Default: true.
  Boolean Enabled() const { return state_.Enabled; }
  void Enabled(Boolean value);
  /// Shows a box with the name and the version of the library.
  void About();

  /// A text for the owner's use. Default: "False".
  std::string_view Tag() const { return tag_; }
  void Tag(std::string_view value) {
    if (tag_ != value) tag_ = value;
  }

  void UserControl_InitProperties() override;
  /// Keys and defaults are those of UserControl_WriteProperties. Each value passes through its
  /// setter, so a minimum above the maximum at that moment is refused.
  void UserControl_ReadProperties(const PropertyBag& PropBag) override;
  void UserControl_WriteProperties(PropertyBag& PropBag) override;
  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Show() override;
  void UserControl_Paint() override;

  /// The state of the bar, for tests and diagnosis.
  const ScrollState& state() const { return state_; }

 protected:
  Bar(std::unique_ptr<Container> place, const BarKind& kind);

  /// Ends the construction with the parts, which the final class owns: in the order of their
  /// places, the thumb, the near button and the far button.
  void assemble(Thumb& thumb, RepeatButton& nearButton, RepeatButton& farButton);

  /// The track in custom style. Default: white.
  Colour BackColor() const { return backColor_; }
  void BackColor(Colour value);

  /// Places the thumb by the value, unless it is being dragged, and has the track painted before
  /// the image is next used: filling a list moves its bar with every item.
  void Redraw();

 private:
  /// After a step of a button or of the track, also at an end of the range, and when the thumb is
  /// released.
  virtual void raiseChange() = 0;
  /// After each change of the value by the thumb; the last one of a drag comes before Change.
  virtual void raiseScroll() = 0;

  template <class Field>
  void assign(Trap& on, std::string_view name, Field ScrollState::*field, const Field& value);
  template <class Field>
  void assignOnly(std::string_view name, Field ScrollState::*field, const Field& value);
  template <class Field>
  void assignAndRedraw(std::string_view name, Field ScrollState::*field, const Field& value);
  void assignRange(std::string_view name, std::int32_t ScrollState::*field, std::int32_t value,
                   bool isRefused, const char* refusal);
  void redrawIfNeeded(Trap& on);
  void read(Trap& on, const PropertyBag& bag);

  void Thumb_MouseDown(std::int16_t Button, float X, float Y) override;
  void Thumb_MouseMove(std::int16_t Button, float X, float Y) override;
  void Thumb_MouseUp() override;
  void ValueUp() override;
  void ValueDown() override;

  double GetIMX();
  void checkValue();
  void checkLength();
  enum class Action { mousedown, mouseup, mousemove };
  void MoveScroll(Action action, std::int16_t Button, float Position);
  void drag(Trap& on, float Position);

  void layOut(Trap& on);
  void placeThumb(Trap& on);
  void endReachedPress(Trap& on);
  void paintTrack(Colour shade, float from, float to);
  void paintPressedTrack(Trap& on);

  float thumbStart() const { return start(axis_, *thumb_); }
  float thumbLength() const { return length(axis_, *thumb_); }
  float thumbEnd() const { return thumbStart() + thumbLength(); }
  float nearLength() const { return length(axis_, *near_); }
  float farLength() const { return length(axis_, *far_); }
  float farStart() const { return start(axis_, *far_); }

  const BarKind& kind_;
  const Axis axis_;
  ScrollState state_;
  Colour backColor_ = 0;
  std::string tag_ = "False";
  /// Whether the thumb is where the values put it. Filling a list sets most of them to what they
  /// already are, and then nothing has to be placed or painted.
  bool isPlaced_ = false;
  Thumb* thumb_ = nullptr;
  RepeatButton* near_ = nullptr;
  RepeatButton* far_ = nullptr;
};

}  // namespace norvane::scroll
