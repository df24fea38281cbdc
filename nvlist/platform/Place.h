#pragma once

#include <functional>
#include <vector>

#include <nvlist/platform/Container.h>
#include <nvlist/platform/MouseDispatcher.h>

namespace norvane {

/// The common part of the places of all platforms: the control, its bounds, the places of its child
/// controls, and the mouse. Each platform derives its own class.
///
/// Places form a tree. The outermost one, the root, represents what the platform shows: a window,
/// or a recording. The others are regions of it without windows of their own, shown back to front
/// (forEachVisible). A platform reports the mouse to `mouse` of the root.
class Place : public Container {
 public:
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  ~Place() override;

  /// The attached control, or nullptr.
  UserControl* control() const { return control_; }
  /// In pixels of the parent place. The bounds of the root are not used; its size is that of its
  /// surface.
  const Bounds& bounds() const { return bounds_; }
  bool isVisible() const { return isVisible_; }
  bool isEnabled() const { return isEnabled_; }
  /// Whether this place and all its ancestors are visible.
  bool isShown() const { return isVisible_ && (!parent_ || parent_->isShown()); }
  bool hasCapture() { return root().mouse_.captured() == this; }

  /// The child places, back to front.
  const std::vector<Place*>& places() const { return places_; }
  Place* parent() const { return parent_; }
  Place& root() { return parent_ ? parent_->root() : *this; }
  /// Between a point of this place and the same point of the root.
  Point toRoot(Point point) const;
  Point fromRoot(Point point) const { return point - toRoot({}); }
  /// The dispatcher of the root. Positions are in pixels of the root.
  MouseDispatcher& mouse() { return root().mouse_; }

  /// Calls `visit` for this place and its visible descendants, back to front. `origin` is the top
  /// left corner of the place and `clip` its visible part, both in pixels of this place; places
  /// without a visible part are skipped. No place may be added or destroyed meanwhile.
  void forEachVisible(const std::function<void(Place&, Point origin, const Bounds& clip)>& visit);
  /// Calls UserControl_Paint if the control has called paintLater since the last call.
  void paintPending();

  void attach(UserControl* control) override { control_ = control; }
  void move(const Bounds& bounds) override { bounds_ = bounds; }
  void show(bool isVisible) override { isVisible_ = isVisible; }
  void enable(bool isEnabled) override { isEnabled_ = isEnabled; }
  void SetCapture() override { mouse().capture(*this); }
  void ReleaseCapture() override { mouse().releaseCapture(); }
  void paintLater() override;

 protected:
  /// A place in another one, in front of those before; a root for nullptr.
  explicit Place(Place* parent);

  /// The image of this place has changed, and the platform has to show it again. Called by
  /// paintLater; a platform also calls it from its surface. Nothing has been painted yet.
  virtual void changed() = 0;

 private:
  void visitVisible(const std::function<void(Place&, Point, const Bounds&)>& visit, Point origin,
                    const Bounds& clip);

  Place* parent_;
  std::vector<Place*> places_;
  UserControl* control_ = nullptr;
  Bounds bounds_;
  bool isVisible_ = true;
  bool isEnabled_ = true;
  bool isPaintPending_ = false;
  /// Used only at the root.
  MouseDispatcher mouse_{*this};
};

}  // namespace norvane
