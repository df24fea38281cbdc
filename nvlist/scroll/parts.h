#pragma once

#include <memory>

#include <nvlist/scroll/RepeatButton.h>
#include <nvlist/scroll/Thumb.h>
#include <nvlist/scroll/differences.h>

/// The parts of the two bars. Those of the horizontal bar have custom colours.
namespace norvane {

/// The thumb of the vertical bar.
class VScrollBar final : public scroll::Thumb {
 public:
  VScrollBar(std::unique_ptr<Container> place, scroll::ThumbEvents& owner)
      : Thumb(std::move(place), owner, scroll::verticalThumb) {}
};

/// The thumb of the horizontal bar.
class HScrollBar final : public scroll::Thumb {
 public:
  HScrollBar(std::unique_ptr<Container> place, scroll::ThumbEvents& owner)
      : Thumb(std::move(place), owner, scroll::horizontalThumb) {}

  using Thumb::Bar;
  using Thumb::BarDown;
  using Thumb::BarHover;
};

/// The button at the top of the vertical bar.
class VBtnUp final : public scroll::RepeatButton {
 public:
  VBtnUp(std::unique_ptr<Container> place, scroll::ButtonEvents& owner)
      : RepeatButton(std::move(place), owner, scroll::upButton) {}
};

/// The button at the bottom of the vertical bar.
class VBtnDown final : public scroll::RepeatButton {
 public:
  VBtnDown(std::unique_ptr<Container> place, scroll::ButtonEvents& owner)
      : RepeatButton(std::move(place), owner, scroll::downButton) {}
};

/// The button at the left of the horizontal bar.
class VBtnLeft final : public scroll::RepeatButton {
 public:
  VBtnLeft(std::unique_ptr<Container> place, scroll::ButtonEvents& owner)
      : RepeatButton(std::move(place), owner, scroll::leftButton) {}

  using RepeatButton::Arrow;
  using RepeatButton::ArrowDown;
  using RepeatButton::ArrowHover;
  using RepeatButton::Button;
  using RepeatButton::ButtonDown;
  using RepeatButton::ButtonHover;
};

/// The button at the right of the horizontal bar.
class VBtnRight final : public scroll::RepeatButton {
 public:
  VBtnRight(std::unique_ptr<Container> place, scroll::ButtonEvents& owner)
      : RepeatButton(std::move(place), owner, scroll::rightButton) {}

  using RepeatButton::Arrow;
  using RepeatButton::ArrowDown;
  using RepeatButton::ArrowHover;
  using RepeatButton::Button;
  using RepeatButton::ButtonDown;
  using RepeatButton::ButtonHover;
};

}  // namespace norvane
