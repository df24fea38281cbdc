#include <nvlist/scroll/nvHScroll.h>

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
constexpr std::int32_t right = 1;
constexpr std::int32_t left = 2;

constexpr std::int32_t bottomToTop = 1;

/// A colour of the buttons in custom style.
struct ButtonColour {
  const char* key;
  Colour defaultValue;
  void (HorizontalButton::*assign)(Colour);
};

constexpr ButtonColour buttonColours[] = {
    {"ScrollArrows", 0, &HorizontalButton::Arrow},
    {"ScrollArrowsDown", 0, &HorizontalButton::ArrowDown},
    {"ScrollArrowsHover", 0, &HorizontalButton::ArrowHover},
    {"ScrollButtons", scroll::buttonFace, &HorizontalButton::Button},
    {"ScrollButtonsDown", scroll::buttonFace, &HorizontalButton::ButtonDown},
    {"ScrollButtonsHover", scroll::buttonFace, &HorizontalButton::ButtonHover},
};

}  // namespace

nvHScroll::nvHScroll(std::unique_ptr<Container> place, nvHScrollEvents& owner)
    : UserControl(std::move(place)),
      owner_(owner),
      HScrollBar1_(container_.addChild(), *this),
      VBtnLeft1_(container_.addChild(), *this),
      VBtnRight1_(container_.addChild(), *this) {
  VBtnLeft1_.UserControl_InitProperties();
  VBtnRight1_.UserControl_InitProperties();
  HScrollBar1_.Move({VBtnLeft1_.Width(), 1, scroll::shortestThumb, VBtnLeft1_.Height() - 1});
  Visible(false);
  Move({0, 0, VBtnLeft1_.Width(), VBtnLeft1_.Height()});
}

// ---- properties ----

template <class Field>
void nvHScroll::assign(Trap& on, const char* name, Field ScrollState::*field, const Field& value) {
  if (state_.*field != value) isPlaced_ = false;
  state_.*field = value;
  on.step([&] { container_.PropertyChanged(name); });
}

template <class Field>
void nvHScroll::assignOnly(const char* name, Field ScrollState::*field, const Field& value) {
  trapped(here, name, [&](Trap& on) { assign(on, name, field, value); });
}

template <class Field>
void nvHScroll::assignAndRedraw(const char* name, Field ScrollState::*field, const Field& value) {
  trapped(here, name, [&](Trap& on) {
    assign(on, name, field, value);
    if (!isPlaced()) on.step([&] { Redraw(); });
  });
}

void nvHScroll::assignRange(const char* name, std::int32_t ScrollState::*field, std::int32_t value,
                            bool isRefused, const char* refusal) {
  trapped(here, name, [&](Trap& on) {
    if (isRefused) {
      on.step([&] { Program::inUse().MsgBox(refusal, scroll::criticalStop, scroll::boxTitle); });
      return;
    }
    assign(on, name, field, value);
    on.step([&] { ÜberprüfeWidth(); });
    if (!isPlaced()) on.step([&] { Redraw(); });
  });
}

void nvHScroll::Min(std::int32_t value) {
  assignRange("Min", &ScrollState::Min, value, value > state_.Max, scroll::minTooHigh);
}

void nvHScroll::Max(std::int32_t value) {
  assignRange("Max", &ScrollState::Max, value, value < state_.Min, scroll::maxTooLow);
}

void nvHScroll::Value(std::int32_t value) { assignAndRedraw("Value", &ScrollState::Value, value); }

void nvHScroll::Gradient(Boolean value) {
  assignAndRedraw("Gradient", &ScrollState::Gradient, value);
}

void nvHScroll::ActiveScrolling(Boolean value) {
  assignAndRedraw("ActiveScrolling", &ScrollState::ActiveScrolling, value);
}

void nvHScroll::SmallChange(std::int32_t value) {
  assignOnly("SmallChange", &ScrollState::SmallChange, value);
}

void nvHScroll::LargeChange(std::int32_t value) {
  assignOnly("LargeChange", &ScrollState::LargeChange, value);
}

