#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

constexpr std::int16_t leftButtonAlone = 1;

}  // namespace

void nvList::UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  trapped(here, "UserControl_MouseMove", [&](Trap& on) {
    std::int32_t height = 0;
    on.step([&] { height = ItemHeight(); });
    std::int32_t row = -1;
    on.step([&] { row = rowAt(Y, 0, height); });
    if (state_.AllowItemMoving) state_.HoverIndex = -1;
    if (state_.ItemsDimensioned && Button == leftButtonAlone) drag(on, Y, row, height);

    std::int32_t index = 0;
    on.step([&] { index = checked::add(VScroll1.Value(), row); });
    std::string text;
    if (state_.ItemsDimensioned && state_.Items.holds(index))
      on.step([&] { text = item(index).Text(); });
    on.step([&] {
      Variant TextUnderMouse(text);
      sinks_.raise(
          [&](__nvList& sink) { sink.MouseMove(TextUnderMouse, index, Button, Shift, X, Y); });
    });
  });
}

/// Handles a drag with the left button. Beyond an edge a timer scrolls the list. Inside, the row
/// under the pointer becomes the target of the move or, if items cannot be moved, the current item.
void nvList::drag(Trap& on, float y, std::int32_t row, std::int32_t height) {
  if (y < 0) {
    autoScroll_ = AutoScroll::up;
    on.step([&] { tmrMouseAction->Enabled(true); });
    return;
  }
  if (on.test([&] { return double{y} > checked::multiply(VisibleItems(), height); })) {
    autoScroll_ = AutoScroll::down;
    on.step([&] { tmrMouseAction->Enabled(true); });
    return;
  }
  autoScroll_ = AutoScroll::none;
  std::int32_t target = 0;
  on.step([&] { target = checked::add(VScroll1.Value(), row); });
  if (!state_.AllowItemMoving) {
    on.step([&] { ListIndex(target); });
  } else if (state_.ListIndex != target && state_.HoverIndex != target) {
    state_.HoverIndex = target;
    on.step([&] { Redraw(); });
  }
}

void nvList::tmrMouseAction_Timer() {
  trapped(here, "tmrMouseAction_Timer", [&](Trap& on) {
    bool userMode = true;
    on.ignoring([&] { userMode = static_cast<bool>(container_.UserMode()); });
    if (!userMode) {
      on.step([&] { tmrMouseAction->Enabled(false); });
      state_.HoverIndex = -1;
      autoScroll_ = AutoScroll::none;
      return;
    }
    // Scrolling up ends at row 1; it is part of the published behaviour that row 0 is not reached.
    if (autoScroll_ == AutoScroll::up && state_.TopIndex - 1 > 0) {
      if (state_.AllowItemMoving) state_.HoverIndex = state_.TopIndex - 1;
      on.step([&] { TopIndex(state_.TopIndex - 1); });
    } else if (autoScroll_ == AutoScroll::down) {
      if (state_.AllowItemMoving)
        on.step([&] { state_.HoverIndex = checked::add(state_.TopIndex, VisibleItems()); });
      on.step([&] { TopIndex(checked::add(state_.TopIndex, 1)); });
    } else {
      on.step([&] { tmrMouseAction->Enabled(false); });
    }
  });
}

/// Moves the current item in front of the marked row, or to the top if no row is marked
/// (movesOnlyToMark).
void nvList::completeMove(Trap& on) {
  if (movesOnlyToMark_ && state_.HoverIndex == -1) return;
  on.step([&] {
    const std::int32_t current = state_.ListIndex;
    const std::int32_t target = state_.HoverIndex;
    if (target > current)
      MoveItemDown(current, checked::subtract(checked::subtract(target, current), 1));
    else
      MoveItemUp(current, checked::subtract(current, target));
  });
  state_.HoverIndex = -1;
}

}  // namespace norvane
