#include <nvlist/nvList.h>

namespace norvane {

void nvList::UserControl_InitProperties() {
  trapped(here, "UserControl_InitProperties", [&](Trap& on) {
    norvane::Font ambient;
    on.ignoring([&] { ambient = container_.AmbientFont(); });
    state_.SuppressRedraw = true;
    const ListState defaults;
    on.step([&] { Font(ambient); });
    on.step([&] { ForeColor(defaults.ForeColor); });
    on.step([&] { BackColor(defaults.BackColor); });
    on.step([&] { Style(defaults.Style); });
    on.step([&] { IndentTop(defaults.IndentTop); });
    on.step([&] { IndentLeft(defaults.IndentLeft); });
    on.step([&] { AutoCheckScroll(defaults.AutoCheckScroll); });
    on.step([&] { MinHeight(defaults.MinHeight); });
    on.step([&] { AutoRedraw(defaults.AutoRedraw); });
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
