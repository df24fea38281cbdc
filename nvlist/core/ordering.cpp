#include <nvlist/core/partitionSort.h>
#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

void nvList::Sort(cSortMode SortMode) {
  trapped(here, "Sort", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    if (SortMode == cAscending) on.step([&] { QuickSortAsc(); });
    if (SortMode == cDescending) on.step([&] { QuickSortDesc(); });
    on.step([&] { Redraw(); });
  });
}

void nvList::sortTexts(const char* procedure, cSortMode mode) {
  trapped(here, procedure, [&](Trap& on) {
    on.step([&] {
      std::vector<std::string_view> texts;
      texts.reserve(static_cast<std::size_t>(ItemsCount()));
      state_.Items.forEach([&](const StoredItem& item) { texts.push_back(item.Text()); });
      const std::vector<std::int32_t> order = partitionOrder(texts, mode);
      state_.Items.reorder(order);
      state_.Selection.reordered(order);
    });
  });
}

void nvList::MoveItemUp(const Variant& lItem, const Variant& lCount) {
  trapped(here, "MoveItemUp", [&](Trap& on) {
    if (!state_.ItemsDimensioned || on.test([&] { return WrongIndex(lItem); })) return;
    const double from = lItem.toNumber();
    double count = 0;
    const auto goesTooFar = [&] {
      count = lCount.toNumber();
      return from - count < 0;
    };
    if (on.test(goesTooFar)) count = from;
    if (count == 0) return;
    on.step([&] { moveItem(from, count, -1); });
    on.step([&] { state_.ListIndex = checked::nearest<std::int32_t>(state_.ListIndex - count); });
    repaint(on);
  });
}

namespace {

/// Adds as the + of host languages does: two texts are joined, and the result is read as a number.
double sumOf(const Variant& a, const Variant& b) {
  if (!a.isText() || !b.isText()) return a.toNumber() + b.toNumber();
  return Variant(std::string(a.text()).append(b.text())).toNumber();
}

}  // namespace

void nvList::MoveItemDown(const Variant& lItem, const Variant& lCount) {
  trapped(here, "MoveItemDown", [&](Trap& on) {
    if (!state_.ItemsDimensioned || on.test([&] { return WrongIndex(lItem); })) return;
    const double from = lItem.toNumber();
    const double last = state_.Items.upperBound();
    double target = last;
    double count = last - from;
    const auto goesTooFar = [&] {
      target = sumOf(lItem, lCount);
      return target > last;
    };
    if (on.test(goesTooFar))
      target = last;
    else if (on.test([&] { return (count = lCount.toNumber()) == 0; }))
      return;
    if (count == 0) return;
    on.step([&] { moveItem(from, target - from, 1); });
    on.step([&] { state_.ListIndex = checked::nearest<std::int32_t>(state_.ListIndex + count); });
    repaint(on);
  });
}

/// Shifts the references between the two positions, slot by slot, and stores the item at the
/// target. With a negative count nothing is shifted.
void nvList::moveItem(double from, double count, int direction) {
  const auto place = [&](double steps) {
    return checked::nearest<std::int32_t>(from + direction * steps);
  };
  ItemStore& items = state_.Items;
  const double passes = std::max(0.0, std::floor(count));
  if (from == std::floor(from) && count == passes) {
    items.move(place(0), place(count));
    state_.LoopIndex = place(direction > 0 ? passes + 1 : passes);
  } else {
    // Two fractional positions may be rounded to the same slot.
    const Ref<StoredItem> held = items.slot(place(0));
    for (double pass = 0; pass < passes; ++pass)
      items.slot(place(pass)) = items.slot(place(pass + 1));
    state_.LoopIndex = place(direction > 0 ? passes + 1 : passes);
    items.slot(place(count)) = held;
  }
  state_.Selection.itemMoved(place(0), place(count));
}

}  // namespace norvane
