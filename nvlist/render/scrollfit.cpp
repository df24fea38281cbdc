#include <nvlist/nvList.h>

namespace norvane {

void nvList::CheckItemWidth() {}
void nvList::CheckItemWidth(Variant) {}
void nvList::CheckScroll() {}

void nvList::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) {
    on.step([&] { DrawBorder(); });
    on.step([&] { Redraw(); });
  });
}

}  // namespace norvane
