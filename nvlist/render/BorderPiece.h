#pragma once

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>

namespace norvane {

/// One edge of the frame: a control of its own, so that nothing the list paints and no scroll bar
/// can cover it.
class BorderPiece final : public UserControl {
 public:
  explicit BorderPiece(std::unique_ptr<Container> place) : UserControl(std::move(place)) {}

  void BackColor(Colour colour) {
    surface_.BackColor(colour);
    surface_.Cls();
  }
  void UserControl_Resize() override { surface_.Cls(); }
  /// In the name of the procedure of the list that has painted it.
  void UserControl_Paint() override {
    trapped(list, "DrawBorder", [&](Trap& on) { on.step([&] { surface_.Cls(); }); });
  }

 private:
  static constexpr Module list{kinds::control, "nvList"};
};

}  // namespace norvane
