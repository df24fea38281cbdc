#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/differences.h>
#include <nvlist/scroll/values.h>

namespace norvane::scroll {

/// The steps of the buttons.
struct ButtonEvents {
  virtual void ValueUp() = 0;
  virtual void ValueDown() = 0;

 protected:
  ~ButtonEvents() = default;
};

/// A button at an end of a bar. It raises its event at the press and, while it is held with the
/// pointer inside, once more 100 milliseconds after its first delay and then every 100. It keeps
/// the size of its pictures.
class RepeatButton : public UserControl {
 public:
  /// The style: blue 0, silver 1, olive 2, or custom 99 if its kind has that. For any other style
  /// each repaint reports Failure 340. Default: 0.
  std::int32_t C() const { return C_; }
  void C(std::int32_t value);
  /// False shows the disabled picture, except in custom style. It does not stop the button.
  /// Default: false.
  Boolean En() const { return En_; }
  void En(Boolean value);

  /// A press and a release on behalf of the bar. The repeat depends on where the pointer was when
  /// it last moved over the button: if that was outside, only the event of the press is raised.
  void UC_MDown();
  void UC_MUp();

  void UserControl_InitProperties() override;
  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Paint() override;

 protected:
  /// The owner outlives the button.
  RepeatButton(std::unique_ptr<Container> place, ButtonEvents& owner, const ButtonKind& kind);

  /// The chevron in custom style: at rest, while pressed and while hovered. Default: black.
  Colour Arrow() const { return arrow_.rest; }
  void Arrow(Colour value);
  Colour ArrowDown() const { return arrow_.down; }
  void ArrowDown(Colour value);
  Colour ArrowHover() const { return arrow_.hover; }
  void ArrowHover(Colour value);
  /// The background of the arrow. Default: the button face.
  Colour Button() const { return face_.rest; }
  void Button(Colour value);
  Colour ButtonDown() const { return face_.down; }
  void ButtonDown(Colour value);
  Colour ButtonHover() const { return face_.hover; }
  void ButtonHover(Colour value);

 private:
  /// What a picture shows; its index is style * 4 + state.
  enum class State : std::int32_t { normal = 1, hover, pressed, disabled };

  template <class Field>
  void assign(const char* name, Field& field, Field value);
  void MouseOut(float X, float Y);
  void raiseEvent();
  void Timer1_Timer();
  State restState() const { return En_ ? State::normal : State::disabled; }
  State mouseState() const;
  void show(State chosen);
  void paint(State state);
  void PaintState();
  void paintCustom(Trap& on);
  void DrawArrow(Colour ForeColor);

  ButtonEvents& owner_;
  const ButtonKind& kind_;
  std::int32_t C_ = 0;
  Boolean En_;
  StateColours arrow_ = {0, 0, 0};
  StateColours face_;
  Press PressState_ = Press::none;
  Boolean MouseInside_;
  float LastX_ = 0;
  float LastY_ = 0;
  Picture shown_;
  std::unique_ptr<Timer> Timer1_;
};

}  // namespace norvane::scroll
