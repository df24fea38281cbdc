#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

namespace norvane {

void nvList::TopIndex(std::int32_t value) {
  trapped(here, "TopIndex", [&](Trap& on) {
    std::int32_t visible = 0;
    on.step([&] { visible = VisibleItems(); });
    if (value < 0) value = 0;
    if (on.test([&] { return checked::add(value, visible) > ItemsCount(); }))
      on.step([&] { value = checked::subtract(ItemsCount(), visible); });
    // When correcting an invalid TopIndex, a short list gets 0.
    if (state_.TopIndexRepair && value < 0) value = 0;
    state_.TopIndex = value;
    on.step([&] { container_.PropertyChanged("TopIndex"); });
    if (state_.TopIndexRepair) return;
    on.step([&] {
      const std::int32_t last = checked::subtract(ItemsCount(), visible);
      if (VScroll1.Max() < last) VScroll1.Max(last);
    });
    on.step([&] { VScroll1.Value(value); });
    on.step([&] { VScroll1.Redraw(); });
    if (state_.AutoRedraw) on.step([&] { Redraw(); });
  });
}

}  // namespace norvane
