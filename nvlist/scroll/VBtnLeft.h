#pragma once

#include <memory>

#include <nvlist/scroll/HorizontalButton.h>

namespace norvane {

struct VBtnLeftEvents {
  virtual void VBtnLeft1_ValueUp() = 0;

 protected:
  ~VBtnLeftEvents() = default;
};

/// The button at the left of the horizontal bar.
class VBtnLeft final : public HorizontalButton {
 public:
  VBtnLeft(std::unique_ptr<Container> place, VBtnLeftEvents& owner)
      : HorizontalButton(std::move(place), here, art::Arrow::left, chevron), owner_(owner) {}

 private:
  static constexpr Module here{kinds::control, "VBtnLeft"};
  static constexpr Chevron chevron = {
      {{{{9, 4}, {5, 8}}, {{9, 5}, {5, 9}}, {{10, 5}, {5, 10}}}},
      {5, 8},
      {{{{5, 8}, {11, 12}}, {{6, 9}, {10, 13}}, {{8, 9}, {11, 12}}}}};

  void raiseEvent() override { owner_.VBtnLeft1_ValueUp(); }

  VBtnLeftEvents& owner_;
};

}  // namespace norvane
