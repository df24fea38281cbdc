#include <nvlist/scroll/VerticalButton.h>

#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

using scroll::ButtonState;
using scroll::Press;

constexpr std::int32_t firstDelay = 500;

}  // namespace

VerticalButton::VerticalButton(std::unique_ptr<Container> place, const Module& module,
                               art::Arrow arrow)
    : UserControl(std::move(place)),
      here_(module),
      arrow_(arrow),
      Timer1_(container_.addTimer([this] {
        try {
          Timer1_Timer();
        } catch (...) {
          // The reporter itself failed, and a timer has nobody to tell.
        }
      })) {
  const Picture picture = art::button(arrow_, 1);
  Move({0, 0, picture->width(), picture->height()});
}

void VerticalButton::C(std::int32_t value) {
  trapped(here_, "C", [&](Trap& on) {
    C_ = value;
    on.step([&] { paint(En_ ? ButtonState::normal : ButtonState::disabled); });
  });
}

void VerticalButton::En(Boolean value) {
  trapped(here_, "En", [&](Trap& on) {
    En_ = value;
    on.step([&] { paint(En_ ? ButtonState::normal : ButtonState::disabled); });
  });
}

void VerticalButton::paint(ButtonState state) {
  const std::int32_t index =
      checked::add(checked::multiply(C_, 4), static_cast<std::int32_t>(state));
  const Picture picture = art::button(arrow_, index);
  surface_.PaintPicture(picture, 0, 0);
  shown_ = picture;
}

void VerticalButton::UserControl_InitProperties() {
  trapped(here_, "UserControl_InitProperties",
          [&](Trap& on) { on.step([&] { paint(ButtonState::normal); }); });
}

void VerticalButton::UserControl_Paint() {
  trapped(here_, "UserControl_Paint", [&](Trap& on) {
    if (shown_) on.step([&] { surface_.PaintPicture(shown_, 0, 0); });
  });
}

void VerticalButton::UserControl_Resize() {
  trapped(here_, "UserControl_Resize", [&](Trap& on) {
    on.step([&] { Width(art::button(arrow_, 1)->width()); });
    on.step([&] { Height(art::button(arrow_, 1)->height()); });
  });
}

/// The capture shows the pointer leaving; while a button is down the press has one of its own.
void VerticalButton::MouseOut(float X, float Y) {
  trapped(here_, "MouseOut", [&](Trap& on) {
    const bool isOutside = on.test(
        [&] { return X < 0 || Y < 0 || X > surface_.ScaleWidth() || Y > surface_.ScaleHeight(); });
    if (isOutside) {
      if (PressState_ != Press::down) on.step([&] { container_.ReleaseCapture(); });
      MouseInside_ = false;
    } else {
      if (PressState_ != Press::down) on.step([&] { container_.SetCapture(); });
      MouseInside_ = true;
    }
  });
}

void VerticalButton::UserControl_MouseDown(std::int16_t, std::int16_t, float, float) {
  trapped(here_, "UserControl_MouseDown", [&](Trap& on) {
    PressState_ = Press::down;
    on.step([&] { paint(ButtonState::pressed); });
    on.step([&] { raiseEvent(); });
    on.step([&] { Timer1_->Interval(firstDelay); });
    on.step([&] { Timer1_->Enabled(true); });
  });
}

void VerticalButton::Timer1_Timer() {
  trapped(here_, "Timer1_Timer", [&](Trap& on) {
    if (PressState_ != Press::down) {
      on.step([&] { Timer1_->Enabled(false); });
      return;
    }
    if (Timer1_->Interval() == firstDelay) {
      // The tick that raises nothing: the second event comes one interval after it.
      on.step([&] { Timer1_->Interval(scroll::repeatInterval); });
    } else if (Timer1_->Interval() == scroll::repeatInterval) {
      on.step([&] { MouseOut(LastX_, LastY_); });
      if (MouseInside_) on.step([&] { raiseEvent(); });
    }
  });
}

void VerticalButton::UserControl_MouseMove(std::int16_t, std::int16_t, float X, float Y) {
  trapped(here_, "UserControl_MouseMove", [&](Trap& on) {
    on.step([&] { MouseOut(X, Y); });
    LastX_ = X;
    LastY_ = Y;
    on.step([&] {
      if (!MouseInside_)
        paint(ButtonState::normal);
      else
        paint(PressState_ == Press::down ? ButtonState::pressed : ButtonState::hover);
    });
  });
}

/// Shows the button at rest even under the pointer; the next move brings the hover back.
void VerticalButton::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(here_, "UserControl_MouseUp", [&](Trap& on) {
    PressState_ = Press::none;
    on.step([&] { paint(ButtonState::normal); });
    on.step([&] { Timer1_->Enabled(false); });
  });
}

void VerticalButton::UC_MDown() {
  trapped(here_, "UC_MDown", [&](Trap& on) {
    on.step([&] { UserControl_MouseDown(scroll::leftButton, 0, 0, 0); });
    on.step([&] { paint(ButtonState::normal); });
  });
}

void VerticalButton::UC_MUp() {
  trapped(here_, "UC_MUp",
          [&](Trap& on) { on.step([&] { UserControl_MouseUp(scroll::leftButton, 0, -1, -1); }); });
}

}  // namespace norvane
