#include <nvlist/platform/MouseDispatcher.h>

#include <utility>

#include <nvlist/platform/Place.h>
#include <nvlist/platform/UserControl.h>

namespace norvane {
namespace {

/// A position outside every control of any size.
constexpr Point nowhere{-1, -1};
constexpr std::int16_t allButtons[] = {1, 2, 4};

Place* foremost(Place& place, Point at) {
  const auto& children = place.places();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    if (!(*child)->isVisible() || !(*child)->bounds().contains(at)) continue;
    return (*child)->isEnabled() ? foremost(**child, at - (*child)->bounds().origin()) : nullptr;
  }
  return place.isEnabled() ? &place : nullptr;
}

}  // namespace

/// Ends the hold when the last button is released, even if the control throws.
struct MouseDispatcher::EndOfHold {
  MouseDispatcher& mouse;
  ~EndOfHold() {
    if (mouse.buttonsDown_ == 0) mouse.pressed_ = nullptr;
  }
};

Place* MouseDispatcher::hit(Point at) const {
  const Surface& form = root_.surface();
  const Bounds whole{0, 0, form.ScaleWidth(), form.ScaleHeight()};
  return whole.contains(at) ? foremost(root_, at) : nullptr;
}

void MouseDispatcher::press(Point at, std::int16_t button, std::int16_t shift) {
  Place* const target = pressed_ ? pressed_ : hit(at);
  if (!target || !target->control()) return;
  pressed_ = target;
  buttonsDown_ |= button;
  if (button == 1) isDoubleClick_ = false;
  const Point own = target->fromRoot(at);
  target->control()->UserControl_MouseDown(button, shift, own.x, own.y);
}

void MouseDispatcher::doubleClick(Point at, std::int16_t button, std::int16_t shift) {
  Place* const target = hit(at);
  if (!target || !target->control()) return;
  pressed_ = target;
  buttonsDown_ |= button;
  isDoubleClick_ = button == 1 && target->control()->UserControl_DblClick();
  if (!isDoubleClick_) press(at, button, shift);
}

void MouseDispatcher::notifyMove(Place* target, Point at, std::int16_t buttons,
                                 std::int16_t shift) {
  if (!target || !target->control()) return;
  const Point own = target->fromRoot(at);
  target->control()->UserControl_MouseMove(buttons, shift, own.x, own.y);
}

void MouseDispatcher::move(Point at, std::int16_t buttons, std::int16_t shift) {
  if (pressed_) return notifyMove(pressed_, at, buttons, shift);
  if (captured_ != hit(at)) notifyMove(captured_, at, buttons, shift);
  notifyMove(hit(at), at, buttons, shift);
}

void MouseDispatcher::release(Point at, std::int16_t button, std::int16_t shift) {
  Place* const target = pressed_;
  buttonsDown_ &= ~button;
  if (!target || !target->control()) return;
  const Point own = target->fromRoot(at);
  bool isClick = button == 1 && !isDoubleClick_ && hit(at) == target;
  {
    const EndOfHold end{*this};
    target->control()->UserControl_MouseUp(button, shift, own.x, own.y);
    // A handler may have destroyed the control.
    isClick = isClick && pressed_ == target;
  }
  if (isClick) target->control()->UserControl_Click();
}

void MouseDispatcher::pointerLeft(std::int16_t shift) {
  if (pressed_ || !captured_ || !captured_->control()) return;
  captured_->control()->UserControl_MouseMove(0, shift, nowhere.x, nowhere.y);
}

void MouseDispatcher::holdLost() {
  const int down = std::exchange(buttonsDown_, 0);
  for (const std::int16_t button : allButtons) {
    const bool isHeld = pressed_ && pressed_ != &root_ && pressed_->control();
    if (isHeld && (down & button) != 0)
      pressed_->control()->UserControl_MouseUp(button, 0, nowhere.x, nowhere.y);
  }
  pressed_ = nullptr;
}

void MouseDispatcher::forget(const Place& place) {
  if (pressed_ == &place) pressed_ = nullptr;
  if (captured_ == &place) captured_ = nullptr;
}

}  // namespace norvane
