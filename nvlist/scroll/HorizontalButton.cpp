#include <nvlist/scroll/HorizontalButton.h>

#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

using scroll::ButtonState;
using scroll::Press;

constexpr std::int32_t firstDelay = 250;

}  // namespace

HorizontalButton::HorizontalButton(std::unique_ptr<Container> place, const Module& module,
                                   art::Arrow arrow, const Chevron& chevron)
    : UserControl(std::move(place)),
      here_(module),
      arrow_(arrow),
      chevron_(chevron),
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

template <class Value>
void HorizontalButton::assign(const char* name, Value& field, const Value& value) {
  trapped(here_, name, [&](Trap& on) {
    field = value;
    on.step([&] { PaintState(); });
  });
}

void HorizontalButton::C(std::int32_t value) { assign("C", C_, value); }
void HorizontalButton::En(Boolean value) { assign("En", En_, value); }
void HorizontalButton::Arrow(Colour value) { assign("Arrow", Arrow_, value); }
void HorizontalButton::ArrowDown(Colour value) { assign("ArrowDown", ArrowDown_, value); }
void HorizontalButton::ArrowHover(Colour value) { assign("ArrowHover", ArrowHover_, value); }
void HorizontalButton::Button(Colour value) { assign("Button", Button_, value); }
void HorizontalButton::ButtonDown(Colour value) { assign("ButtonDown", ButtonDown_, value); }
void HorizontalButton::ButtonHover(Colour value) { assign("ButtonHover", ButtonHover_, value); }

void HorizontalButton::UserControl_InitProperties() {
  trapped(here_, "UserControl_InitProperties", [&](Trap& on) { on.step([&] { PaintState(); }); });
}

void HorizontalButton::UserControl_Resize() {
  trapped(here_, "UserControl_Resize", [&](Trap& on) {
    on.step([&] { Width(art::button(arrow_, 1)->width()); });
    on.step([&] { Height(art::button(arrow_, 1)->height()); });
  });
}

/// The capture shows the pointer leaving; while a button is down the press has one of its own.
void HorizontalButton::MouseOut(float X, float Y) {
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

/// Shows the press only if a move has told of the pointer inside.
void HorizontalButton::UserControl_MouseDown(std::int16_t, std::int16_t, float, float) {
  trapped(here_, "UserControl_MouseDown", [&](Trap& on) {
    PressState_ = Press::down;
    on.step([&] { PaintState(); });
    on.step([&] { raiseEvent(); });
    on.step([&] { Timer1_->Interval(firstDelay); });
    on.step([&] { Timer1_->Enabled(true); });
  });
}

void HorizontalButton::Timer1_Timer() {
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

void HorizontalButton::UserControl_MouseMove(std::int16_t, std::int16_t, float X, float Y) {
  trapped(here_, "UserControl_MouseMove", [&](Trap& on) {
    on.step([&] { MouseOut(X, Y); });
    LastX_ = X;
    LastY_ = Y;
    on.step([&] { PaintState(); });
  });
}

void HorizontalButton::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(here_, "UserControl_MouseUp", [&](Trap& on) {
    PressState_ = Press::none;
    on.step([&] { PaintState(); });
    on.step([&] { Timer1_->Enabled(false); });
  });
}

void HorizontalButton::UC_MDown() {
  trapped(here_, "UC_MDown", [&](Trap& on) {
    on.step([&] { UserControl_MouseDown(scroll::leftButton, 0, 0, 0); });
    on.step([&] { PaintState(); });
  });
}

void HorizontalButton::UC_MUp() {
  trapped(here_, "UC_MUp",
          [&](Trap& on) { on.step([&] { UserControl_MouseUp(scroll::leftButton, 0, -1, -1); }); });
}

ButtonState HorizontalButton::state() const {
  if (!En_) return ButtonState::disabled;
  if (!MouseInside_) return ButtonState::normal;
  return PressState_ == Press::down ? ButtonState::pressed : ButtonState::hover;
}

void HorizontalButton::PaintState() {
  trapped(here_, "PaintState", [&](Trap& on) {
    if (C_ == scroll::customStyle) {
      paintCustom(on);
      return;
    }
    on.step([&] {
      const std::int32_t index =
          checked::add(checked::multiply(C_, 4), static_cast<std::int32_t>(state()));
      surface_.PaintPicture(art::button(arrow_, index), 0, 0);
    });
  });
}

/// Flat, without a rim and without a disabled look.
void HorizontalButton::paintCustom(Trap& on) {
  const bool isDown = PressState_ == Press::down;
  const Colour face = !MouseInside_ ? Button_ : isDown ? ButtonDown_ : ButtonHover_;
  const Colour arrow = !MouseInside_ ? Arrow_ : isDown ? ArrowDown_ : ArrowHover_;
  on.step([&] { scroll::fill(surface_, face); });
  on.step([&] { surface_.ForeColor(arrow); });
  on.step([&] { DrawArrow(arrow); });
}

void HorizontalButton::DrawArrow(Colour ForeColor) {
  trapped(here_, "DrawArrow", [&](Trap& on) {
    const auto draw = [&](const ChevronLine& line) {
      on.step([&] {
        surface_.Line(LineMode::plainLine, line.from.x, line.from.y, line.to.x, line.to.y,
                      ForeColor);
      });
    };
    for (const ChevronLine& line : chevron_.before) draw(line);
    on.step([&] { surface_.PSet(chevron_.tip.x, chevron_.tip.y, ForeColor); });
    for (const ChevronLine& line : chevron_.behind) draw(line);
  });
}

}  // namespace norvane
