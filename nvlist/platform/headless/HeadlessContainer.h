#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <nvlist/drawing/RecordingSurface.h>
#include <nvlist/platform/Place.h>
#include <nvlist/platform/headless/HeadlessClock.h>
#include <nvlist/platform/headless/HeadlessTextBox.h>

namespace norvane {

/// The place of a control without a screen, with the places of the controls in it. The program
/// supplies its messages, its time and its mouse.
class HeadlessContainer : public Place {
 public:
  /// A form with a surface of its own; size in pixels.
  explicit HeadlessContainer(float width = 200, float height = 100);
  /// A form that draws on a surface of the program, which has to outlive it.
  explicit HeadlessContainer(Surface& surface);
  ~HeadlessContainer() override = default;

  /// False while a designer has the form. Default: true.
  Boolean userMode = true;
  /// Default: Tahoma at 8.25 points.
  Font ambientFont = makeRef<FontObject>();
  std::string name = "nvList1";
  /// Called with the name of each property of the control that has changed. Default: none.
  std::function<void(std::string_view)> onPropertyChanged;

  /// Appends a message to the queue of the form. Each DoEvents takes the first one and runs it; an
  /// empty function is a message that does nothing.
  void post(std::function<void()> message) { form().queue_.push_back(std::move(message)); }
  std::size_t waiting() { return form().queue_.size(); }

  /// Drives the timers of all controls on the form.
  HeadlessClock& clock() { return form().clock_; }

  // The mouse, at a position on this place. MouseDispatcher says which control gets it, and
  // UserControl_MouseDown what the arguments mean.
  void press(float x, float y, std::int16_t button = 1, std::int16_t shift = 0);
  void moveTo(float x, float y, std::int16_t buttons = 0, std::int16_t shift = 0);
  void release(float x, float y, std::int16_t button = 1, std::int16_t shift = 0);
  /// The second press of a double click.
  void doubleClick(float x, float y, std::int16_t button = 1, std::int16_t shift = 0);
  /// A turn of the wheel, 120 a notch away from the user. Returns false if the control has not
  /// hooked the wheel.
  bool turnWheel(std::int16_t delta);

  /// What can be seen of this place and of those in it, as text, back to front. For each place a
  /// line with its position on this one, its size and its background, and its drawing calls in
  /// pixels of its own (Recording::text, without settings that change nothing); then the open edit
  /// boxes:
  ///
  ///     (0, 0) 200x60 on #FFFFFF
  ///       Cls
  ///       Line 38 (0, 3)-(200, 16) #C56A31
  ///     (183, 1) 17x58 on #F5F5F0, seen as (183, 1) 17x40
  ///     edit box (3, 3) 197x14 "Graz"
  std::string picture();
  /// Draws the same pictures. `onto` returns the surface for a place, given its bounds on this one;
  /// it fills that surface from its (0, 0) on.
  void replay(const std::function<Surface&(const Bounds& bounds)>& onto);
  /// The places in this one, back to front.
  std::vector<HeadlessContainer*> children() const;
  /// The edit boxes in this place, in the order of their creation.
  const std::vector<HeadlessTextBox*>& textBoxes() const { return textBoxes_; }
  /// The surface that the place made for itself; Failure 5 for a form that draws on another one.
  RecordingSurface& ownSurface();

  void attach(UserControl* control) override;
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view property) override;
  Boolean UserMode() override { return form().userMode; }
  Font AmbientFont() override { return form().ambientFont; }
  std::string Name() override { return name; }
  bool EventsWaiting() override { return !form().queue_.empty(); }
  void DoEvents() override;
  void move(const Bounds& bounds) override;
  std::unique_ptr<Container> addChild() override;
  std::int32_t hwnd() override { return handle_; }
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override {
    wheelProcedure_ = std::move(procedure);
  }
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override;
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override;

 private:
  explicit HeadlessContainer(HeadlessContainer* parent);

  struct Shown;
  std::vector<Shown> shown();

  HeadlessContainer& form() { return static_cast<HeadlessContainer&>(root()); }
  void changed() override;

  std::optional<RecordingSurface> ownSurface_;
  Surface& surface_;
  std::vector<HeadlessTextBox*> textBoxes_;
  std::function<void(std::int32_t, std::int32_t)> wheelProcedure_;
  // In use at the form only, for all places in it.
  std::deque<std::function<void()>> queue_;
  HeadlessClock clock_;
  std::int32_t lastHandle_ = 0;

  const std::int32_t handle_;
};

}  // namespace norvane
