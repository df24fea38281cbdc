#include <nvlist/scroll/nvVScroll.h>

#include <algorithm>

#include <nvlist/objects/about.h>
#include <nvlist/platform/Program.h>
#include <nvlist/scroll/gradient.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

using checked::nearest;
using scroll::ScrollState;
using scroll::ThumbAction;

/// What ScrollState::PageDirection holds in this bar.
constexpr std::int32_t up = 1;
constexpr std::int32_t down = 2;

constexpr std::int32_t leftToRight = 0;

}  // namespace

nvVScroll::nvVScroll(std::unique_ptr<Container> place, nvVScrollEvents& owner)
    : UserControl(std::move(place)),
      owner_(owner),
      VScrollBar1_(container_.addChild(), *this),
      VBtnUp1_(container_.addChild(), *this),
      VBtnDown1_(container_.addChild(), *this) {
  VBtnUp1_.UserControl_InitProperties();
  VBtnDown1_.UserControl_InitProperties();
  VScrollBar1_.Move({1, VBtnUp1_.Height(), VBtnUp1_.Width() - 1, scroll::shortestThumb});
  Visible(false);
  Move({0, 0, VBtnUp1_.Width(), VBtnUp1_.Height()});
}

// ---- properties ----

template <class Field>
void nvVScroll::assign(Trap& on, const char* name, Field ScrollState::*field, const Field& value) {
  if (state_.*field != value) isPlaced_ = false;
  state_.*field = value;
  on.step([&] { container_.PropertyChanged(name); });
}

template <class Field>
void nvVScroll::assignOnly(const char* name, Field ScrollState::*field, const Field& value) {
  trapped(here, name, [&](Trap& on) { assign(on, name, field, value); });
}

template <class Field>
void nvVScroll::assignAndRedraw(const char* name, Field ScrollState::*field, const Field& value) {
  trapped(here, name, [&](Trap& on) {
    assign(on, name, field, value);
    if (!isPlaced()) on.step([&] { Redraw(); });
  });
}

void nvVScroll::assignRange(const char* name, std::int32_t ScrollState::*field, std::int32_t value,
                            bool isRefused, const char* refusal) {
  trapped(here, name, [&](Trap& on) {
    if (isRefused) {
      on.step([&] { Program::inUse().MsgBox(refusal, scroll::criticalStop, scroll::boxTitle); });
      return;
    }
    assign(on, name, field, value);
    on.step([&] { ÜberprüfeHeight(); });
    if (!isPlaced()) on.step([&] { Redraw(); });
  });
}

void nvVScroll::Min(std::int32_t value) {
  assignRange("Min", &ScrollState::Min, value, value > state_.Max, scroll::minTooHigh);
}

void nvVScroll::Max(std::int32_t value) {
  assignRange("Max", &ScrollState::Max, value, value < state_.Min, scroll::maxTooLow);
}

void nvVScroll::Value(std::int32_t value) { assignAndRedraw("Value", &ScrollState::Value, value); }

void nvVScroll::Gradient(Boolean value) {
  assignAndRedraw("Gradient", &ScrollState::Gradient, value);
}

void nvVScroll::ActiveScrolling(Boolean value) {
  assignAndRedraw("ActiveScrolling", &ScrollState::ActiveScrolling, value);
}

void nvVScroll::SmallChange(std::int32_t value) {
  assignOnly("SmallChange", &ScrollState::SmallChange, value);
}

void nvVScroll::LargeChange(std::int32_t value) {
  assignOnly("LargeChange", &ScrollState::LargeChange, value);
}

void nvVScroll::ColorStyle(cScrollColorStyle value) {
  trapped(here, "ColorStyle", [&](Trap& on) {
    assign(on, "ColorStyle", &ScrollState::ColorStyle, value);
    on.step([&] { VScrollBar1_.C(value); });
    on.step([&] { VBtnUp1_.C(value); });
    on.step([&] { VBtnDown1_.C(value); });
    on.step([&] { Redraw(); });
  });
}

void nvVScroll::Enabled(Boolean value) {
  trapped(here, "Enabled", [&](Trap& on) {
    state_.Enabled = value;
    on.step([&] { listenToMouse(value); });
    on.step([&] { VScrollBar1_.En(value); });
    on.step([&] { VScrollBar1_.Visible(value); });
    on.step([&] { VBtnUp1_.En(value); });
    on.step([&] { VBtnDown1_.En(value); });
    on.step([&] { container_.PropertyChanged("Enabled"); });
    on.step([&] { Redraw(); });
  });
}

