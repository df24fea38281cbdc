#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

constexpr std::int16_t keyShift = 16;
constexpr std::int16_t keyControl = 17;
constexpr std::int16_t keyUp = 38;
constexpr std::int16_t keyDown = 40;

}  // namespace

void nvList::UserControl_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) {
  trapped(here, "UserControl_KeyDown", [&](Trap& on) {
    on.step([&] { sinks_.raise([&](__nvList& sink) { sink.KeyDown(KeyCode, Shift); }); });
    state_.ShiftDown = KeyCode == keyShift;
    state_.CtrlDown = KeyCode == keyControl;
    std::int32_t visible = 0;
    on.step([&] { visible = VisibleItems(); });
    if (ItemsCount() == 0 || state_.EditActive) return;
    if (KeyCode == keyUp)
      moveUp(on, visible);
    else if (KeyCode == keyDown)
      moveDown(on, visible);
  });
}

/// Moves the selection to the nearest enabled row above. `visible` is the number of visible rows.
void nvList::moveUp(Trap& on, std::int32_t visible) {
  std::int32_t i = state_.ListIndex;
  for (;;) {
    on.step([&] { i = checked::subtract(i, 1); });
    if (i < 0) return;
    if (on.test([&] { return static_cast<bool>(item(i).look().Enabled); })) break;
    if (i == 0) return;
  }
  if (state_.ListIndex < 1) return;
  on.step([&] { SetNewSelected(i); });
  state_.IsRedrawing = false;
  on.step([&] { ListIndex(i); });
  if (on.test([&] { return checked::subtract(state_.ListIndex, state_.TopIndex) < 0; }))
    on.step([&] { TopIndex(state_.ListIndex); });
  if (on.test([&] { return checked::add(state_.TopIndex, visible) < state_.ListIndex; }))
    on.step([&] { TopIndex(state_.ListIndex); });
}

/// Moves the selection to the nearest enabled row below. A row below the window scrolls to the
/// bottom.
void nvList::moveDown(Trap& on, std::int32_t visible) {
  std::int32_t i = state_.ListIndex;
  for (;;) {
    on.step([&] { i = checked::add(i, 1); });
    if (i > state_.Items.upperBound()) return;
    if (on.test([&] { return static_cast<bool>(item(i).look().Enabled); })) break;
    if (i == state_.Items.upperBound()) return;
  }
  if (state_.ListIndex >= ItemsCount() - 1) return;
  on.step([&] { SetNewSelected(i); });
  state_.IsRedrawing = false;
  state_.ClickPending = false;
  on.step([&] { ListIndex(i); });
  if (on.test([&] { return checked::subtract(state_.ListIndex, state_.TopIndex) >= visible; }))
    on.step([&] { TopIndex(checked::add(checked::subtract(state_.ListIndex, visible), 1)); });
  if (state_.TopIndex > state_.ListIndex) on.step([&] { TopIndex(state_.ListIndex); });
}

void nvList::UserControl_KeyPress(std::int16_t& KeyAscii) {
  trapped(here, "UserControl_KeyPress", [&](Trap& on) {
    on.step([&] { sinks_.raise([&](__nvList& sink) { sink.KeyPress(KeyAscii); }); });
  });
}

void nvList::UserControl_KeyUp(std::int16_t KeyCode, std::int16_t Shift) {
  trapped(here, "UserControl_KeyUp", [&](Trap& on) {
    on.step([&] { sinks_.raise([&](__nvList& sink) { sink.KeyUp(KeyCode, Shift); }); });
    state_.ShiftDown = false;
    state_.CtrlDown = false;
  });
}

}  // namespace norvane
