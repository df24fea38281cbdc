#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <nvlist/drawing/Surface.h>
#include <nvlist/platform/Bounds.h>
#include <nvlist/platform/TextBox.h>
#include <nvlist/platform/Timer.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Font.h>

namespace norvane {

class UserControl;

/// The place a control stands in: what a control asks of the form, or of the control, around it. A
/// platform has one for each control; it outlives the control. Any call may throw.
class Container {
 public:
  virtual ~Container() = default;

  /// Told once by a control when it comes up, and with nullptr when it goes: whom to notify.
  virtual void attach(UserControl* control) = 0;
  /// What the control draws on. Lives as long as the place.
  virtual Surface& surface() = 0;

  // ---- the form ----

  /// Told after each change of a property, with the property's exact name.
  virtual void PropertyChanged(std::string_view name) = 0;

  /// The ambient of the form: false while the control sits in a designer.
  virtual Boolean UserMode() = 0;
  /// The ambient font; a new control starts with a copy of it. May be empty.
  virtual norvane::Font AmbientFont() = 0;
  /// The name that the host gave this control.
  virtual std::string Name() = 0;

  /// Whether DoEvents would find anything to do. Loops over items ask this once an item, so it has
  /// to cost next to nothing.
  virtual bool EventsWaiting() = 0;
  /// Dispatches what waits, or some of it: messages, timers, repaints. Handlers of the host run
  /// inside it and may call any public operation of the control.
  virtual void DoEvents() = 0;

  // ---- the place ----

  /// Moves the control and gives its surface the new size, both at once; the platform may round.
  /// It does not notify the control.
  virtual void move(const Bounds& bounds) = 0;
  /// Shows or hides it. A new place shows.
  virtual void show(bool isVisible) = 0;
  /// Whether the control and those in it hear the mouse. A new place does. The end of a press is
  /// heard all the same: a button that is held repeats until then.
  virtual void enable(bool isEnabled) = 0;

  /// From now on the control hears moves also where the pointer is outside of it, until
  /// ReleaseCapture. A platform may end this with one move that tells of the pointer outside; it
  /// need not take the pointer from other programs.
  virtual void SetCapture() = 0;
  virtual void ReleaseCapture() = 0;

  /// The handle of the control's window; 0 where there is none.
  virtual std::int32_t hwnd() = 0;
  /// From now on every message of the mouse wheel over the control goes to `procedure` alone, with
  /// the turn in the high half of `wParam`, 120 a notch, and the keys in the low half; the position
  /// in the halves of `lParam`, y in the high one. An empty function ends it.
  virtual void hookWheel(
      std::function<void(std::int32_t wParam, std::int32_t lParam)> procedure) = 0;

  /// The control's UserControl_Paint runs before its image is looked at next. Asking again changes
  /// nothing.
  virtual void paintLater() = 0;

  // ---- what stands in it ----

  /// A place for one more control, in this one and in front of those before.
  virtual std::unique_ptr<Container> addChild() = 0;
  /// An edit box in front of all that. `keyPress` gets each character that is typed; one that it
  /// sets to 0 never reaches the box.
  virtual std::unique_ptr<TextBox> addTextBox(
      std::function<void(std::int16_t& KeyAscii)> keyPress) = 0;
  /// A timer that calls `tick`, which must not throw.
  virtual std::unique_ptr<Timer> addTimer(std::function<void()> tick) = 0;
};

}  // namespace norvane
