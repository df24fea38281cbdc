#pragma once

#include <memory>

#include <nvlist/scroll/VerticalButton.h>

namespace norvane {

struct VBtnUpEvents {
  virtual void VBtnUp1_ValueUp() = 0;

 protected:
  ~VBtnUpEvents() = default;
};

/// The button at the top of the vertical bar.
class VBtnUp final : public VerticalButton {
 public:
  VBtnUp(std::unique_ptr<Container> place, VBtnUpEvents& owner)
      : VerticalButton(std::move(place), here, art::Arrow::up), owner_(owner) {}

 private:
  static constexpr Module here{kinds::control, "VBtnUp"};

  void raiseEvent() override { owner_.VBtnUp1_ValueUp(); }

  VBtnUpEvents& owner_;
};

}  // namespace norvane