void nvHScroll::ColorStyle(cScrollColorStyle value) {
  trapped(here, "ColorStyle", [&](Trap& on) {
    assign(on, "ColorStyle", &ScrollState::ColorStyle, value);
    on.step([&] { HScrollBar1_.C(value); });
    on.step([&] { VBtnLeft1_.C(value); });
    on.step([&] { VBtnRight1_.C(value); });
    on.step([&] { Redraw(); });
  });
}

void nvHScroll::Enabled(Boolean value) {
  trapped(here, "Enabled", [&](Trap& on) {
    state_.Enabled = value;
    on.step([&] { listenToMouse(value); });
    on.step([&] { HScrollBar1_.En(value); });
    on.step([&] { HScrollBar1_.Visible(value); });
    on.step([&] { VBtnLeft1_.En(value); });
    on.step([&] { VBtnRight1_.En(value); });
    on.step([&] { container_.PropertyChanged("Enabled"); });
    on.step([&] { Redraw(); });
  });
}

void nvHScroll::BackColor(Colour value) {
  trapped(here, "BackColor", [&](Trap& on) {
    backColor_ = value;
    on.step([&] { container_.PropertyChanged("BackColor"); });
    on.step([&] { Redraw(); });
  });
}

void nvHScroll::About() {
  trapped(here, "About", [&](Trap& on) { on.step([] { showAboutBox(); }); });
}

void nvHScroll::SetNewProperty(const PropertyBag& Bag) {
  trapped(here, "SetNewProperty", [&](Trap& on) {
    const auto read = [&](const char* key, Colour defaultValue) {
      return Bag.ReadProperty(key, defaultValue).toInt32();
    };
    on.step([&] { BackColor(read("ScrollBackColor", colours::white)); });
    on.step([&] { HScrollBar1_.Bar(read("ScrollBar", scroll::buttonFace)); });
    on.step([&] { HScrollBar1_.BarDown(read("ScrollBarDown", scroll::buttonFace)); });
    on.step([&] { HScrollBar1_.BarHover(read("ScrollBarHover", scroll::buttonFace)); });
    for (HorizontalButton* button : {static_cast<HorizontalButton*>(&VBtnLeft1_),
                                     static_cast<HorizontalButton*>(&VBtnRight1_)})
      for (const ButtonColour& colour : buttonColours)
        on.step([&] { (button->*colour.assign)(read(colour.key, colour.defaultValue)); });
  });
}

void nvHScroll::UserControl_InitProperties() {
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
    on.step([&] { BackColor(colours::white); });
    on.step([&] { Enabled(true); });
    layOut(on);
  });
}

void nvHScroll::UserControl_ReadProperties(const PropertyBag& PropBag) {
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
    on.step([&] { BackColor(PropBag.ReadProperty("BackColor", colours::white).toInt32()); });
  });
}

void nvHScroll::UserControl_WriteProperties(PropertyBag& PropBag) {
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
    write("BackColor", backColor_, colours::white);
  });
}

// ---- place ----

void nvHScroll::layOut(Trap& on) {
  isPlaced_ = false;
  on.step([&] { Height(VBtnLeft1_.Height()); });
  on.step([&] { VBtnRight1_.Left(surface_.ScaleWidth() - VBtnRight1_.Width()); });
  on.step([&] { HScrollBar1_.Top(1); });
  on.step([&] { HScrollBar1_.Height(surface_.ScaleHeight() - HScrollBar1_.Top()); });
}

void nvHScroll::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) {
    layOut(on);
    on.step([&] {
      HScrollBar1_.Visible(surface_.ScaleWidth() - VBtnLeft1_.Width() - VBtnRight1_.Height() >=
                           scroll::shortestTrack);
    });
    on.step([&] { Redraw(); });
  });
}

void nvHScroll::UserControl_Show() {
  trapped(here, "UserControl_Show", [&](Trap& on) { on.step([&] { ÜberprüfeWidth(); }); });
}

/// The range is paid for in pixels of the thumb, until it is as short as it may be.
void nvHScroll::ÜberprüfeWidth() {
  trapped(here, "ÜberprüfeWidth", [&](Trap& on) {
    state_.ThumbLength = static_cast<float>(double{surface_.ScaleWidth()} - state_.Max -
                                            VBtnLeft1_.Width() - VBtnRight1_.Width());
    const float length = std::max(state_.ThumbLength, scroll::shortestThumb);
    if (HScrollBar1_.Width() != length) isPlaced_ = false;
    on.step([&] { HScrollBar1_.Width(length); });
  });
}

