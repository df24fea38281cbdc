#include <nvlist/nvList.h>

namespace norvane {

/// The frame is not shown yet; what follows it is.
void nvList::DrawBorder() {
  trapped(here, "DrawBorder", [&](Trap& on) {
    on.step([&] { CheckScroll(); });
    on.step([&] { Redraw(); });
  });
}

}  // namespace norvane