void nvVScroll::About() {
  trapped(here, "About", [&](Trap& on) { on.step([] { showAboutBox(); }); });
}

void nvVScroll::UserControl_InitProperties() {
  trapped(here, "UserControl_InitProperties", [&](Trap& on) {
    on.step([&] { Min(0); });
    on.step([&] { Max(100); });
    on.step([&] { Value(0); });
    on.step([&] { Gradient(true); });
    on.step([&] { ColorStyle(cXPScrollBlue); });
    on.step([&] { ActiveScrolling(true); });
    on.step([&] { LargeChange(1); });
    on.step([&] { SmallChange(1); });
    state_.PageDirection = 0;
    on.step([&] { Enabled(true); });
    layOut(on);
  });
}

void nvVScroll::UserControl_ReadProperties(const PropertyBag& PropBag) {
  trapped(here, "UserControl_ReadProperties", [&](Trap& on) {
    on.step([&] { Min(PropBag.ReadProperty("Min", 0).toInt32()); });
    on.step([&] { Max(PropBag.ReadProperty("Max", 100).toInt32()); });
    on.step([&] { Value(PropBag.ReadProperty("Value", 0).toInt32()); });
    on.step([&] { Gradient(PropBag.ReadProperty("Gradient", true).toBoolean()); });
    on.step([&] {
      ColorStyle(static_cast<cScrollColorStyle>(PropBag.ReadProperty("ColorStyle", 0).toInt32()));
    });
    on.step([&] { ActiveScrolling(PropBag.ReadProperty("ActiveScrolling", true).toBoolean()); });
    on.step([&] { LargeChange(PropBag.ReadProperty("LargeChange", 1).toInt32()); });
    on.step([&] { SmallChange(PropBag.ReadProperty("SmallChange", 1).toInt32()); });
    on.step([&] { Enabled(PropBag.ReadProperty("Enabled", true).toBoolean()); });
  });
}

void nvVScroll::UserControl_WriteProperties(PropertyBag& PropBag) {
  trapped(here, "UserControl_WriteProperties", [&](Trap& on) {
    const auto write = [&](const char* name, const Variant& value, const Variant& defaultValue) {
      on.step([&] { PropBag.WriteProperty(name, value, defaultValue); });
    };
    write("Min", state_.Min, 0);
    write("Max", state_.Max, 100);
    write("Value", state_.Value, 0);
    write("Gradient", state_.Gradient, true);
    write("ColorStyle", std::int32_t{state_.ColorStyle}, 0);
    write("ActiveScrolling", state_.ActiveScrolling, true);
    write("LargeChange", state_.LargeChange, 1);
    write("SmallChange", state_.SmallChange, 1);
    write("Enabled", state_.Enabled, true);
  });
}

// ---- place ----

void nvVScroll::layOut(Trap& on) {
  isPlaced_ = false;
  on.step([&] { Width(VBtnUp1_.Width()); });
  on.step([&] { VBtnDown1_.Top(surface_.ScaleHeight() - VBtnDown1_.Height()); });
  on.step([&] { VScrollBar1_.Left(1); });
  on.step([&] { VScrollBar1_.Width(surface_.ScaleWidth() - VScrollBar1_.Left()); });
}

void nvVScroll::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) {
    layOut(on);
    on.step([&] {
      VScrollBar1_.Visible(surface_.ScaleHeight() - VBtnDown1_.Height() - VBtnUp1_.Height() >=
                           scroll::shortestTrack);
    });
    on.step([&] { Redraw(); });
  });
}

void nvVScroll::UserControl_Show() {
  trapped(here, "UserControl_Show", [&](Trap& on) { on.step([&] { ÜberprüfeHeight(); }); });
}

/// The range is paid for in pixels of the thumb, until it is as short as it may be.
void nvVScroll::ÜberprüfeHeight() {
  trapped(here, "ÜberprüfeHeight", [&](Trap& on) {
    state_.ThumbLength =
        static_cast<float>(double{Height()} - state_.Max - VBtnUp1_.Height() - VBtnDown1_.Height());
    const float length = std::max(state_.ThumbLength, scroll::shortestThumb);
    if (VScrollBar1_.Height() != length) isPlaced_ = false;
    on.step([&] { VScrollBar1_.Height(length); });
  });
}

