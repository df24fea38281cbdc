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

/// The place of a control: everything a control asks of the form, or of the parent control, around
/// it. A platform has one for each control, and it outlives the control. Any call may throw.
class Container {
 public:
  virtual ~Container() = default;

  /// Sets the control to notify. A control calls this when it is created, and with nullptr when it
  /// is destroyed.
  virtual void attach(UserControl* control) = 0;
  /// The surface the control draws on. It lives as long as the place.
  virtual Surface& surface() = 0;

  // ---- the form ----

  /// Called after each change of a property of the control, with the exact name of the property.
  virtual void PropertyChanged(std::string_view name) = 0;

  /// False while the control is in a form designer.
  virtual Boolean UserMode() = 0;
  /// The ambient font, which a new control starts with a copy of. May be empty.
  virtual norvane::Font AmbientFont() = 0;
  /// The name that the host has given this control.
  virtual std::string Name() = 0;

  /// Whether DoEvents would find anything to do. Loops over items call this for each item, so it
  /// must cost next to nothing.
  virtual bool EventsWaiting() = 0;
  /// Dispatches messages, timers and repaints that are waiting, or some of them. Handlers of the
  /// host run meanwhile and may call any public operation of the control.
  virtual void DoEvents() = 0;

  // ---- the place ----

  /// Moves the control and gives its surface the new size, without notifying the control. The
  /// platform may round.
  virtual void move(const Bounds& bounds) = 0;
  /// Shows or hides the control. Default: shown.
  virtual void show(bool isVisible) = 0;
  /// Whether the control and the controls in it get the mouse. Default: true. The end of a press is
  /// delivered in any case: a repeat button repeats until then.
  virtual void enable(bool isEnabled) = 0;

  /// From now on, until ReleaseCapture, the control also gets the moves of the pointer outside of
  /// it. A platform that cannot see those may send one move outside of the control when the pointer
  /// leaves; it need not take the pointer from other programs.
  virtual void SetCapture() = 0;
  virtual void ReleaseCapture() = 0;

  /// The handle of the control's window, or 0 if the platform has none.
  virtual std::int32_t hwnd() = 0;
  /// From now on `procedure` alone gets the messages of the mouse wheel over the control: the turn
  /// in the high half of `wParam`, 120 for each notch, and the keys in the low half; the position
  /// in the halves of `lParam`, y in the high one. An empty function ends this.
  virtual void hookWheel(
      std::function<void(std::int32_t wParam, std::int32_t lParam)> procedure) = 0;

  /// Runs the control's UserControl_Paint once before its image is shown or read next.
  virtual void paintLater() = 0;

  // ---- children ----

  /// Adds the place of a child control, in front of those before.
  virtual std::unique_ptr<Container> addChild() = 0;
  /// Adds an edit box, in front of all children. It is hidden. `keyPress` gets each character that
  /// is typed; setting it to 0 keeps the character out of the box.
  virtual std::unique_ptr<TextBox> addTextBox(
      std::function<void(std::int16_t& KeyAscii)> keyPress) = 0;
  /// A timer that calls `tick`, which must not throw. It is off.
  virtual std::unique_ptr<Timer> addTimer(std::function<void()> tick) = 0;
};

}  // namespace norvane
