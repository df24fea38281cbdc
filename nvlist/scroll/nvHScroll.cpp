#include <nvlist/scroll/nvHScroll.h>

namespace norvane {

void nvHScroll::SetNewProperty(const PropertyBag& Bag) {
  trapped(scroll::horizontalBar.module, "SetNewProperty", [&](Trap& on) {
    const auto read = [&](const char* key, Colour defaultValue) {
      return Bag.ReadProperty(key, defaultValue).toInt32();
    };
    on.step([&] { BackColor(read("ScrollBackColor", colours::white)); });
    on.step([&] { HScrollBar1_.Bar(read("ScrollBar", scroll::buttonFace)); });
    on.step([&] { HScrollBar1_.BarDown(read("ScrollBarDown", scroll::buttonFace)); });
    on.step([&] { HScrollBar1_.BarHover(read("ScrollBarHover", scroll::buttonFace)); });
    const auto assignTo = [&](auto& button) {
      on.step([&] { button.Arrow(read("ScrollArrows", 0)); });
      on.step([&] { button.ArrowDown(read("ScrollArrowsDown", 0)); });
      on.step([&] { button.ArrowHover(read("ScrollArrowsHover", 0)); });
      on.step([&] { button.Button(read("ScrollButtons", scroll::buttonFace)); });
      on.step([&] { button.ButtonDown(read("ScrollButtonsDown", scroll::buttonFace)); });
      on.step([&] { button.ButtonHover(read("ScrollButtonsHover", scroll::buttonFace)); });
    };
    assignTo(VBtnLeft1_);
    assignTo(VBtnRight1_);
  });
}

}  // namespace norvane