// ---- value ----

/// Pixels of track for each unit of the value.
double nvVScroll::GetIMX() {
  double pixels = 0;
  trapped(here, "GetIMX", [&](Trap& on) {
    on.step([&] {
      const float Free =
          surface_.ScaleHeight() - VBtnUp1_.Height() - VBtnDown1_.Height() - VScrollBar1_.Height();
      const std::int32_t range = checked::subtract(state_.Max, state_.Min);
      pixels = double{Free} / (range != 0 ? range : 1);
    });
  });
  return pixels;
}

/// Takes the value from where the thumb stands.
void nvVScroll::ÜberprüfeValue() {
  trapped(here, "ÜberprüfeValue", [&](Trap& on) {
    on.step([&] { state_.UnitPixels = GetIMX(); });
    std::int32_t New = 0;
    on.step([&] {
      if (state_.UnitPixels == 0) throw Failure::divisionByZero();
      const float offset = VScrollBar1_.Top() - VBtnUp1_.Height();
      New = nearest<std::int32_t>(offset / state_.UnitPixels + state_.Min);
    });
    if (New > state_.Max)
      New = state_.Max;
    else if (New < state_.Min)
      New = state_.Min;
    const bool isAnother = New != state_.Value;
    on.step([&] { Value(New); });
    if (isAnother) on.step([&] { owner_.VScroll1_Scroll(); });
  });
}

/// A bar at its end tells its owner of every step all the same.
void nvVScroll::VBtnUp1_ValueUp() {
  trapped(here, "VBtnUp1_ValueUp", [&](Trap& on) {
    if (state_.Value > state_.Min) on.step([&] { Value(checked::subtract(state_.Value, 1)); });
    on.step([&] { owner_.VScroll1_Change(); });
  });
}

void nvVScroll::VBtnDown1_ValueDown() {
  trapped(here, "VBtnDown1_ValueDown", [&](Trap& on) {
    if (state_.Value < state_.Max) on.step([&] { Value(checked::add(state_.Value, 1)); });
    on.step([&] { owner_.VScroll1_Change(); });
  });
}

// ---- thumb ----

void nvVScroll::VScrollBar1_MouseDown(std::int16_t Button, float, float Y) {
  trapped(here, "VScrollBar1_MouseDown",
          [&](Trap& on) { on.step([&] { MoveScroll(ThumbAction::mousedown, Button, Y); }); });
}

/// Too far beside the bar the thumb stops following.
void nvVScroll::VScrollBar1_MouseMove(std::int16_t Button, float X, float Y) {
  trapped(here, "VScrollBar1_MouseMove", [&](Trap& on) {
    if (X > -scroll::dragReach && X < VScrollBar1_.Width() + scroll::dragReach)
      on.step([&] { MoveScroll(ThumbAction::mousemove, Button, Y); });
  });
}

void nvVScroll::VScrollBar1_MouseUp() {
  trapped(here, "VScrollBar1_MouseUp", [&](Trap& on) {
    on.step([&] { MoveScroll(ThumbAction::mouseup, 0, 0); });
    on.step([&] { ÜberprüfeValue(); });
    on.step([&] { owner_.VScroll1_Change(); });
  });
}

void nvVScroll::MoveScroll(ThumbAction Action, std::int16_t Button, float Position) {
  trapped(here, "MoveScroll", [&](Trap& on) {
    switch (Action) {
      case ThumbAction::mousedown:
        state_.Dragging = true;
        on.step([&] { state_.GrabOffset = nearest<std::int32_t>(Position); });
        break;
      case ThumbAction::mouseup:
        state_.Dragging = false;
        break;
      case ThumbAction::mousemove:
        if (state_.Dragging && Button == scroll::leftButton) drag(on, Position);
        break;
    }
  });
}

void nvVScroll::drag(Trap& on, float Position) {
  const float Delta = static_cast<float>(state_.GrabOffset) - Position;
  const float Want = VScrollBar1_.Top() - Delta;
  isPlaced_ = false;
  on.step([&] {
    const float last = VBtnDown1_.Top() - VScrollBar1_.Height();
    if (Delta <= 0)
      VScrollBar1_.Top(Want + VScrollBar1_.Height() <= VBtnDown1_.Top() ? Want : last);
    else
      VScrollBar1_.Top(VBtnUp1_.Height() <= Want ? Want : VBtnUp1_.Height());
  });
  if (state_.ActiveScrolling) on.step([&] { ÜberprüfeValue(); });
}

