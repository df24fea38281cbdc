#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace norvane {
namespace {

/// The value as a text, which is stored in `converted` if the value is not a text.
std::string_view textOf(const Variant& value, std::string& converted) {
  if (value.isText()) return value.text();
  return converted = value.toText();
}

bool isNumber(const Variant& value) {
  return value.type() == Variant::Type::Int32 || value.type() == Variant::Type::Int16;
}

}  // namespace

bool nvList::WrongIndex(const Variant& Index) const {
  if (!Index.isNumeric()) return true;
  const double number = Index.toNumber();
  return !(number >= 0 && number <= state_.Items.upperBound());
}

void nvList::ItemsAdd(NewItem values) { addItem(std::move(values), std::nullopt); }

void nvList::addItem(NewItem&& values, std::optional<std::string_view> text) {
  trapped(here, "ItemsAdd", [&](Trap& on) {
    ItemStore& items = state_.Items;
    bool insert = false;
    if (state_.ItemsDimensioned) {
      on.step([&] { items.grow(); });
      state_.InsertIndex = items.upperBound();
      insert = on.test([&] {
        const double index = values.aIndex.toNumber();
        return index >= 0 && index < items.upperBound();
      });
    } else {
      on.step([&] { items.reset(); });
      state_.Selection.removedAll();
      state_.ItemsDimensioned = true;
      state_.InsertIndex = 0;
    }

    // Kept alive, because releasing the old value of a field may run host code that removes the
    // item.
    Ref<StoredItem> added;
    std::string converted;
    if (!text) on.step([&] { text = textOf(values.aText, converted); });
    on.step([&] { added = items.setText(items.upperBound(), text.value_or("")); });
    if (added) writeFields(on, *added, values);

    if (state_.AutoRedraw.isTrue()) {
      on.step([&] { SetNoneSelected(); });
      state_.ListIndex = -1;
      state_.SelectAnchor = -1;
    }

    if (insert) {
      on.step([&] { moveLastTo(values.aIndex.toNumber()); });
      state_.InsertIndex = values.aIndex;
    }
    on.step([&] { state_.NewIndex = state_.InsertIndex.toInt32(); });

    if (state_.AutoRedraw) on.step([&] { CheckItemWidth(state_.InsertIndex); });

    // A row count plus a height: more than the number of visible rows, and cheap to compute. Above
    // this limit an added item causes no repaint.
    float repaintLimit = 0;
    on.step([&] {
      const float height = surface_.TextHeight("A");
      if (height == 0) throw Failure::divisionByZero();
      repaintLimit = surface_.ScaleHeight() / height + height;
    });
    const bool mayBeInView = double{repaintLimit} > ItemsCount();
    if (state_.AutoCheckScroll) on.step([&] { CheckScroll(); });
    if (mayBeInView && state_.AutoRedraw) on.step([&] { Redraw(); });
  });
}

void nvList::writeFields(Trap& on, StoredItem& item, NewItem& values) const {
  item.Checked(values.aChecked);
  item.Selected(false);
  // Collected first, so that the item can share its look with the one before it. If a colour cannot
  // be converted, however, the fields before it must have been written.
  ItemLook collected = {.ForeColor = std::move(values.aForeColor),
                        .BackColor = std::move(values.aBackColor),
                        .ForeColorSelect = std::move(values.aForeColorSelected),
                        .BackColorSelect = std::move(values.aBackColorSelected),
                        .Icon = std::move(values.aIcon),
                        .IconSelected = std::move(values.aIconSelected)};
  const bool isReadable = isNumber(values.aForeColorDis) && isNumber(values.aBackColorDis);
  if (!isReadable) on.step([&] { item.ownLook() = std::move(collected); });
  // Looked up for each field: a conversion may run host code that changes the item.
  const auto look = [&]() -> ItemLook& { return isReadable ? collected : item.ownLook(); };
  on.step([&] {
    const Colour colour = values.aForeColorDis.toInt32();
    look().ForeColorDis = colour;
  });
  on.step([&] {
    const Colour colour = values.aBackColorDis.toInt32();
    look().BackColorDis = colour;
  });
  on.step([&] {
    ItemLook& fields = look();
    fields.AllowEdit = values.aAllowEdit;
    fields.Enabled = values.aEnabled;
    fields.Alignment = values.aAlignment;
    fields.Bold = values.aBold;
    fields.Italic = values.aItalic;
    fields.Underline = values.aUnderline;
  });
  if (isReadable)
    on.step([&] { state_.Items.setLook(item, state_.Items.upperBound(), collected); });
  if (values.aKey.isText()) {
    on.step([&] { item.KeyAndTag(values.aKey.text(), std::move(values.aTag)); });
    return;
  }
  on.step([&] { item.Tag(std::move(values.aTag)); });
  on.step([&] { item.Key(values.aKey.toText()); });
}

