#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <nvlist/drawing/RecordingSurface.h>
#include <nvlist/platform/Container.h>
#include <nvlist/platform/headless/HeadlessClock.h>
#include <nvlist/platform/headless/HeadlessTextBox.h>

namespace norvane {

/// The place of a control without a screen, with those of the controls in it. Its message queue,
/// its clock and its mouse are moved by the program.
class HeadlessContainer : public Container {
 public:
  /// A form with a surface of its own, of a size in pixels.
  explicit HeadlessContainer(float width = 200, float height = 100);
  /// A form that shows a surface of the program's.
  explicit HeadlessContainer(Surface& surface);
  ~HeadlessContainer() override;

  /// False shows what a designer shows.
  Boolean userMode = true;
  /// Default: Tahoma at 8.25 points.
  Font ambientFont = makeRef<FontObject>();
  std::string name = "nvList1";
  /// Called for each change of a property of the control, if set.
  std::function<void(std::string_view)> onPropertyChanged;

  /// Puts something at the end of the queue. Each DoEvents takes one from its front and runs it;
  /// an empty function lets that DoEvents pass.
  void post(std::function<void()> message) { root_.queue_.push_back(std::move(message)); }
  std::size_t waiting() const { return root_.queue_.size(); }

  /// By which the timers of all controls of the form tick.
  HeadlessClock& clock() { return root_.clock_; }

  // The mouse, at a position on this place's surface. It reaches the foremost visible control
  // under it, whose UserControl_MouseDown says what the arguments mean. While a button is down
  // everything reaches the control that was pressed.
  void press(float x, float y, std::int16_t button = 1, std::int16_t shift = 0);
  void moveTo(float x, float y, std::int16_t buttons = 0, std::int16_t shift = 0);
  void release(float x, float y, std::int16_t button = 1, std::int16_t shift = 0);

  /// The places in this one, from the back to the front.
  const std::vector<HeadlessContainer*>& children() const { return children_; }
  const Bounds& bounds() const { return bounds_; }
  /// Whether this place and all around it show.
  bool isShown() const { return isVisible_ && (!parent_ || parent_->isShown()); }
  bool hasCapture() const { return root_.captured_ == this; }
  /// The edit boxes in this place, in the order of their making.
  const std::vector<HeadlessTextBox*>& textBoxes() const { return textBoxes_; }
  /// A turn of the wheel, 120 a notch away from the user. False where the control has no hook on
  /// it.
  bool turnWheel(std::int16_t delta);
  /// The second press of a double click, as the control under it hears it.
  void doubleClick(float x, float y, std::int16_t button = 1, std::int16_t shift = 0);
  /// The surface it made for itself; Failure 5 for a form that shows the program's.
  RecordingSurface& ownSurface();

  void attach(UserControl* control) override;
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view property) override;
  Boolean UserMode() override { return root_.userMode; }
  Font AmbientFont() override { return root_.ambientFont; }
  std::string Name() override { return name; }
  bool EventsWaiting() override { return !root_.queue_.empty(); }
  void DoEvents() override;
  void move(const Bounds& bounds) override;
  void show(bool isVisible) override { isVisible_ = isVisible; }
  void enable(bool isEnabled) override { isEnabled_ = isEnabled; }
  void SetCapture() override { root_.captured_ = this; }
  void ReleaseCapture() override { root_.captured_ = nullptr; }
  void paintLater() override;
  std::unique_ptr<Container> addChild() override;
  std::int32_t hwnd() override { return handle_; }
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override {
    wheelProcedure_ = std::move(procedure);
  }
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override;
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override;

 private:
  struct Point {
    float x, y;
  };

  explicit HeadlessContainer(HeadlessContainer* parent);

  void paintPending();
  /// The foremost control at a point of this place that hears the mouse.
  HeadlessContainer* hit(Point point);
  /// The same for a point of the form; nullptr outside of it.
  HeadlessContainer* hitOnForm(Point point);
  Point onRoot(Point point) const;
  Point fromRoot(Point point) const;

  std::optional<RecordingSurface> ownSurface_;
  Surface& surface_;
  HeadlessContainer* parent_ = nullptr;
  HeadlessContainer& root_;
  std::vector<HeadlessContainer*> children_;
  UserControl* control_ = nullptr;
  Bounds bounds_;
  bool isVisible_ = true;
  bool isEnabled_ = true;
  bool isPaintPending_ = false;
  std::vector<HeadlessTextBox*> textBoxes_;
  std::function<void(std::int32_t, std::int32_t)> wheelProcedure_;
  // Of the root, for all in it.
  std::deque<std::function<void()>> queue_;
  HeadlessClock clock_;
  HeadlessContainer* pressed_ = nullptr;
  int buttonsDown_ = 0;
  bool isDoubleClick_ = false;
  std::int32_t lastHandle_ = 0;

  const std::int32_t handle_;
  HeadlessContainer* captured_ = nullptr;
};

}  // namespace norvane