// ---- value ----

/// Pixels of track for each unit of the value.
double nvHScroll::GetIMX() {
  double pixels = 0;
  trapped(here, "GetIMX", [&](Trap& on) {
    on.step([&] {
      const float Free =
          surface_.ScaleWidth() - VBtnLeft1_.Width() - VBtnRight1_.Width() - HScrollBar1_.Width();
      const std::int32_t range = checked::subtract(state_.Max, state_.Min);
      pixels = double{Free} / (range != 0 ? range : 1);
    });
  });
  return pixels;
}

/// Takes the value from where the thumb stands.
void nvHScroll::ÜberprüfeValue() {
  trapped(here, "ÜberprüfeValue", [&](Trap& on) {
    on.step([&] { state_.UnitPixels = GetIMX(); });
    std::int32_t New = 0;
    on.step([&] {
      if (state_.UnitPixels == 0) throw Failure::divisionByZero();
      const float offset = HScrollBar1_.Left() - VBtnLeft1_.Width();
      New = nearest<std::int32_t>(offset / state_.UnitPixels + state_.Min);
    });
    if (New > state_.Max)
      New = state_.Max;
    else if (New < state_.Min)
      New = state_.Min;
    const bool isAnother = New != state_.Value;
    on.step([&] { Value(New); });
    if (isAnother) on.step([&] { owner_.HScroll1_Scroll(); });
  });
}

/// A bar at its end tells its owner of every step all the same.
void nvHScroll::VBtnLeft1_ValueUp() {
  trapped(here, "VBtnLeft1_ValueUp", [&](Trap& on) {
    if (state_.Value > state_.Min) on.step([&] { Value(checked::subtract(state_.Value, 1)); });
    on.step([&] { owner_.HScroll1_Change(); });
  });
}

void nvHScroll::VBtnRight1_ValueDown() {
  trapped(here, "VBtnRight1_ValueDown", [&](Trap& on) {
    if (state_.Value < state_.Max) on.step([&] { Value(checked::add(state_.Value, 1)); });
    on.step([&] { owner_.HScroll1_Change(); });
  });
}

// ---- thumb ----

void nvHScroll::HScrollBar1_MouseDown(std::int16_t Button, float X, float) {
  trapped(here, "HScrollBar1_MouseDown",
          [&](Trap& on) { on.step([&] { MoveScroll(ThumbAction::mousedown, Button, X); }); });
}

/// Too far beside the bar the thumb stops following.
void nvHScroll::HScrollBar1_MouseMove(std::int16_t Button, float X, float Y) {
  trapped(here, "HScrollBar1_MouseMove", [&](Trap& on) {
    if (Y > -scroll::dragReach && Y < HScrollBar1_.Height() + scroll::dragReach)
      on.step([&] { MoveScroll(ThumbAction::mousemove, Button, X); });
  });
}

void nvHScroll::HScrollBar1_MouseUp() {
  trapped(here, "HScrollBar1_MouseUp", [&](Trap& on) {
    on.step([&] { MoveScroll(ThumbAction::mouseup, 0, 0); });
    on.step([&] { ÜberprüfeValue(); });
    on.step([&] { owner_.HScroll1_Change(); });
  });
}

