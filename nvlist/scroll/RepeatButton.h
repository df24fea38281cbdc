#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/scroll/Part.h>
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
class RepeatButton : public Part {
 public:
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
  void Arrow(Colour value) { assign("Arrow", arrow_.rest, value); }
  Colour ArrowDown() const { return arrow_.down; }
  void ArrowDown(Colour value) { assign("ArrowDown", arrow_.down, value); }
  Colour ArrowHover() const { return arrow_.hover; }
  void ArrowHover(Colour value) { assign("ArrowHover", arrow_.hover, value); }
  /// The background of the arrow. Default: the button face.
  Colour Button() const { return face_.rest; }
  void Button(Colour value) { assign("Button", face_.rest, value); }
  Colour ButtonDown() const { return face_.down; }
  void ButtonDown(Colour value) { assign("ButtonDown", face_.down, value); }
  Colour ButtonHover() const { return face_.hover; }
  void ButtonHover(Colour value) { assign("ButtonHover", face_.hover, value); }

 private:
  /// What a picture shows; its index is style * 4 + state.
  enum class State : std::int32_t { normal = 1, hover, pressed, disabled };

  void raiseEvent();
  void Timer1_Timer();
  State restState() const { return En() ? State::normal : State::disabled; }
  State mouseState() const;
  void show(State chosen);
  void repaint() override { show(restState()); }
  void paint(State state);
  void PaintState();
  void paintCustom(Trap& on);
  void DrawArrow(Colour ForeColor);

  ButtonEvents& owner_;
  const ButtonKind& kind_;
  StateColours arrow_ = {0, 0, 0};
  StateColours face_;
  float LastX_ = 0;
  float LastY_ = 0;
  Picture shown_;
  std::unique_ptr<Timer> Timer1_;
};

}  // namespace norvane::scroll