void nvList::ItemsAppend(const ListItem& added) {
  trapped(here, "ItemsAppend", [&](Trap& on) {
    on.step([&] {
      ItemStore& items = state_.Items;
      if (state_.ItemsDimensioned)
        items.grow();
      else
        items.reset();
      state_.ItemsDimensioned = true;
      const std::int32_t index = items.upperBound();
      items.assign(index, added);
      if (!added.Selected) return;
      items.touch(index).Selected(false);
      state_.Selection.set(items, index, added.Selected);
    });
  });
}

/// Shifts the references from the next whole index on up by one slot, and stores the last item at
/// the rounded index. A fraction that is rounded down overwrites an item that was not shifted.
void nvList::moveLastTo(double index) {
  ItemStore& items = state_.Items;
  const auto first = checked::nearest<std::int32_t>(std::ceil(index));
  const auto place = checked::nearest<std::int32_t>(index);
  items.move(items.upperBound(), first);
  if (place < first) {
    items.slot(place) = items.slot(first);
    if (first < items.upperBound()) items.slot(first) = items.slot(first + 1);
  }
  state_.LoopIndex = first;
}

void nvList::ItemsRemove(Variant& Index) {
  trapped(here, "ItemsRemove", [&](Trap& on) {
    if (!state_.ItemsDimensioned || on.test([&] { return WrongIndex(Index); })) return;
    on.step([&] { Index = Index.toInt32(); });
    on.step([&] { state_.Selection.removing(state_.Items, Index.toInt32()); });
    const std::int32_t removed = shiftDownOnto(on, Index.toInt32());
    if (ItemsCount() < 2)
      on.step([&] { ItemsClear(); });
    else
      on.step([&] { state_.Items.remove(removed); });
    updateAfterChange(on);
  });
}

/// Shifts the references after `index` down by one, and processes waiting events after each.
/// Returns the slot that is then to be removed: the last one, or, as soon as no events are waiting,
/// the next one to be overwritten, since the rest can then be shifted at once.
std::int32_t nvList::shiftDownOnto(Trap& on, std::int32_t index) {
  ItemStore& items = state_.Items;
  if (index >= items.upperBound()) return items.upperBound();
  state_.LoopIndex = index - 1;
  while (state_.LoopIndex < items.upperBound() - 1) {
    ++state_.LoopIndex;
    if (!on.test([&] { return container_.EventsWaiting(); }))
      return std::exchange(state_.LoopIndex, items.upperBound() - 1);
    on.step([&] { items.slot(state_.LoopIndex) = items.slot(state_.LoopIndex + 1); });
    on.step([&] { container_.DoEvents(); });
  }
  return items.upperBound();
}

void nvList::ItemsClear() {
  trapped(here, "ItemsClear", [&](Trap& on) {
    on.step([&] { state_.Items.reset(); });
    state_.Selection.removedAll();
    state_.ItemsDimensioned = false;
    state_.MaxItemWidth = 0;
    state_.ListIndex = 0;
    updateAfterChange(on);
  });
}

void nvList::ItemsSelectedRemove() {
  trapped(here, "ItemsSelectedRemove", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    state_.SweepIndex = 0;
    state_.InsertIndex = state_.Items.upperBound();
    while (state_.ItemsDimensioned &&
           !on.test([&] { return state_.SweepIndex > state_.InsertIndex.toInt32(); })) {
      if (on.test([&] { return item(state_.SweepIndex).Selected(); })) {
        const std::int64_t failures = Trap::failures();
        removeSwept(on);
        if (Trap::failures() == failures && sweepToLast(on)) removeSwept(on);
      }
      on.step([&] { yield(); });
      on.step([&] { state_.SweepIndex = checked::add(state_.SweepIndex, 1); });
    }
    if (state_.ItemsDimensioned) on.step([&] { TopIndex(0); });
    on.step([&] { yield(); });
    if (state_.AutoRedraw) on.step([&] { CheckItemWidth(); });
    if (state_.AutoCheckScroll) on.step([&] { CheckScroll(); });
    on.step([&] { yield(); });
    if (state_.AutoRedraw) on.step([&] { Redraw(); });
  });
}

