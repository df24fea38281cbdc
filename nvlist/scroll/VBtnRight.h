#pragma once

#include <memory>

#include <nvlist/scroll/HorizontalButton.h>

namespace norvane {

struct VBtnRightEvents {
  virtual void VBtnRight1_ValueDown() = 0;

 protected:
  ~VBtnRightEvents() = default;
};

/// The button at the right of the horizontal bar.
class VBtnRight final : public HorizontalButton {
 public:
  VBtnRight(std::unique_ptr<Container> place, VBtnRightEvents& owner)
      : HorizontalButton(std::move(place), here, art::Arrow::right, chevron), owner_(owner) {}

 private:
  static constexpr Module here{kinds::control, "VBtnRight"};
  static constexpr Chevron chevron = {
      {{{{7, 4}, {11, 8}}, {{7, 5}, {11, 9}}, {{6, 5}, {10, 9}}}},
      {11, 8},
      {{{{9, 8}, {5, 12}}, {{10, 8}, {6, 12}}, {{10, 9}, {6, 13}}}}};

  void raiseEvent() override { owner_.VBtnRight1_ValueDown(); }

  VBtnRightEvents& owner_;
};

}  // namespace norvane
