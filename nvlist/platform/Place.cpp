#include <nvlist/platform/Place.h>

#include <utility>

#include <nvlist/platform/UserControl.h>

namespace norvane {

Place::Place(Place* parent) : parent_(parent) {
  if (parent_) parent_->places_.push_back(this);
}

Place::~Place() {
  mouse().forget(*this);
  if (parent_) std::erase(parent_->places_, this);
  for (Place* child : places_) child->parent_ = nullptr;
}

Point Place::toRoot(Point point) const {
  for (const Place* place = this; place->parent_; place = place->parent_)
    point = point + place->bounds_.origin();
  return point;
}

void Place::forEachVisible(const std::function<void(Place&, Point, const Bounds&)>& visit) {
  visitVisible(visit, {}, {0, 0, surface().ScaleWidth(), surface().ScaleHeight()});
}

void Place::visitVisible(const std::function<void(Place&, Point, const Bounds&)>& visit,
                         Point origin, const Bounds& clip) {
  if (clip.isEmpty()) return;
  visit(*this, origin, clip);
  for (Place* child : places_) {
    if (!child->isVisible_) continue;
    const Point at = origin + child->bounds_.origin();
    const Bounds whole{at.x, at.y, child->bounds_.Width, child->bounds_.Height};
    child->visitVisible(visit, at, clip.intersected(whole));
  }
}

void Place::paintLater() {
  if (!std::exchange(isPaintPending_, true)) changed();
}

void Place::paintPending() {
  if (std::exchange(isPaintPending_, false) && control_) control_->UserControl_Paint();
}

}  // namespace norvane
