#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include <nvlist/platform/Container.h>
#include <nvlist/values/Boolean.h>

namespace norvane {

class PropertyBag;

/// Base of every control of the library: the list, its scroll bars, their thumbs and buttons.
///
/// A platform calls the notifications, with positions in pixels of the control's own surface. The
/// parent control reads and sets the place.
class UserControl {
 public:
  UserControl(const UserControl&) = delete;
  UserControl& operator=(const UserControl&) = delete;
  virtual ~UserControl();

  // ---- start, end and property store ----

  /// Sets the defaults of a new control. A platform calls this or UserControl_ReadProperties once,
  /// before anything else.
  virtual void UserControl_InitProperties() {}
  /// Sets each property to its stored value, or to its default.
  virtual void UserControl_ReadProperties(const PropertyBag&) {}
  /// Stores each property that differs from its default.
  virtual void UserControl_WriteProperties(PropertyBag&) {}
  /// Gives up what the control holds outside of itself, such as the wheel hook. A control that
  /// needs this does it when it is destroyed, too; a second time does nothing.
  virtual void UserControl_Terminate() {}

  // ---- notifications of the platform ----

  /// `Button` is the button that was pressed or released: 1 left, 2 right, 4 middle; for a move it
  /// is the sum of all that are down. `Shift` is the sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
  /// From a press to its release, the pressed control gets all moves, wherever the pointer is.
  virtual void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y);
  virtual void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y);
  virtual void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y);
  /// Called after the left button was pressed and released over the control.
  virtual void UserControl_Click() {}
  /// Called in place of the second press of a double click. Returns false if the control does not
  /// handle double clicks; it then gets the press.
  virtual bool UserControl_DblClick() { return false; }

  /// `KeyCode` is a virtual-key code of Windows, such as 38 for Up. The control sets it to 0 to
  /// swallow the key.
  virtual void UserControl_KeyDown(std::int16_t& KeyCode, std::int16_t Shift);
  /// A character that a key produced.
  virtual void UserControl_KeyPress(std::int16_t& KeyAscii);
  virtual void UserControl_KeyUp(std::int16_t KeyCode, std::int16_t Shift);

  /// The surface has a new size.
  virtual void UserControl_Resize() {}
  /// The control has become visible.
  virtual void UserControl_Show() {}
  /// The keyboard focus. EnterFocus comes first, when the focus moves into the control or a control
  /// in it; GotFocus follows if the control itself has it. The other two come in reverse order.
  virtual void UserControl_EnterFocus() {}
  virtual void UserControl_GotFocus() {}
  virtual void UserControl_LostFocus() {}
  virtual void UserControl_ExitFocus() {}
  /// An ambient property of the form has changed. "DisplayName" is the control's name.
  virtual void UserControl_AmbientChanged(std::string_view PropertyName);
  /// The control has to repaint itself: it asked for that (Container::paintLater), or its image was
  /// lost, for example when the window moved to a screen of another resolution.
  virtual void UserControl_Paint() {}

  // ---- the place, in pixels of the parent control ----

  /// The position in the parent control.
  float Left() const { return bounds_.Left; }
  void Left(float value) {
    if (value != bounds_.Left) Move({value, Top(), Width(), Height()});
  }
  float Top() const { return bounds_.Top; }
  void Top(float value) {
    if (value != bounds_.Top) Move({Left(), value, Width(), Height()});
  }
  /// The size. A negative one counts as 0. A new one runs UserControl_Resize.
  float Width() const { return bounds_.Width; }
  void Width(float value) {
    if (value != bounds_.Width) Move({Left(), Top(), value, Height()});
  }
  float Height() const { return bounds_.Height; }
  void Height(float value) {
    if (value != bounds_.Height) Move({Left(), Top(), Width(), value});
  }
  /// Sets position and size at once.
  void Move(const Bounds& bounds);
  /// Default: true. Becoming visible runs UserControl_Show.
  Boolean Visible() const { return visible_; }
  void Visible(Boolean value);

 protected:
  /// A control sets its own outer size in twips.
  static constexpr float twipsPerPixel = 15;

  /// A control in a place that belongs to someone else and outlives it.
  explicit UserControl(Container& place);
  /// A control that owns its place.
  explicit UserControl(std::unique_ptr<Container> place);

  /// Whether the control and the controls in it get the mouse. Default: true.
  void listenToMouse(Boolean on) { container_.enable(static_cast<bool>(on)); }

 private:
  std::unique_ptr<Container> ownPlace_;

 protected:
  /// The place of the control, and what it draws on. Both outlive it.
  Container& container_;
  Surface& surface_;

 private:
  Bounds bounds_;
  Boolean visible_ = true;
};

}  // namespace norvane
