#include <nvlist/nvList.h>

namespace norvane {

void nvList::UserControl_InitProperties() {
  trapped(here, "UserControl_InitProperties", [&](Trap& on) {
    norvane::Font ambient;
    on.ignoring([&] { ambient = container_.AmbientFont(); });
    state_.SuppressRedraw = true;
    on.step([&] { Font(ambient); });
    on.step([&] { BackColor(state_.BackColor); });
    state_.SuppressRedraw = false;
    state_.ClickPending = true;
    on.step([&] { ItemsClear(); });
    state_.SelectAnchor = -1;
    state_.HoverIndex = -1;
    on.step([&] { Redraw(); });
  });
}

void nvList::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) {
    on.step([&] { CheckScroll(); });
    on.step([&] { Redraw(); });
  });
}

}  // namespace norvane
