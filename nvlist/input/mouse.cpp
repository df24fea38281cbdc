#include <algorithm>
#include <cmath>
#include <cstdint>

#include <nvlist/nvList.h>
#include <nvlist/render/art.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

constexpr std::int16_t rightButton = 2;

/// Top of the first row for a mouse press, whatever IndentTop is.
constexpr std::int32_t pressOrigin = 4;

}  // namespace

/// The row at position `y` if row 0 begins at `origin`; -1 above it or if rows have no height.
/// Positions below the surface give the last row on it.
std::int32_t nvList::rowAt(double y, std::int32_t origin, std::int32_t height) {
  state_.LoopIndex = origin;
  if (height <= 0) return -1;
  const double surfaceHeight = surface_.ScaleHeight();
  const double end = y < surfaceHeight ? y : surfaceHeight;
  if (!(end >= origin)) return -1;
  const double row = std::floor((end - origin) / height);
  // LoopIndex becomes the top of the next row, as after a loop over the rows, or of the last row
  // whose top is a 32-bit number.
  const double last = std::floor((double{INT32_MAX} - origin) / height);
  state_.LoopIndex = static_cast<std::int32_t>(origin + std::min(row + 1, last) * height);
  if (row + 1 > last) throw Failure::overflow();
  return static_cast<std::int32_t>(row);
}

/// Left edge of the content of a row, where the check zone begins.
std::int32_t nvList::contentLeft() const {
  const double scrolled = HScroll1.Visible() ? HScroll1.Value() : 0;
  return checked::nearest<std::int32_t>(state_.IndentLeft - scrolled);
}

void nvList::UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  trapped(here, "UserControl_MouseDown", [&](Trap& on) {
    std::int32_t checkLeft = 0;
    on.step([&] { checkLeft = contentLeft(); });
    state_.MouseDownX = X;
    state_.MouseDownY = Y;
    state_.ShiftDown = Shift == 1;
    state_.CtrlDown = Shift == 2;
    on.step([&] {
      float x = X;
      float y = Y;
      sinks_.raise([&](__nvList& sink) { sink.MouseDown(Button, Shift, x, y); });
    });
    if (Button == rightButton) return;

    std::int32_t height = 0;
    on.step([&] { height = ItemHeight(); });
    state_.HasFocus = true;
    if (on.test([&] { return double{Y} > checked::multiply(ItemsCount(), height); })) return;
    std::int32_t row = -1;
    on.step([&] { row = rowAt(Y, pressOrigin, height); });
    state_.EditActive = false;
    on.step([&] { Text1->Visible(false); });
    state_.ClickPending = false;
    std::int32_t hit = -1;
    on.step([&] { hit = checked::add(VScroll1.Value(), row); });
    if (state_.Items.holds(hit)) pressItem(on, hit, double{X} - checkLeft);
    on.step([&] { Redraw(); });
  });
}

/// Handles a press on an item. `x` counts from the left edge of the check zone.
void nvList::pressItem(Trap& on, std::int32_t hit, double x) {
  if (on.test([&] { return !item(hit).look().Enabled; })) {
    on.step([&] { ListIndex(-1); });
    return;
  }
  state_.MouseDownActive = true;
  const std::int32_t old = state_.ListIndex;
  state_.ListIndex = hit;
  if (!state_.MultiSelect || (!state_.ShiftDown && !state_.CtrlDown)) {
    on.step([&] { SetNewSelected(state_.ListIndex); });
    state_.SelectAnchor = state_.ListIndex;
    on.step([&] { container_.DoEvents(); });
  } else if (state_.ShiftDown) {
    selectRange(on);
  } else {
    on.step([&] {
      const std::int32_t index = state_.ListIndex;
      state_.Selection.set(state_.Items, index, ~item(index).Selected());
    });
  }
  state_.MouseDownActive = false;

  const bool isInCheckZone = x > 0 && x < art::checkBox(true, true)->width();
  if (isInCheckZone)
    flipChecked(on);
  else if (state_.ListIndex == old)
    on.step([&] { SetEdit(state_.ListIndex); });
}

/// Selects the enabled items from the anchor to the current item, both included; none if they are
/// the same item.
void nvList::selectRange(Trap& on) {
  if (state_.SelectAnchor == -1) state_.SelectAnchor = 0;
  on.step([&] { SetNoneSelected(); });
  const auto [first, last] = std::minmax(state_.ListIndex, state_.SelectAnchor);
  if (first == last) return;
  for (std::int32_t i = last; i >= first; --i) {
    if (on.test([&] { return static_cast<bool>(item(i).look().Enabled); }))
      on.step([&] { state_.Selection.set(state_.Items, i, true); });
    // All indexes outside the list fail in the same way: one failure on either side is enough.
    if (i < 0) break;
    i = std::min(i, state_.Items.upperBound() + 1);
  }
}

/// Flips the check mark of the current item. Returns false if the host cancels it.
bool nvList::flipChecked(Trap& on) {
  Boolean Cancel = false;
  on.step([&] {
    std::int32_t Item = state_.ListIndex;
    sinks_.raise([&](__nvList& sink) { sink.ItemCheck(Item, Cancel); });
  });
  if (Cancel) return false;
  on.step([&] {
    StoredItem& current = item(state_.ListIndex);
    current.Checked(~current.Checked());
  });
  return true;
}

void nvList::UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  trapped(here, "UserControl_MouseUp", [&](Trap& on) {
    on.step([&] { tmrMouseAction->Enabled(false); });
    if (state_.AllowItemMoving) {
      completeMove(on);
      on.step([&] { Redraw(); });
    }
    state_.MouseDownX = X;
    state_.MouseDownY = Y;
    on.step([&] { sinks_.raise([&](__nvList& sink) { sink.MouseUp(Button, Shift, X, Y); }); });
  });
}

void nvList::UserControl_Click() {
  trapped(here, "UserControl_Click", [&](Trap& on) {
    state_.HasFocus = true;
    on.step([&] { sinks_.raise([](__nvList& sink) { sink.Click(); }); });
  });
}

bool nvList::UserControl_DblClick() {
  trapped(here, "UserControl_DblClick", [&](Trap& on) {
    if (state_.ListIndex > -1) {
      const auto isBelowItems = [&] {
        return state_.MouseDownY.toNumber() > checked::multiply(ItemHeight(), ItemsCount());
      };
      if (on.test(isBelowItems)) return;
      if (state_.Style == cCheckBoxes && flipChecked(on)) on.step([&] { Redraw(); });
      on.step([&] { SetEdit(state_.ListIndex); });
    }
    on.step([&] { sinks_.raise([](__nvList& sink) { sink.DblClick(); }); });
  });
  return true;
}

}  // namespace norvane
