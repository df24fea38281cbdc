#pragma once

#include <memory>

#include <nvlist/scroll/VerticalButton.h>

namespace norvane {

struct VBtnDownEvents {
  virtual void VBtnDown1_ValueDown() = 0;

 protected:
  ~VBtnDownEvents() = default;
};

/// The button at the bottom of the vertical bar.
class VBtnDown final : public VerticalButton {
 public:
  VBtnDown(std::unique_ptr<Container> place, VBtnDownEvents& owner)
      : VerticalButton(std::move(place), here, art::Arrow::down), owner_(owner) {}

 private:
  static constexpr Module here{kinds::control, "VBtnDown"};

  void raiseEvent() override { owner_.VBtnDown1_ValueDown(); }

  VBtnDownEvents& owner_;
};

}  // namespace norvane
