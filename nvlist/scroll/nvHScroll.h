#pragma once

#include <memory>

#include <nvlist/scroll/Bar.h>
#include <nvlist/scroll/parts.h>
#include <nvlist/scroll/values.h>

namespace norvane {

/// The events of the horizontal bar.
struct nvHScrollEvents {
  /// After a step of a button or of the track, also at an end of the range, and when the thumb is
  /// released.
  virtual void HScroll1_Change() = 0;
  /// After each change of the value by the thumb; the last one of a drag comes before Change.
  virtual void HScroll1_Scroll() = 0;

 protected:
  ~nvHScrollEvents() = default;
};

/// The horizontal scroll bar. It can also be painted in colours of the owner's choice.
class nvHScroll final : public scroll::Bar {
 public:
  /// The owner outlives the bar.
  nvHScroll(std::unique_ptr<Container> place, nvHScrollEvents& owner)
      : Bar(std::move(place), scroll::horizontalBar), owner_(owner) {
    assemble(HScrollBar1_, VBtnLeft1_, VBtnRight1_);
  }

  using Bar::BackColor;

  /// The ColorStyle that paints the bar in flat colours: BackColor and those of SetNewProperty.
  static constexpr auto custom = static_cast<cScrollColorStyle>(scroll::customStyle);

  /// Sets the colours of the custom style: ScrollBackColor for the track; ScrollBar, ScrollBarDown
  /// and ScrollBarHover for the thumb; ScrollArrows, ScrollArrowsDown, ScrollArrowsHover,
  /// ScrollButtons, ScrollButtonsDown and ScrollButtonsHover for both buttons. Defaults: white for
  /// the track, black for the arrows, the button face for the rest. The colours show while
  /// ColorStyle is `custom`, which this does not set. A value that is not a 32-bit number is a
  /// failure; the colours set before it stay.
  void SetNewProperty(const PropertyBag& Bag);

 private:
  void raiseChange() override { owner_.HScroll1_Change(); }
  void raiseScroll() override { owner_.HScroll1_Scroll(); }

  nvHScrollEvents& owner_;
  HScrollBar HScrollBar1_{container_.addChild(), *this};
  VBtnLeft VBtnLeft1_{container_.addChild(), *this};
  VBtnRight VBtnRight1_{container_.addChild(), *this};
};

}  // namespace norvane