void nvHScroll::MoveScroll(ThumbAction Action, std::int16_t Button, float Position) {
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

void nvHScroll::drag(Trap& on, float Position) {
  const float Delta = static_cast<float>(state_.GrabOffset) - Position;
  const float Want = HScrollBar1_.Left() - Delta;
  isPlaced_ = false;
  on.step([&] {
    const float last = VBtnRight1_.Left() - HScrollBar1_.Width();
    if (Delta <= 0)
      HScrollBar1_.Left(Want + HScrollBar1_.Width() <= VBtnRight1_.Left() ? Want : last);
    else
      HScrollBar1_.Left(VBtnLeft1_.Width() <= Want ? Want : VBtnLeft1_.Width());
  });
  if (state_.ActiveScrolling) on.step([&] { ÜberprüfeValue(); });
}

// ---- the bare track ----

void nvHScroll::UserControl_MouseDown(std::int16_t, std::int16_t, float X, float) {
  trapped(here, "UserControl_MouseDown", [&](Trap& on) {
    const auto repeatTowards = [&](auto& button, std::int32_t direction) {
      on.step([&] { button.UC_MDown(); });
      state_.PageDirection = direction;
      state_.PageClickPos = X;
      state_.PageActive = true;
    };
    if (thumbEnd() < X) repeatTowards(VBtnRight1_, right);
    // The step may have taken the thumb beyond the press.
    if (HScrollBar1_.Left() > X) repeatTowards(VBtnLeft1_, left);
    on.step([&] { Redraw(); });
  });
}

void nvHScroll::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(here, "UserControl_MouseUp", [&](Trap& on) {
    on.step([&] { VBtnLeft1_.UC_MUp(); });
    on.step([&] { VBtnRight1_.UC_MUp(); });
    state_.PageActive = false;
    state_.PageDirection = 0;
    on.step([&] { Redraw(); });
  });
}

/// Ends the repeat once the thumb has come to the press.
void nvHScroll::endReachedPress(Trap& on) {
  const bool isReached =
      (state_.PageDirection == left && HScrollBar1_.Left() <= state_.PageClickPos) ||
      (state_.PageDirection == right && thumbEnd() >= state_.PageClickPos);
  if (isReached) on.step([&] { UserControl_MouseUp(scroll::leftButton, 0, 0, 0); });
}

// ---- painting ----

void nvHScroll::Redraw() {
  trapped(here, "Redraw", [&](Trap& on) {
    if (state_.PageActive) endReachedPress(on);
    if (!state_.Dragging) placeThumb(on);
    on.step([&] { container_.paintLater(); });
  });
}

void nvHScroll::UserControl_Paint() {
  trapped(here, "Redraw", [&](Trap& on) {
    on.step([&] { surface_.Cls(); });
    if (state_.ColorStyle == custom) {
      on.step([&] { scroll::fill(surface_, backColor_); });
      return;
    }
    if (!state_.Gradient || !state_.Enabled) {
      on.step([&] { scroll::fill(surface_, colours::white); });
      return;
    }
    on.step([&] { paintTrack(scroll::trackShade, 0, surface_.ScaleWidth()); });
    if (state_.PageActive) paintPressedTrack(on);
  });
}

void nvHScroll::placeThumb(Trap& on) {
  on.step([&] { state_.UnitPixels = GetIMX(); });
  on.step([&] {
    if (state_.Value == state_.Min)
      HScrollBar1_.Left(VBtnLeft1_.Left() + VBtnLeft1_.Width());
    else if (state_.Value == state_.Max)
      HScrollBar1_.Left(VBtnRight1_.Left() - HScrollBar1_.Width());
    else
      HScrollBar1_.Left(static_cast<float>(
          VBtnLeft1_.Width() + checked::subtract(state_.Value, state_.Min) * state_.UnitPixels));
    // A failure in the reckoning is told each time.
    isPlaced_ = state_.UnitPixels != 0;
  });
}

/// Paints the track from one position along it to another.
void nvHScroll::paintTrack(Colour shade, float from, float to) {
  const Rectangle track = {nearest<std::int32_t>(from), 0, nearest<std::int32_t>(to),
                           nearest<std::int32_t>(surface_.ScaleHeight())};
  DrawGradient(surface_, track, scroll::trackLight, shade, bottomToTop);
}

/// Darkens the side that a press repeats towards, as far as the button.
void nvHScroll::paintPressedTrack(Trap& on) {
  if (state_.PageDirection == left && HScrollBar1_.Left() > state_.PageClickPos)
    on.step([&] {
      paintTrack(scroll::pressedShade, VBtnLeft1_.Width() + VBtnLeft1_.Left(), HScrollBar1_.Left());
    });
  if (state_.PageDirection == right && thumbEnd() < state_.PageClickPos)
    on.step([&] { paintTrack(scroll::pressedShade, thumbEnd(), surface_.ScaleWidth()); });
}

}  // namespace norvane
