#pragma once

#include <memory>

#include <nvlist/scroll/Bar.h>
#include <nvlist/scroll/parts.h>

namespace norvane {

/// The events of the vertical bar.
struct nvVScrollEvents {
  /// After a step of a button or of the track, also at an end of the range, and when the thumb is
  /// released.
  virtual void VScroll1_Change() = 0;
  /// After each change of the value by the thumb; the last one of a drag comes before Change.
  virtual void VScroll1_Scroll() = 0;

 protected:
  ~nvVScrollEvents() = default;
};

/// The vertical scroll bar.
class nvVScroll final : public scroll::Bar {
 public:
  /// The owner outlives the bar.
  nvVScroll(std::unique_ptr<Container> place, nvVScrollEvents& owner)
      : Bar(std::move(place), scroll::verticalBar), owner_(owner) {
    assemble(VScrollBar1_, VBtnUp1_, VBtnDown1_);
  }

  using Bar::Redraw;

 private:
  void raiseChange() override { owner_.VScroll1_Change(); }
  void raiseScroll() override { owner_.VScroll1_Scroll(); }

  nvVScrollEvents& owner_;
  VScrollBar VScrollBar1_{container_.addChild(), *this};
  VBtnUp VBtnUp1_{container_.addChild(), *this};
  VBtnDown VBtnDown1_{container_.addChild(), *this};
};

}  // namespace norvane
