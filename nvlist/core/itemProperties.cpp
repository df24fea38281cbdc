#include <nvlist/nvList.h>

namespace norvane {

// The common parts of all item properties.

template <class Read>
auto nvList::readItem(const char* name, const Variant& Index, Read&& read) {
  decltype(read(item(0))) value{};
  trapped(here, name, [&](Trap& on) { on.step([&] { value = read(item(Index.toInt32())); }); });
  return value;
}

template <class Write>
void nvList::writeItem(const char* name, const Variant& Index, ItemRepaint repaints,
                       Write&& write) {
  trapped(here, name, [&](Trap& on) {
    on.step([&] { write(Index.toInt32()); });
    on.step([&] { container_.PropertyChanged(name); });
    if (repaints == ItemRepaint::yes) repaint(on);
  });
}

template <class Value>
Value nvList::readLook(const char* name, const Variant& Index, Value ItemLook::*field) {
  return readItem(name, Index, [&](const StoredItem& item) { return item.look().*field; });
}

template <class Write>
void nvList::writeLook(const char* name, const Variant& Index, Write&& write) {
  writeItem(name, Index, ItemRepaint::yes, [&](std::int32_t index) {
    // Kept alive, because releasing the old value may run host code that removes the item.
    const Ref<StoredItem> held(&item(index));
    write(held->ownLook());
    state_.Items.shareLook(index);
  });
}

Boolean nvList::ItemChecked(const Variant& Index) {
  return readItem("ItemChecked", Index, [](const StoredItem& item) { return item.Checked(); });
}
void nvList::ItemChecked(const Variant& Index, Boolean value) {
  writeItem("ItemChecked", Index, ItemRepaint::yes,
            [&](std::int32_t index) { item(index).Checked(value); });
}

Boolean nvList::ItemSelected(const Variant& Index) {
  return readItem("ItemSelected", Index, [](const StoredItem& item) { return item.Selected(); });
}

std::string nvList::ItemText(const Variant& Index) {
  return readItem("ItemText", Index,
                  [](const StoredItem& item) { return std::string(item.Text()); });
}
void nvList::ItemText(const Variant& Index, const std::string& value) {
  writeItem("ItemText", Index, ItemRepaint::yes,
            [&](std::int32_t index) { state_.Items.setText(index, value); });
}

Variant nvList::ItemTag(const Variant& Index) {
  return readItem("ItemTag", Index, [](const StoredItem& item) { return item.Tag(); });
}
void nvList::ItemTag(const Variant& Index, const Variant& value) {
  writeItem("ItemTag", Index, ItemRepaint::no, [&](std::int32_t index) { item(index).Tag(value); });
}

// A key reads back as a text, whatever type was set.

Variant nvList::ItemKey(const Variant& Index) {
  return readItem("ItemKey", Index, [](const StoredItem& item) { return Variant(item.Key()); });
}
void nvList::ItemKey(const Variant& Index, const Variant& value) {
  writeItem("ItemKey", Index, ItemRepaint::no, [&](std::int32_t index) {
    // A bad index is reported rather than a bad value.
    item(index);
    state_.Items.setKey(index, value.toText());
  });
}

Boolean nvList::ItemAllowEdit(const Variant& Index) {
  return readLook("ItemAllowEdit", Index, &ItemLook::AllowEdit);
}
void nvList::ItemAllowEdit(const Variant& Index, Boolean value) {
  writeLook("ItemAllowEdit", Index, [&](ItemLook& look) { look.AllowEdit = value; });
}

Boolean nvList::ItemEnabled(const Variant& Index) {
  return readLook("ItemEnabled", Index, &ItemLook::Enabled);
}
void nvList::ItemEnabled(const Variant& Index, Boolean value) {
  writeLook("ItemEnabled", Index, [&](ItemLook& look) { look.Enabled = value; });
}

Boolean nvList::ItemBold(const Variant& Index) {
  return readLook("ItemBold", Index, &ItemLook::Bold);
}
void nvList::ItemBold(const Variant& Index, Boolean value) {
  writeLook("ItemBold", Index, [&](ItemLook& look) { look.Bold = value; });
}

Boolean nvList::ItemItalic(const Variant& Index) {
  return readLook("ItemItalic", Index, &ItemLook::Italic);
}
void nvList::ItemItalic(const Variant& Index, Boolean value) {
  writeLook("ItemItalic", Index, [&](ItemLook& look) { look.Italic = value; });
}

Boolean nvList::ItemUnderline(const Variant& Index) {
  return readLook("ItemUnderline", Index, &ItemLook::Underline);
}
void nvList::ItemUnderline(const Variant& Index, Boolean value) {
  writeLook("ItemUnderline", Index, [&](ItemLook& look) { look.Underline = value; });
}

cItemAlignment nvList::ItemAlignment(const Variant& Index) {
  return readLook("ItemAlignment", Index, &ItemLook::Alignment);
}
void nvList::ItemAlignment(const Variant& Index, cItemAlignment value) {
  writeLook("ItemAlignment", Index, [&](ItemLook& look) { look.Alignment = value; });
}

Picture nvList::ItemIcon(const Variant& Index) {
  return readLook("ItemIcon", Index, &ItemLook::Icon);
}
void nvList::ItemIcon(const Variant& Index, const Picture& value) {
  writeLook("ItemIcon", Index, [&](ItemLook& look) { look.Icon = value; });
}

Picture nvList::ItemIconSelected(const Variant& Index) {
  return readLook("ItemIconSelected", Index, &ItemLook::IconSelected);
}
void nvList::ItemIconSelected(const Variant& Index, const Picture& value) {
  writeLook("ItemIconSelected", Index, [&](ItemLook& look) { look.IconSelected = value; });
}

Variant nvList::ItemForeColorSelect(const Variant& Index) {
  return readLook("ItemForeColorSelect", Index, &ItemLook::ForeColorSelect);
}
void nvList::ItemForeColorSelect(const Variant& Index, const Variant& value) {
  writeLook("ItemForeColorSelect", Index, [&](ItemLook& look) { look.ForeColorSelect = value; });
}

Variant nvList::ItemBackColorSelect(const Variant& Index) {
  return readLook("ItemBackColorSelect", Index, &ItemLook::BackColorSelect);
}
void nvList::ItemBackColorSelect(const Variant& Index, const Variant& value) {
  writeLook("ItemBackColorSelect", Index, [&](ItemLook& look) { look.BackColorSelect = value; });
}

// The colours of the normal state are read as numbers, although the item may hold "def".

Colour nvList::ItemForeColor(const Variant& Index) {
  return readItem("ItemForeColor", Index,
                  [](const StoredItem& item) { return item.look().ForeColor.toInt32(); });
}
void nvList::ItemForeColor(const Variant& Index, Colour value) {
  writeLook("ItemForeColor", Index, [&](ItemLook& look) { look.ForeColor = value; });
}

Colour nvList::ItemBackColor(const Variant& Index) {
  return readItem("ItemBackColor", Index,
                  [](const StoredItem& item) { return item.look().BackColor.toInt32(); });
}
void nvList::ItemBackColor(const Variant& Index, Colour value) {
  writeLook("ItemBackColor", Index, [&](ItemLook& look) { look.BackColor = value; });
}

// The colours of the disabled state are numbers in the item and Variants in the interface.

Variant nvList::ItemForeColorDis(const Variant& Index) {
  return readItem("ItemForeColorDis", Index,
                  [](const StoredItem& item) { return Variant(item.look().ForeColorDis); });
}
void nvList::ItemForeColorDis(const Variant& Index, const Variant& value) {
  writeLook("ItemForeColorDis", Index,
            [&](ItemLook& look) { look.ForeColorDis = value.toInt32(); });
}

Variant nvList::ItemBackColorDis(const Variant& Index) {
  return readItem("ItemBackColorDis", Index,
                  [](const StoredItem& item) { return Variant(item.look().BackColorDis); });
}
void nvList::ItemBackColorDis(const Variant& Index, const Variant& value) {
  writeLook("ItemBackColorDis", Index,
            [&](ItemLook& look) { look.BackColorDis = value.toInt32(); });
}

std::string nvList::Text() {
  std::string text;
  trapped(here, "Text", [&](Trap& on) {
    if (ItemsCount() == 0 || state_.ListIndex == -1) return;
    on.step([&] { text = item(state_.ListIndex).Text(); });
  });
  return text;
}

// No trap: a failure is thrown to the caller.
void nvList::Text(std::string_view value) {
  if (ItemsCount() == 0) return;
  const std::int32_t found = stoppedAt(state_.Items.findText(value));
  if (found >= 0) ListIndex(found);
}

}  // namespace norvane
