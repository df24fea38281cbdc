#include <nvlist/platform/headless/HeadlessContainer.h>

#include <utility>

#include <nvlist/values/Failure.h>

namespace norvane {

HeadlessContainer::HeadlessContainer(float width, float height)
    : Place(nullptr),
      ownSurface_(std::in_place, width, height),
      surface_(*ownSurface_),
      handle_(++lastHandle_) {}

HeadlessContainer::HeadlessContainer(Surface& surface)
    : Place(nullptr), surface_(surface), handle_(++lastHandle_) {}

HeadlessContainer::HeadlessContainer(HeadlessContainer* parent)
    : Place(parent),
      ownSurface_(std::in_place, 0.0F, 0.0F),
      surface_(*ownSurface_),
      handle_(++form().lastHandle_) {}

void HeadlessContainer::attach(UserControl* control) {
  Place::attach(control);
  // The control has ended, and its edit boxes with it.
  if (!control) textBoxes_.clear();
}

std::unique_ptr<Container> HeadlessContainer::addChild() {
  return std::unique_ptr<Container>(new HeadlessContainer(this));
}

std::vector<HeadlessContainer*> HeadlessContainer::children() const {
  std::vector<HeadlessContainer*> result;
  for (Place* place : places()) result.push_back(static_cast<HeadlessContainer*>(place));
  return result;
}

std::unique_ptr<Timer> HeadlessContainer::addTimer(std::function<void()> tick) {
  return form().clock_.addTimer(std::move(tick));
}

std::unique_ptr<TextBox> HeadlessContainer::addTextBox(
    std::function<void(std::int16_t&)> keyPress) {
  auto box = std::make_unique<HeadlessTextBox>(std::move(keyPress));
  textBoxes_.push_back(box.get());
  return box;
}

void HeadlessContainer::changed() {
  if (!ownSurface_) {
    paintPending();
  } else if (!ownSurface_->beforeLook) {
    ownSurface_->beforeLook = [this] { paintPending(); };
  }
}

RecordingSurface& HeadlessContainer::ownSurface() {
  if (!ownSurface_) throw Failure::invalidCall();
  return *ownSurface_;
}

void HeadlessContainer::PropertyChanged(std::string_view property) {
  // A copy: the handler may replace itself.
  const auto handler = onPropertyChanged;
  if (handler) handler(property);
}

void HeadlessContainer::DoEvents() {
  auto& queue = form().queue_;
  if (queue.empty()) return;
  const std::function<void()> message = std::move(queue.front());
  queue.pop_front();
  if (message) message();
}

void HeadlessContainer::move(const Bounds& bounds) {
  Place::move(bounds);
  ownSurface().resize(bounds.Width, bounds.Height);
}

void HeadlessContainer::press(float x, float y, std::int16_t button, std::int16_t shift) {
  mouse().press(toRoot({x, y}), button, shift);
}

void HeadlessContainer::doubleClick(float x, float y, std::int16_t button, std::int16_t shift) {
  mouse().doubleClick(toRoot({x, y}), button, shift);
}

void HeadlessContainer::moveTo(float x, float y, std::int16_t buttons, std::int16_t shift) {
  mouse().move(toRoot({x, y}), buttons, shift);
}

void HeadlessContainer::release(float x, float y, std::int16_t button, std::int16_t shift) {
  mouse().release(toRoot({x, y}), button, shift);
}

bool HeadlessContainer::turnWheel(std::int16_t delta) {
  // A copy: the control may end the hook.
  const auto procedure = wheelProcedure_;
  if (!procedure) return false;
  procedure(std::int32_t{delta} * 0x10000, 0);
  return true;
}

}  // namespace norvane
