#include <nvlist/platform/headless/HeadlessContainer.h>

#include <algorithm>

#include <nvlist/platform/UserControl.h>
#include <nvlist/values/Failure.h>

namespace norvane {

HeadlessContainer::HeadlessContainer(float width, float height)
    : ownSurface_(std::in_place, width, height),
      surface_(*ownSurface_),
      root_(*this),
      handle_(++lastHandle_) {}

HeadlessContainer::HeadlessContainer(Surface& surface)
    : surface_(surface), root_(*this), handle_(++lastHandle_) {}

HeadlessContainer::HeadlessContainer(HeadlessContainer* parent)
    : ownSurface_(std::in_place, 0.0F, 0.0F),
      surface_(*ownSurface_),
      parent_(parent),
      root_(parent->root_),
      handle_(++root_.lastHandle_) {
  parent_->children_.push_back(this);
}

HeadlessContainer::~HeadlessContainer() {
  for (HeadlessContainer* child : children_) child->parent_ = nullptr;
  if (parent_) std::erase(parent_->children_, this);
  if (root_.pressed_ == this) root_.pressed_ = nullptr;
  if (root_.captured_ == this) root_.captured_ = nullptr;
}

void HeadlessContainer::attach(UserControl* control) {
  control_ = control;
  // Its edit boxes went with it.
  if (!control) textBoxes_.clear();
}

std::unique_ptr<Container> HeadlessContainer::addChild() {
  return std::unique_ptr<Container>(new HeadlessContainer(this));
}

std::unique_ptr<Timer> HeadlessContainer::addTimer(std::function<void()> tick) {
  return root_.clock_.addTimer(std::move(tick));
}

std::unique_ptr<TextBox> HeadlessContainer::addTextBox(
    std::function<void(std::int16_t&)> keyPress) {
  auto box = std::make_unique<HeadlessTextBox>(std::move(keyPress));
  textBoxes_.push_back(box.get());
  return box;
}

bool HeadlessContainer::turnWheel(std::int16_t delta) {
  // A copy, as the control may end the hook.
  const auto procedure = wheelProcedure_;
  if (!procedure) return false;
  procedure(std::int32_t{delta} * 0x10000, 0);
  return true;
}

void HeadlessContainer::paintLater() {
  isPaintPending_ = true;
  if (!ownSurface_) {
    paintPending();
  } else if (!ownSurface_->beforeLook) {
    ownSurface_->beforeLook = [this] { paintPending(); };
  }
}

void HeadlessContainer::paintPending() {
  if (std::exchange(isPaintPending_, false) && control_) control_->UserControl_Paint();
}

RecordingSurface& HeadlessContainer::ownSurface() {
  if (!ownSurface_) throw Failure::invalidCall();
  return *ownSurface_;
}

void HeadlessContainer::PropertyChanged(std::string_view property) {
  // A copy, as a handler may take itself away.
  const auto handler = onPropertyChanged;
  if (handler) handler(property);
}

void HeadlessContainer::DoEvents() {
  if (root_.queue_.empty()) return;
  const std::function<void()> message = std::move(root_.queue_.front());
  root_.queue_.pop_front();
  if (message) message();
}

void HeadlessContainer::move(const Bounds& bounds) {
  bounds_ = bounds;
  ownSurface().resize(bounds.Width, bounds.Height);
}

HeadlessContainer* HeadlessContainer::hit(Point point) {
  for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
    const Bounds& place = (*child)->bounds_;
    const Point inside{point.x - place.Left, point.y - place.Top};
    const bool isInside = inside.x >= 0 && inside.y >= 0 && inside.x < place.Width &&
                          inside.y < place.Height && (*child)->isVisible_;
    if (!isInside) continue;
    // What a disabled control covers hears nothing either.
    return (*child)->isEnabled_ ? (*child)->hit(inside) : nullptr;
  }
  return isEnabled_ ? this : nullptr;
}

HeadlessContainer* HeadlessContainer::hitOnForm(Point point) {
  const Surface& form = root_.surface_;
  const bool isInside =
      point.x >= 0 && point.y >= 0 && point.x < form.ScaleWidth() && point.y < form.ScaleHeight();
  return isInside ? root_.hit(point) : nullptr;
}

HeadlessContainer::Point HeadlessContainer::onRoot(Point point) const {
  for (const HeadlessContainer* place = this; place->parent_; place = place->parent_)
    point = {point.x + place->bounds_.Left, point.y + place->bounds_.Top};
  return point;
}

HeadlessContainer::Point HeadlessContainer::fromRoot(Point point) const {
  const Point origin = onRoot({0, 0});
  return {point.x - origin.x, point.y - origin.y};
}

void HeadlessContainer::press(float x, float y, std::int16_t button, std::int16_t shift) {
  const Point point = onRoot({x, y});
  HeadlessContainer* const target = root_.pressed_ ? root_.pressed_ : hitOnForm(point);
  if (!target || !target->control_) return;
  root_.pressed_ = target;
  root_.buttonsDown_ |= button;
  if (button == 1) root_.isDoubleClick_ = false;
  const Point own = target->fromRoot(point);
  target->control_->UserControl_MouseDown(button, shift, own.x, own.y);
}

void HeadlessContainer::doubleClick(float x, float y, std::int16_t button, std::int16_t shift) {
  const Point point = onRoot({x, y});
  HeadlessContainer* const target = hitOnForm(point);
  if (!target || !target->control_) return;
  root_.pressed_ = target;
  root_.buttonsDown_ |= button;
  root_.isDoubleClick_ = button == 1 && target->control_->UserControl_DblClick();
  if (!root_.isDoubleClick_) press(x, y, button, shift);
}

void HeadlessContainer::moveTo(float x, float y, std::int16_t buttons, std::int16_t shift) {
  const Point point = onRoot({x, y});
  const auto tell = [&](HeadlessContainer* target) {
    if (!target || !target->control_) return;
    const Point own = target->fromRoot(point);
    target->control_->UserControl_MouseMove(buttons, shift, own.x, own.y);
  };
  if (root_.pressed_) {
    tell(root_.pressed_);
    return;
  }
  HeadlessContainer* const under = hitOnForm(point);
  if (root_.captured_ != under) tell(root_.captured_);
  tell(under);
}

void HeadlessContainer::release(float x, float y, std::int16_t button, std::int16_t shift) {
  HeadlessContainer* const target = root_.pressed_;
  root_.buttonsDown_ &= ~button;
  if (!target || !target->control_) return;
  const Point point = onRoot({x, y});
  const Point own = target->fromRoot(point);
  const bool isClick = button == 1 && !root_.isDoubleClick_ && hitOnForm(point) == target;
  target->control_->UserControl_MouseUp(button, shift, own.x, own.y);
  // The handler may have ended the control.
  const bool isStillThere = root_.pressed_ == target;
  if (root_.buttonsDown_ == 0) root_.pressed_ = nullptr;
  if (isStillThere && isClick) target->control_->UserControl_Click();
}

}  // namespace norvane