// ---- the bare track ----

void nvVScroll::UserControl_MouseDown(std::int16_t, std::int16_t, float, float Y) {
  trapped(here, "UserControl_MouseDown", [&](Trap& on) {
    const auto repeatTowards = [&](auto& button, std::int32_t direction) {
      on.step([&] { button.UC_MDown(); });
      state_.PageDirection = direction;
      state_.PageClickPos = Y;
      state_.PageActive = true;
    };
    if (thumbEnd() < Y) repeatTowards(VBtnDown1_, down);
    // The step may have taken the thumb beyond the press.
    if (VScrollBar1_.Top() > Y) repeatTowards(VBtnUp1_, up);
    on.step([&] { Redraw(); });
  });
}

void nvVScroll::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(here, "UserControl_MouseUp", [&](Trap& on) {
    on.step([&] { VBtnUp1_.UC_MUp(); });
    on.step([&] { VBtnDown1_.UC_MUp(); });
    state_.PageActive = false;
    state_.PageDirection = 0;
    on.step([&] { Redraw(); });
  });
}

/// Ends the repeat once the thumb has come to the press.
void nvVScroll::endReachedPress(Trap& on) {
  const bool isReached =
      (state_.PageDirection == up && VScrollBar1_.Top() <= state_.PageClickPos) ||
      (state_.PageDirection == down && thumbEnd() >= state_.PageClickPos);
  if (isReached) on.step([&] { UserControl_MouseUp(scroll::leftButton, 0, 0, 0); });
}

// ---- painting ----

void nvVScroll::Redraw() {
  trapped(here, "Redraw", [&](Trap& on) {
    if (state_.PageActive) endReachedPress(on);
    if (!state_.Dragging) placeThumb(on);
    on.step([&] { container_.paintLater(); });
  });
}

void nvVScroll::UserControl_Paint() {
  trapped(here, "Redraw", [&](Trap& on) {
    on.step([&] { surface_.Cls(); });
    if (!state_.Gradient || !state_.Enabled) {
      on.step([&] { scroll::fill(surface_, colours::white); });
      return;
    }
    on.step([&] { paintTrack(scroll::trackShade, 0, surface_.ScaleHeight()); });
    if (state_.PageActive) paintPressedTrack(on);
  });
}

void nvVScroll::placeThumb(Trap& on) {
  on.step([&] { state_.UnitPixels = GetIMX(); });
  on.step([&] {
    if (state_.Value == state_.Min)
      VScrollBar1_.Top(VBtnUp1_.Top() + VBtnUp1_.Height());
    else if (state_.Value == state_.Max)
      VScrollBar1_.Top(VBtnDown1_.Top() - VScrollBar1_.Height());
    else
      VScrollBar1_.Top(static_cast<float>(
          VBtnUp1_.Height() + checked::subtract(state_.Value, state_.Min) * state_.UnitPixels));
    // A failure in the reckoning is told each time.
    isPlaced_ = state_.UnitPixels != 0;
  });
}

/// Paints the track from one position along it to another.
void nvVScroll::paintTrack(Colour shade, float from, float to) {
  const Rectangle track = {0, nearest<std::int32_t>(from),
                           nearest<std::int32_t>(surface_.ScaleWidth()), nearest<std::int32_t>(to)};
  DrawGradient(surface_, track, shade, scroll::trackLight, leftToRight);
}

/// Darkens the side that a press repeats towards, as far as the button.
void nvVScroll::paintPressedTrack(Trap& on) {
  if (state_.PageDirection == up && VScrollBar1_.Top() > state_.PageClickPos)
    on.step([&] {
      paintTrack(scroll::pressedShade, VBtnUp1_.Height() + VBtnUp1_.Top(), VScrollBar1_.Top());
    });
  if (state_.PageDirection == down && thumbEnd() < state_.PageClickPos)
    on.step([&] { paintTrack(scroll::pressedShade, thumbEnd(), surface_.ScaleHeight()); });
}

}  // namespace norvane
