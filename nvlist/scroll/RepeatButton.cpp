#include <nvlist/scroll/RepeatButton.h>

#include <nvlist/scroll/art.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>

namespace norvane::scroll {
namespace {

/// Milliseconds between the events of a button that is held.
constexpr std::int32_t repeatInterval = 100;

}  // namespace

RepeatButton::RepeatButton(std::unique_ptr<Container> place, ButtonEvents& owner,
                           const ButtonKind& kind)
    : Part(std::move(place), kind.module),
      owner_(owner),
      kind_(kind),
      // The reporter may fail, and a timer has no caller.
      Timer1_(container_.addTimer([this] { ignoringFailures([&] { Timer1_Timer(); }); })) {
  const Picture picture = art::button(kind_.arrow, 1);
  Move({0, 0, picture->width(), picture->height()});
}

void RepeatButton::UserControl_InitProperties() {
  trapped(kind_.module, "UserControl_InitProperties",
          [&](Trap& on) { on.step([&] { show(State::normal); }); });
}

void RepeatButton::UserControl_Resize() {
  trapped(kind_.module, "UserControl_Resize", [&](Trap& on) {
    on.step([&] { Width(art::button(kind_.arrow, 1)->width()); });
    on.step([&] { Height(art::button(kind_.arrow, 1)->height()); });
  });
}

// ---- mouse and timer ----

void RepeatButton::raiseEvent() { kind_.raisesValueUp ? owner_.ValueUp() : owner_.ValueDown(); }

void RepeatButton::UserControl_MouseDown(std::int16_t, std::int16_t, float, float) {
  trapped(kind_.module, "UserControl_MouseDown", [&](Trap& on) {
    PressState_ = Press::down;
    on.step([&] { show(State::pressed); });
    on.step([&] { raiseEvent(); });
    on.step([&] { Timer1_->Interval(kind_.firstDelay); });
    on.step([&] { Timer1_->Enabled(true); });
  });
}

void RepeatButton::Timer1_Timer() {
  trapped(kind_.module, "Timer1_Timer", [&](Trap& on) {
    if (PressState_ != Press::down) {
      on.step([&] { Timer1_->Enabled(false); });
      return;
    }
    if (Timer1_->Interval() == kind_.firstDelay) {
      on.step([&] { Timer1_->Interval(repeatInterval); });
    } else if (Timer1_->Interval() == repeatInterval) {
      on.step([&] { MouseOut(LastX_, LastY_); });
      if (MouseInside_) on.step([&] { raiseEvent(); });
    }
  });
}

void RepeatButton::UserControl_MouseMove(std::int16_t, std::int16_t, float X, float Y) {
  trapped(kind_.module, "UserControl_MouseMove", [&](Trap& on) {
    on.step([&] { MouseOut(X, Y); });
    LastX_ = X;
    LastY_ = Y;
    on.step([&] { show(mouseState()); });
  });
}

void RepeatButton::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(kind_.module, "UserControl_MouseUp", [&](Trap& on) {
    PressState_ = Press::none;
    on.step([&] { show(State::normal); });
    on.step([&] { Timer1_->Enabled(false); });
  });
}

void RepeatButton::UC_MDown() {
  trapped(kind_.module, "UC_MDown", [&](Trap& on) {
    on.step([&] { UserControl_MouseDown(leftMouseButton, 0, 0, 0); });
    on.step([&] { show(State::normal); });
  });
}

void RepeatButton::UC_MUp() {
  trapped(kind_.module, "UC_MUp",
          [&](Trap& on) { on.step([&] { UserControl_MouseUp(leftMouseButton, 0, -1, -1); }); });
}

// ---- painting ----

RepeatButton::State RepeatButton::mouseState() const {
  if (!MouseInside_) return State::normal;
  return PressState_ == Press::down ? State::pressed : State::hover;
}

/// Shows the picture that a handler has chosen, or that of the state if the kind paints by state.
void RepeatButton::show(State chosen) { kind_.paintsState ? PaintState() : paint(chosen); }

void RepeatButton::paint(State state) {
  const std::int32_t index =
      checked::add(checked::multiply(C(), 4), static_cast<std::int32_t>(state));
  const Picture picture = art::button(kind_.arrow, index);
  surface_.PaintPicture(picture, 0, 0);
  shown_ = picture;
}

void RepeatButton::UserControl_Paint() {
  if (kind_.paintsState) {
    PaintState();
    return;
  }
  trapped(kind_.module, "UserControl_Paint", [&](Trap& on) {
    if (shown_) on.step([&] { surface_.PaintPicture(shown_, 0, 0); });
  });
}

void RepeatButton::PaintState() {
  trapped(kind_.module, "PaintState", [&](Trap& on) {
    if (kind_.chevron && C() == customStyle)
      paintCustom(on);
    else
      on.step([&] { paint(En() ? mouseState() : State::disabled); });
  });
}

/// Flat, without a rim and without a disabled look.
void RepeatButton::paintCustom(Trap& on) {
  const Colour arrow = arrow_.of(MouseInside_, PressState_);
  on.step([&] { fill(surface_, face_.of(MouseInside_, PressState_)); });
  on.step([&] { surface_.ForeColor(arrow); });
  on.step([&] { DrawArrow(arrow); });
}

void RepeatButton::DrawArrow(Colour ForeColor) {
  trapped(kind_.module, "DrawArrow", [&](Trap& on) {
    for (const Stroke& stroke : *kind_.chevron)
      on.step([&] {
        if (stroke.x1 == stroke.x2 && stroke.y1 == stroke.y2)
          surface_.PSet(stroke.x1, stroke.y1, ForeColor);
        else
          surface_.Line(LineMode::plainLine, stroke.x1, stroke.y1, stroke.x2, stroke.y2, ForeColor);
      });
  });
}

}  // namespace norvane::scroll
