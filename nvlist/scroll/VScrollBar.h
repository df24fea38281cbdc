#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/thumbEdges.h>
#include <nvlist/scroll/values.h>

namespace norvane {

/// What the vertical bar hears of its thumb; positions in pixels of the thumb.
struct VScrollBarEvents {
  virtual void VScrollBar1_MouseDown(std::int16_t Button, float X, float Y) = 0;
  virtual void VScrollBar1_MouseUp() = 0;
  virtual void VScrollBar1_MouseMove(std::int16_t Button, float X, float Y) = 0;

 protected:
  ~VScrollBarEvents() = default;
};

/// The thumb of the vertical bar: paints itself by hover and press and tells its bar of the mouse.
/// It knows nothing of values; the bar moves and sizes it.
class VScrollBar final : public UserControl {
 public:
  VScrollBar(std::unique_ptr<Container> place, VScrollBarEvents& owner)
      : UserControl(std::move(place)), owner_(owner) {}

  /// The style: blue 0, silver 1 or olive 2. In any other one it stays unpainted, and Failure 340
  /// is reported with every try.
  std::int32_t C() const { return C_; }
  void C(std::int32_t value);
  /// Kept; the picture does not change by it.
  Boolean En() const { return En_; }
  void En(Boolean value);

  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Paint() override { RedrawScroll(); }

 private:
  static constexpr Module here{kinds::control, "VScrollBar"};

  void MouseOut(float X, float Y);
  void RedrawScroll();
  std::int16_t imageOfState() const;

  VScrollBarEvents& owner_;
  std::int32_t C_ = 0;
  Boolean En_;
  scroll::Press PressState_ = scroll::Press::none;
  Boolean MouseInside_;
  std::int16_t ThumbImage_ = 0;
  scroll::EdgeColors EdgeColors_;
};

}  // namespace norvane
