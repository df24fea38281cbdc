#include <nvlist/nvList.h>
#include <nvlist/render/RepaintValues.h>
#include <nvlist/values/numbers.h>

#include <algorithm>
#include <cmath>

namespace norvane {

using checked::nearest;

Boolean nvList::IsDesignMode() {
  Boolean design = false;
  trapped(here, "IsDesignMode",
          [&](Trap& on) { on.step([&] { design = !container_.UserMode(); }); });
  return design;
}

float nvList::unroundedItemHeight() {
  return state_.MinHeight != 0 ? state_.MinHeight : surface_.TextHeight("A");
}

std::int32_t nvList::ItemHeight() {
  std::int32_t height = 0;
  trapped(here, "ItemHeight", [&](Trap& on) {
    on.step([&] { height = nearest<std::int32_t>(unroundedItemHeight()); });
  });
  return height;
}

std::int32_t nvList::VisibleItems() {
  std::int32_t count = 0;
  trapped(here, "VisibleItems", [&](Trap& on) {
    state_.VisibleItemsChecked = true;
    std::int32_t height = 0;
    on.step([&] { height = ItemHeight(); });
    if (height <= 0) return;
    on.step([&] {
      double limit = double{surface_.ScaleHeight()} - height;
      if (HScroll1.Tag() == "True") limit -= HScroll1.Height();
      const double room = limit - state_.IndentTop;
      if (room >= 0) count = nearest<std::int32_t>(std::floor(room / height) + 1);
    });
  });
  return count;
}

void nvList::Redraw() {
  trapped(here, "Redraw", [&](Trap& on) {
    if (on.test([&] { return IsDesignMode(); })) {
      paintPreview(on);
      return;
    }
    if (!state_.ItemsDimensioned) {
      on.step([&] { surface_.Cls(); });
      return;
    }
    if (!state_.SuppressRedraw) {
      // A nested call is ignored. If a failure ended a repaint early, all later calls are ignored
      // too, until the wheel or a key moves the list.
      if (state_.IsRedrawing) return;
      state_.IsRedrawing = true;
      paintFace(on);
    }
    state_.IsRedrawing = false;
  });
}

/// Paints the list. Ends early if SuppressRedraw is set meanwhile.
void nvList::paintFace(Trap& on) {
  on.step([&] { surface_.Cls(); });
  // On a list shorter than the window a negative TopIndex is valid.
  const auto isShort = [&] { return ItemsCount() < VisibleItems(); };
  if (WrongIndex(state_.TopIndex) && !(state_.TopIndex < 0 && on.test(isShort))) {
    state_.TopIndexRepair = true;
    on.step([&] { TopIndex(0); });
    state_.TopIndexRepair = false;
  }

  state_.LoopIndex = std::max(state_.TopIndex, 0);
  on.step([&] { surface_.CurrentY(state_.IndentTop); });

  RepaintValues repaint;
  if (HScroll1.Visible()) {
    on.step([&] {
      repaint.ItemRight = nearest<std::int32_t>(double{surface_.ScaleWidth()} + HScroll1.Max());
    });
    on.step([&] {
      repaint.ItemLeft = nearest<std::int32_t>(double{state_.IndentLeft} - HScroll1.Value());
    });
    repaint.ScrollOffset = HScroll1.Value();
  } else {
    on.step([&] { repaint.ItemRight = nearest<std::int32_t>(surface_.ScaleWidth()); });
    on.step([&] { repaint.ItemLeft = nearest<std::int32_t>(state_.IndentLeft); });
  }

  // Rows whose height rounds to 0 are not painted.
  const bool rowsHaveHeight = state_.ItemHeightValue > 0.5F;
  if (rowsHaveHeight) passRowsAbove(on);
  while (rowsHaveHeight && !on.test([&] {
    return state_.LoopIndex > state_.Items.upperBound() ||
           surface_.CurrentY() + state_.ItemHeightValue > surface_.ScaleHeight();
  })) {
    if (WrongIndex(state_.LoopIndex)) break;
    if (state_.SuppressRedraw) return;
    paintRow(on, repaint);
    if (state_.SuppressRedraw) return;
  }

  // Sets VisibleItemsChecked; an invalid row height is reported here.
  on.step([&] { VisibleItems(); });
  on.step([&] { ItemHeight(); });
  paintCorner(on);
}

/// Skips the rows above the surface, which a negative IndentTop may make as many as there are
/// items. The last of them is painted, because the next row is measured with its font flags.
void nvList::passRowsAbove(Trap& on) {
  on.step([&] {
    float y = surface_.CurrentY();
    const std::int32_t first = state_.LoopIndex;
    while (y + 2 * state_.ItemHeightValue < 0 && state_.LoopIndex < state_.Items.upperBound()) {
      y += state_.ItemHeightValue;
      ++state_.LoopIndex;
    }
    if (state_.LoopIndex > first) surface_.CurrentY(y);
  });
}

/// Fills the square between the two scroll bars.
void nvList::paintCorner(Trap& on) {
  if (!HScroll1.Visible() || !VScroll1.Visible()) return;
  on.step([&] {
    surface_.Line(LineMode::filledBox, HScroll1.Left() + HScroll1.Width(),
                  VScroll1.Top() + VScroll1.Height(), surface_.ScaleWidth(), surface_.ScaleHeight(),
                  state_.BackColor);
  });
}

}  // namespace norvane
