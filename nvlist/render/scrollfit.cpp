#include <algorithm>

#include <nvlist/nvList.h>
#include <nvlist/render/art.h>
#include <nvlist/values/numbers.h>

namespace norvane {

using checked::nearest;

namespace {

/// Rounds a length for the range of a bar.
std::int32_t whole(double length) { return nearest<std::int32_t>(length); }

}  // namespace

// ---- the widest item ----

/// Finds the widest of all items. A text is measured only if it has changed since it was last
/// measured.
void nvList::CheckItemWidth() {
  trapped(here, "CheckItemWidth", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    state_.MaxItemWidth = 0;
    const std::int32_t count = ItemsCount();
    for (std::int32_t i = 0; i < count;) {
      const auto measured = state_.Items.measuredFrom(i);
      if (measured && measured->end <= count) {
        state_.MaxItemWidth = std::max<std::int32_t>(state_.MaxItemWidth, measured->widest);
        i = measured->end;
      } else {
        on.step([&] { widenTo(item(i)); });
        ++i;
      }
    }
    addPadding(on);
  });
}

/// Measures one item. The padding is added to a width that already includes padding, until all
/// items are measured again.
void nvList::CheckItemWidth(const Variant& Index) {
  trapped(here, "CheckItemWidth", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    on.step([&] { widenTo(item(Index.toInt32())); });
    addPadding(on);
  });
}

void nvList::widenTo(StoredItem& item) {
  if (item.textWidth == StoredItem::notMeasured) {
    const float width = lblWidth.widthOf(item.Text());
    if (double{width} > state_.MaxItemWidth) state_.MaxItemWidth = whole(width);
    if (width >= 0 && width < StoredItem::notMeasured - 1)
      item.textWidth = static_cast<std::uint16_t>(whole(width));
  } else if (item.textWidth > state_.MaxItemWidth) {
    state_.MaxItemWidth = item.textWidth;
  }
}

void nvList::addPadding(Trap& on) {
  on.step([&] {
    double padding = 4;
    if (state_.Style == cCheckBoxes || state_.Style == cCheckBoxesIcons)
      padding += art::checkBox(false, true)->width();
    if (state_.Style == cIcons || state_.Style == cCheckBoxesIcons) padding += state_.IconW;
    const bool isKnown = state_.Style >= cDefault && state_.Style <= cCheckBoxesIcons;
    if (isKnown) state_.MaxItemWidth = whole(state_.MaxItemWidth + padding);
  });
}

// ---- visibility and ranges ----

void nvList::CheckScroll() {
  trapped(here, "CheckScroll", [&](Trap& on) {
    fitHorizontal(on);
    fitVertical(on);
    on.step([&] { CheckScrollPlacement(); });
  });
}

void nvList::fitHorizontal(Trap& on) {
  const auto isWanted = [&] {
    return double{surface_.ScaleWidth()} < state_.MaxItemWidth &&
           (state_.ScrollBars == vbHorizontal || state_.ScrollBars == vbBoth);
  };
  if (!on.test(isWanted)) {
    HScroll1.Tag("False");
    on.step([&] { HScroll1.Max(0); });
    on.step([&] { HScroll1.Value(0); });
    return;
  }
  on.step([&] { HScroll1.Min(0); });
  const std::int32_t old = HScroll1.Max();
  on.step([&] {
    HScroll1.Max(whole(static_cast<double>(state_.MaxItemWidth) - surface_.ScaleWidth()));
  });
  if (HScroll1.Max() < old) on.step([&] { HScroll1.Value(0); });
  HScroll1.Tag("True");
}

/// Counts the visible rows with the horizontal bar as just decided. That decision ignores the width
/// of the vertical bar, so it is added to the horizontal range here.
void nvList::fitVertical(Trap& on) {
  std::int32_t visible = 0;
  std::int32_t count = 0;
  on.step([&] { visible = VisibleItems(); });
  on.step([&] { count = ItemsCount(); });
  const bool isWanted =
      visible < count && (state_.ScrollBars == vbVertical || state_.ScrollBars == vbBoth);
  if (!isWanted) {
    VScroll1.Tag("False");
    on.step([&] { VScroll1.Max(0); });
    on.step([&] { VScroll1.Value(0); });
    return;
  }
  on.step([&] { VScroll1.Min(0); });
  on.step([&] {
    const std::int32_t more = state_.VisibleItemsChecked ? 0 : 1;
    VScroll1.Max(checked::add(checked::subtract(count, visible), more));
  });
  if (VScroll1.Max() >= 1) {
    on.step([&] { HScroll1.Max(whole(static_cast<double>(HScroll1.Max()) + VScroll1.Width())); });
    VScroll1.Tag("True");
  } else {
    VScroll1.Tag("False");
  }
}

// ---- positions ----

void nvList::CheckScrollPlacement() {
  trapped(here, "CheckScrollPlacement", [&](Trap& on) {
    const bool hasHorizontal = HScroll1.Tag() == "True";
    const bool hasVertical = VScroll1.Tag() == "True";
    const float border = state_.BorderVisible ? 1.0F : 0.0F;
    float width = 0;
    float height = 0;
    if (hasHorizontal) {
      on.step([&] { HScroll1.Top(surface_.ScaleHeight() - HScroll1.Height() - border); });
      on.step([&] { HScroll1.Left(border); });
      on.step([&] { width = surface_.ScaleWidth() - 2 * border; });
    }
    if (hasVertical) {
      on.step([&] { VScroll1.Top(border); });
      on.step([&] { VScroll1.Left(surface_.ScaleWidth() - VScroll1.Width() - border); });
      on.step([&] { height = surface_.ScaleHeight() - 2 * border; });
    }
    // The square between the two bars belongs to neither.
    const bool hasBoth = hasHorizontal && hasVertical;
    on.step([&] { VScroll1.Height(height - (hasBoth ? HScroll1.Height() : 0)); });
    on.step([&] { HScroll1.Width(width - (hasBoth ? VScroll1.Width() : 0)); });
    on.step([&] { VScroll1.Visible(hasVertical); });
    on.step([&] { HScroll1.Visible(hasHorizontal); });
  });
}

// ---- reactions ----

void nvList::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) {
    on.step([&] { DrawBorder(); });
    on.step([&] { Redraw(); });
  });
}

void nvList::VScroll1_Change() {
  trapped(here, "VScroll1_Change", [&](Trap& on) {
    state_.TopIndex = VScroll1.Value();
    followBar(on);
  });
}

void nvList::HScroll1_Change() {
  trapped(here, "HScroll1_Change", [&](Trap& on) { followBar(on); });
}

/// Closes an open edit box without saving its text, because it would be over another row.
void nvList::followBar(Trap& on) {
  state_.EditActive = false;
  on.step([&] { Text1->Visible(false); });
  state_.SuppressRedraw = true;
  on.step([&] { container_.DoEvents(); });
  state_.SuppressRedraw = false;
  on.step([&] { Redraw(); });
  on.step([&] { raiseScroll(); });
}

void nvList::VScroll1_Scroll() {
  trapped(here, "VScroll1_Scroll", [&](Trap& on) { on.step([&] { VScroll1_Change(); }); });
}

void nvList::HScroll1_Scroll() {
  trapped(here, "HScroll1_Scroll", [&](Trap& on) { on.step([&] { HScroll1_Change(); }); });
}

}  // namespace norvane