void nvList::removeSwept(Trap& on) {
  on.step([&] { ItemsRemove(Variant(state_.SweepIndex)); });
  on.step([&] { state_.SweepIndex = checked::subtract(state_.SweepIndex, 1); });
  on.step([&] { state_.InsertIndex = checked::subtract(state_.InsertIndex.toInt32(), 1); });
}

/// Called after a removal without a failure. Removes the selected items from the next one on,
/// except the last one, all at once, and moves the sweep to that last one. Returns false if it did
/// nothing.
///
/// The last one adjusts and paints everything once more. Nobody can see what those before it would
/// have painted: it ends where events are waiting, and it begins behind the rows in view, among
/// which there may be one that cannot be painted.
bool nvList::sweepToLast(Trap& on) {
  const std::int32_t first = state_.SweepIndex + 1;
  // After a repaint LoopIndex is the first item that was not painted.
  if (state_.AutoRedraw && first < state_.LoopIndex) return false;
  // Of a style without pictures each repaint of a thumb is reported.
  if (state_.ScrollColorStyle < cXPScrollBlue || state_.ScrollColorStyle > cXPScrollOlive)
    return false;
  bool isDone = false;
  on.ignoring([&] {
    std::int32_t last = -1;
    for (std::int32_t i = first; i <= state_.Items.upperBound() && !container_.EventsWaiting(); ++i)
      if (item(i).Selected()) last = i;
    if (last < first) return;
    if (last > first) {
      for (std::int32_t i = first; i < last; ++i) state_.Selection.removing(state_.Items, i);
      const std::int32_t removed = state_.Items.removeSelected(first, last);
      state_.InsertIndex = checked::subtract(state_.InsertIndex.toInt32(), removed);
      last -= removed;
      if (removed > 0) {
        state_.LoopIndex = state_.Items.upperBound();
        // A fit that hides a bar gives the other one its length, and the next its thumb.
        updateAfterChange(on);
      }
    }
    state_.SweepIndex = last;
    isDone = true;
  });
  return isDone;
}

std::int32_t nvList::ItemsCount() const {
  return state_.ItemsDimensioned ? state_.Items.upperBound() + 1 : 0;
}

std::int32_t nvList::ItemsSelectCount() {
  return countItems("ItemsSelectCount", &StoredItem::Selected);
}

std::int32_t nvList::ItemsCheckCount() {
  return countItems("ItemsCheckCount", &StoredItem::Checked);
}

std::int32_t nvList::countItems(const char* procedure, Boolean (StoredItem::*mark)() const) {
  std::int32_t count = 0;
  trapped(here, procedure, [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    state_.LoopIndex = 0;
    state_.SweepIndex = 0;
    while (state_.LoopIndex <= state_.Items.upperBound()) {
      if (on.test([&] { return (item(state_.LoopIndex).*mark)(); }))
        on.step([&] { state_.SweepIndex = checked::add(state_.SweepIndex, 1); });
      on.step([&] { yield(); });
      on.step([&] { state_.LoopIndex = checked::add(state_.LoopIndex, 1); });
      // Under SilentError an index without an item counts. A handler can move the position as far
      // as 2^31 below the first item, so the missing ones are counted at once.
      if (state_.LoopIndex < 0 && !on.test([&] { return container_.EventsWaiting(); })) {
        const std::int64_t counted = std::int64_t{state_.SweepIndex} - state_.LoopIndex;
        state_.SweepIndex = static_cast<std::int32_t>(std::min<std::int64_t>(counted, INT32_MAX));
        state_.LoopIndex = 0;
      }
    }
    count = state_.SweepIndex;
  });
  return count;
}

/// Called at the end of every change of the items.
void nvList::updateAfterChange(Trap& on) {
  if (state_.AutoRedraw) on.step([&] { CheckItemWidth(); });
  if (state_.AutoCheckScroll) on.step([&] { CheckScroll(); });
  if (state_.AutoRedraw) on.step([&] { Redraw(); });
}

}  // namespace norvane
