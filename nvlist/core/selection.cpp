#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

namespace norvane {

void nvList::ListIndex(std::int32_t value) {
  trapped(here, "ListIndex", [&](Trap& on) {
    if (ItemsCount() == 0) return;
    const bool isRefused = value > state_.Items.upperBound() || value <= -1 ||
                           on.test([&] { return !item(value).look().Enabled; });
    if (isRefused) {
      on.step([&] {
        Variant offered = value;
        sinks_.raise([&](__nvList& sink) { sink.ErrorWrongIndex(offered); });
      });
      return;
    }
    // Raised before the change: a handler still reads the old index.
    if (state_.ClickOnIndexChange.isTrue() && state_.MouseDownActive.isTrue())
      on.step([&] { sinks_.raise([](__nvList& sink) { sink.Click(); }); });

    state_.ListIndex = value;
    on.step([&] { state_.Selection.clear(state_.Items); });
    state_.LoopIndex = state_.Items.upperBound() + 1;
    on.step([&] { state_.Selection.set(state_.Items, value, true); });
    on.step([&] { container_.PropertyChanged("ListIndex"); });
    if (state_.ClickPending) scrollIntoView(on);
    state_.ClickPending = true;
    repaint(on);
  });
}

/// Scrolls the current item into view. An item above the visible rows is scrolled to the top row;
/// an item below them to the top row if enough items follow it, and otherwise to the last row.
void nvList::scrollIntoView(Trap& on) {
  std::int32_t visible = 0;
  on.step([&] { visible = VisibleItems(); });
  state_.LoopIndex = visible;
  const auto isBelow = [&] {
    return state_.ListIndex > checked::subtract(checked::add(visible, state_.TopIndex), 1);
  };
  if (on.test(isBelow)) {
    const auto hasRoomBehind = [&] {
      return checked::add(visible, state_.ListIndex) < state_.Items.upperBound();
    };
    if (on.test(hasRoomBehind))
      on.step([&] { TopIndex(state_.ListIndex); });
    else
      on.step([&] { TopIndex(checked::add(checked::subtract(state_.ListIndex, visible), 1)); });
  } else if (state_.ListIndex < state_.TopIndex) {
    on.step([&] { TopIndex(state_.ListIndex); });
  }
}

void nvList::SetNewSelected(const Variant& Index) {
  trapped(here, "SetNewSelected", [&](Trap& on) {
    clearMarks(on);
    on.step([&] { state_.Selection.set(state_.Items, Index.toInt32(), true); });
    on.step([&] { state_.ListIndex = Index.toInt32(); });
    on.step([&] { state_.SelectAnchor = Index.toInt32(); });
  });
}

void nvList::SetNoneSelected() {
  trapped(here, "SetNoneSelected", [&](Trap& on) { clearMarks(on); });
}

void nvList::clearSelection() {
  trapped(here, "clearSelection", [&](Trap& on) {
    clearMarks(on);
    repaint(on);
  });
}

std::vector<std::int32_t> nvList::selectedIndexes() {
  std::vector<std::int32_t> indexes;
  trapped(here, "selectedIndexes", [&](Trap& on) {
    if (state_.ItemsDimensioned) on.step([&] { indexes = state_.Selection.indexes(state_.Items); });
  });
  return indexes;
}

void nvList::clearMarks(Trap& on) {
  on.step([&] { state_.Selection.clear(state_.Items); });
  state_.LoopIndex = state_.Items.upperBound();
}

void nvList::ItemSelected(const Variant& Index, Boolean value) {
  trapped(here, "ItemSelected", [&](Trap& on) {
    on.step([&] { state_.Selection.set(state_.Items, Index.toInt32(), value); });
    state_.ListIndex = value.number();
    on.step([&] { container_.PropertyChanged("ItemSelected"); });
    const auto isOutside = [&] {
      const std::int32_t index = Index.toInt32();
      const std::int32_t top = VScroll1.Value();
      return index < top || index >= checked::add(top, VisibleItems());
    };
    if (value && on.test(isOutside)) on.step([&] { TopIndex(Index.toInt32()); });
    repaint(on);
  });
}

}  // namespace norvane
