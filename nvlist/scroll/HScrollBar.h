#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/thumbEdges.h>
#include <nvlist/scroll/values.h>

namespace norvane {

/// What the horizontal bar hears of its thumb; positions in pixels of the thumb.
struct HScrollBarEvents {
  virtual void HScrollBar1_MouseDown(std::int16_t Button, float X, float Y) = 0;
  virtual void HScrollBar1_MouseUp() = 0;
  virtual void HScrollBar1_MouseMove(std::int16_t Button, float X, float Y) = 0;

 protected:
  ~HScrollBarEvents() = default;
};

/// The thumb of the horizontal bar: paints itself by hover and press and tells its bar of the
/// mouse. It knows nothing of values; the bar moves and sizes it. It alone has custom colours.
class HScrollBar final : public UserControl {
 public:
  HScrollBar(std::unique_ptr<Container> place, HScrollBarEvents& owner)
      : UserControl(std::move(place)), owner_(owner) {}

  /// The style: blue 0, silver 1, olive 2 or custom 99. In any other one it stays unpainted, and
  /// Failure 340 is reported with every try.
  std::int32_t C() const { return C_; }
  void C(std::int32_t value);
  /// Kept; the picture does not change by it.
  Boolean En() const { return En_; }
  void En(Boolean value);

  /// The fill in custom style: at rest, while pressed and while hovered. Default: the button face.
  Colour Bar() const { return Bar_; }
  void Bar(Colour value);
  Colour BarDown() const { return BarDown_; }
  void BarDown(Colour value);
  Colour BarHover() const { return BarHover_; }
  void BarHover(Colour value);

  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Paint() override { RedrawScroll(); }

 private:
  static constexpr Module here{kinds::control, "HScrollBar"};

  template <class Value>
  void assign(const char* name, Value& field, const Value& value);
  void MouseOut(float X, float Y);
  void RedrawScroll();
  std::int16_t imageOfState() const;
  Colour customColour() const;

  HScrollBarEvents& owner_;
  std::int32_t C_ = 0;
  Boolean En_;
  Colour Bar_ = scroll::buttonFace;
  Colour BarDown_ = scroll::buttonFace;
  Colour BarHover_ = scroll::buttonFace;
  scroll::Press PressState_ = scroll::Press::none;
  Boolean MouseInside_;
  std::int16_t ThumbImage_ = 0;
  scroll::EdgeColors EdgeColors_;
};

}  // namespace norvane
