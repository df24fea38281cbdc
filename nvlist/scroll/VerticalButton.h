#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/art.h>
#include <nvlist/scroll/values.h>

namespace norvane {

/// A button of the vertical bar: one event at the press and, while it is held with the pointer in
/// it, one after 600 milliseconds and then each 100. It is as large as its pictures; another size
/// given to it is undone.
class VerticalButton : public UserControl {
 public:
  /// The style: blue 0, silver 1 or olive 2. In any other one each try to paint is reported as
  /// Failure 340.
  std::int32_t C() const { return C_; }
  void C(std::int32_t value);
  /// False shows the disabled picture. It does not stop the button.
  Boolean En() const { return En_; }
  void En(Boolean value);

  /// A press and a release in the bar's name: the button repeats and does not look pressed. It goes
  /// by where the pointer was when it last moved over the button; if that was outside, there is
  /// the one event of the press and no more.
  void UC_MDown();
  void UC_MUp();

  /// Paints the button at rest.
  void UserControl_InitProperties() override;
  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Paint() override;

 protected:
  VerticalButton(std::unique_ptr<Container> place, const Module& module, art::Arrow arrow);

 private:
  /// Tells the bar of a step.
  virtual void raiseEvent() = 0;

  void MouseOut(float X, float Y);
  void Timer1_Timer();
  void paint(scroll::ButtonState state);

  const Module& here_;
  const art::Arrow arrow_;
  std::int32_t C_ = 0;
  Boolean En_;
  scroll::Press PressState_ = scroll::Press::none;
  Boolean MouseInside_;
  float LastX_ = 0;
  float LastY_ = 0;
  Picture shown_;
  std::unique_ptr<Timer> Timer1_;
};

}  // namespace norvane
