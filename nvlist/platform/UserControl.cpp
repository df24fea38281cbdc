#include <nvlist/platform/UserControl.h>

#include <algorithm>
#include <utility>

#include <nvlist/values/Failure.h>

namespace norvane {

UserControl::UserControl(Container& place) : container_(place), surface_(place.surface()) {
  container_.attach(this);
}

UserControl::UserControl(std::unique_ptr<Container> place)
    : ownPlace_(std::move(place)), container_(*ownPlace_), surface_(container_.surface()) {
  container_.attach(this);
}

UserControl::~UserControl() {
  ignoringFailures([&] { container_.attach(nullptr); });
}

void UserControl::UserControl_MouseDown(std::int16_t, std::int16_t, float, float) {}
void UserControl::UserControl_MouseMove(std::int16_t, std::int16_t, float, float) {}
void UserControl::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {}
void UserControl::UserControl_KeyDown(std::int16_t&, std::int16_t) {}
void UserControl::UserControl_KeyPress(std::int16_t&) {}
void UserControl::UserControl_KeyUp(std::int16_t, std::int16_t) {}
void UserControl::UserControl_AmbientChanged(std::string_view) {}

void UserControl::Move(const Bounds& bounds) {
  const Bounds wanted = {bounds.Left, bounds.Top, std::max(bounds.Width, 0.0F),
                         std::max(bounds.Height, 0.0F)};
  if (wanted == bounds_) return;
  // If the platform refuses the place, the control stays where it was.
  container_.move(wanted);
  const Bounds before = std::exchange(bounds_, wanted);
  if (wanted.Width != before.Width || wanted.Height != before.Height) UserControl_Resize();
}

void UserControl::Visible(Boolean value) {
  const bool isChange = static_cast<bool>(value) != static_cast<bool>(visible_);
  if (isChange) container_.show(static_cast<bool>(value));
  visible_ = value;
  if (isChange && value) UserControl_Show();
}

}  // namespace norvane
