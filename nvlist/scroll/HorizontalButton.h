#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/art.h>
#include <nvlist/scroll/values.h>

namespace norvane {

/// A button of the horizontal bar: one event at the press and, while it is held with the pointer in
/// it, one after 350 milliseconds and then each 100. It is as large as its pictures; another size
/// given to it is undone. It has a style of its own colours.
class HorizontalButton : public UserControl {
 public:
  /// The style: blue 0, silver 1, olive 2 or custom 99. In any other one each try to paint is
  /// reported as Failure 340.
  std::int32_t C() const { return C_; }
  void C(std::int32_t value);
  /// False shows the disabled picture, in all styles but the custom one. It does not stop the
  /// button.
  Boolean En() const { return En_; }
  void En(Boolean value);

  /// The chevron in custom style: at rest, while pressed and while hovered. Default: black.
  Colour Arrow() const { return Arrow_; }
  void Arrow(Colour value);
  Colour ArrowDown() const { return ArrowDown_; }
  void ArrowDown(Colour value);
  Colour ArrowHover() const { return ArrowHover_; }
  void ArrowHover(Colour value);
  /// The face behind it. Default: the button face.
  Colour Button() const { return Button_; }
  void Button(Colour value);
  Colour ButtonDown() const { return ButtonDown_; }
  void ButtonDown(Colour value);
  Colour ButtonHover() const { return ButtonHover_; }
  void ButtonHover(Colour value);

  /// A press and a release in the bar's name. The button goes by where the pointer was when it last
  /// moved over it; if that was outside, there is the one event of the press and no more.
  void UC_MDown();
  void UC_MUp();

  void UserControl_InitProperties() override;
  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Paint() override { PaintState(); }

 protected:
  struct Point {
    float x, y;
  };
  struct ChevronLine {
    Point from, to;
  };
  /// How the chevron is drawn in custom style: lines, its tip, and lines again.
  struct Chevron {
    std::array<ChevronLine, 3> before;
    Point tip;
    std::array<ChevronLine, 3> behind;
  };

  /// The module and the chevron have to outlive the button.
  HorizontalButton(std::unique_ptr<Container> place, const Module& module, art::Arrow arrow,
                   const Chevron& chevron);

 private:
  /// Tells the bar of a step.
  virtual void raiseEvent() = 0;

  template <class Value>
  void assign(const char* name, Value& field, const Value& value);
  void MouseOut(float X, float Y);
  void Timer1_Timer();
  void PaintState();
  void paintCustom(Trap& on);
  scroll::ButtonState state() const;
  void DrawArrow(Colour ForeColor);

  const Module& here_;
  const art::Arrow arrow_;
  const Chevron& chevron_;
  std::int32_t C_ = 0;
  Boolean En_;
  Colour Arrow_ = 0;
  Colour ArrowDown_ = 0;
  Colour ArrowHover_ = 0;
  Colour Button_ = scroll::buttonFace;
  Colour ButtonDown_ = scroll::buttonFace;
  Colour ButtonHover_ = scroll::buttonFace;
  scroll::Press PressState_ = scroll::Press::none;
  Boolean MouseInside_;
  float LastX_ = 0;
  float LastY_ = 0;
  std::unique_ptr<Timer> Timer1_;
};

}  // namespace norvane
