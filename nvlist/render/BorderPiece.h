#pragma once

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>

namespace norvane {

/// One edge of the frame. It is a control of its own, so that neither the list nor a scroll bar can
/// paint over it.
class BorderPiece final : public UserControl {
 public:
  explicit BorderPiece(std::unique_ptr<Container> place) : UserControl(std::move(place)) {}

  void BackColor(Colour colour) {
    surface_.BackColor(colour);
    surface_.Cls();
  }
  void UserControl_Resize() override { surface_.Cls(); }
  /// A failure is reported under the name of the list's procedure.
  void UserControl_Paint() override {
    trapped(list, "DrawBorder", [&](Trap& on) { on.step([&] { surface_.Cls(); }); });
  }

 private:
  static constexpr Module list{kinds::control, "nvList"};
};

}  // namespace norvane
