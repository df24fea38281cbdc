#include <nvlist/nvList.h>

namespace norvane {

/// Only the look of the rows depends on the focus; an open edit box stays open.
void nvList::focusChanged(const char* procedure, Boolean hasFocus) {
  trapped(here, procedure, [&](Trap& on) {
    state_.HasFocus = hasFocus;
    on.step([&] { Redraw(); });
  });
}

void nvList::UserControl_EnterFocus() { focusChanged("UserControl_EnterFocus", true); }
void nvList::UserControl_GotFocus() { focusChanged("UserControl_GotFocus", true); }
void nvList::UserControl_LostFocus() { focusChanged("UserControl_LostFocus", false); }
void nvList::UserControl_ExitFocus() { focusChanged("UserControl_ExitFocus", false); }

}  // namespace norvane
