#include <algorithm>

#include <nvlist/nvList.h>

namespace norvane {

void nvList::userChecks() {
  trapped(here, "userChecks", [&](Trap& on) {
    if (!state_.ItemsDimensioned || !state_.Items.holds(state_.ListIndex)) return;
    if (on.test([&] { return !item(state_.ListIndex).look().Enabled; })) return;
    flipChecked(on);
    on.step([&] { Redraw(); });
  });
}

void nvList::userSelects(std::int32_t anchor, std::int32_t end, std::int32_t current) {
  trapped(here, "userSelects", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    const std::int32_t last = state_.Items.upperBound();
    const auto inside = [&](std::int32_t index) { return std::clamp(index, 0, last); };
    clearMarks(on);
    const auto [from, to] = std::minmax({inside(anchor), inside(end)});
    for (std::int32_t i = from; i <= to; ++i)
      if (on.test([&] { return static_cast<bool>(item(i).look().Enabled); }))
        on.step([&] { state_.Selection.set(state_.Items, i, true); });
    state_.SelectAnchor = inside(anchor);
    state_.ListIndex = std::clamp(current, -1, last);
    on.step([&] { container_.PropertyChanged("ListIndex"); });
    on.step([&] { Redraw(); });
  });
}

void nvList::userScrollsTo(std::int32_t left) {
  trapped(here, "userScrollsTo", [&](Trap& on) {
    if (!HScroll1.Visible()) return;
    left = std::max(HScroll1.Min(), std::min(left, HScroll1.Max()));
    if (left == HScroll1.Value()) return;
    on.step([&] { HScroll1.Value(left); });
    on.step([&] { HScroll1_Change(); });
  });
}

void nvList::userToggles(std::int32_t index) {
  trapped(here, "userToggles", [&](Trap& on) {
    if (!state_.ItemsDimensioned || !state_.Items.holds(index)) return;
    if (on.test([&] { return !item(index).look().Enabled; })) return;
    on.step([&] { state_.Selection.set(state_.Items, index, ~item(index).Selected()); });
    state_.ListIndex = index;
    on.step([&] { container_.PropertyChanged("ListIndex"); });
    on.step([&] { Redraw(); });
  });
}

void nvList::closeEdit() {
  trapped(here, "closeEdit", [&](Trap& on) {
    if (!state_.EditActive) return;
    state_.EditActive = false;
    on.step([&] { Text1->Visible(false); });
  });
}

}  // namespace norvane
