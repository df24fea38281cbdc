#include <nvlist/nvList.h>

namespace norvane {

/// The common part of all item properties.
template <class Value>
Value nvList::readItem(const char* name, const Variant& Index, Value ListItem::*field) {
  Value value{};
  trapped(here, name, [&](Trap& on) { on.step([&] { value = item(Index.toInt32()).*field; }); });
  return value;
}

template <class Write>
void nvList::writeItem(const char* name, const Variant& Index, ItemRepaint repaints,
                       Write&& write) {
  trapped(here, name, [&](Trap& on) {
    on.step([&] { write(item(Index.toInt32())); });
    on.step([&] { container_.PropertyChanged(name); });
    if (repaints == ItemRepaint::yes) repaint(on);
  });
}

Boolean nvList::ItemChecked(const Variant& Index) {
  return readItem("ItemChecked", Index, &ListItem::Checked);
}

void nvList::ItemChecked(const Variant& Index, Boolean value) {
  writeItem("ItemChecked", Index, ItemRepaint::yes, [&](ListItem& item) { item.Checked = value; });
}

Variant nvList::ItemForeColorSelect(const Variant& Index) {
  return readItem("ItemForeColorSelect", Index, &ListItem::ForeColorSelect);
}

void nvList::ItemForeColorSelect(const Variant& Index, const Variant& value) {
  writeItem("ItemForeColorSelect", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.ForeColorSelect = value; });
}

Variant nvList::ItemBackColorSelect(const Variant& Index) {
  return readItem("ItemBackColorSelect", Index, &ListItem::BackColorSelect);
}

void nvList::ItemBackColorSelect(const Variant& Index, const Variant& value) {
  writeItem("ItemBackColorSelect", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.BackColorSelect = value; });
}

Variant nvList::ItemTag(const Variant& Index) { return readItem("ItemTag", Index, &ListItem::Tag); }

void nvList::ItemTag(const Variant& Index, const Variant& value) {
  writeItem("ItemTag", Index, ItemRepaint::no, [&](ListItem& item) { item.Tag = value; });
}

Picture nvList::ItemIcon(const Variant& Index) {
  return readItem("ItemIcon", Index, &ListItem::Icon);
}

void nvList::ItemIcon(const Variant& Index, const Picture& value) {
  writeItem("ItemIcon", Index, ItemRepaint::yes, [&](ListItem& item) { item.Icon = value; });
}

Picture nvList::ItemIconSelected(const Variant& Index) {
  return readItem("ItemIconSelected", Index, &ListItem::IconSelected);
}

void nvList::ItemIconSelected(const Variant& Index, const Picture& value) {
  writeItem("ItemIconSelected", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.IconSelected = value; });
}

cItemAlignment nvList::ItemAlignment(const Variant& Index) {
  return readItem("ItemAlignment", Index, &ListItem::Alignment);
}

void nvList::ItemAlignment(const Variant& Index, cItemAlignment value) {
  writeItem("ItemAlignment", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.Alignment = value; });
}

Boolean nvList::ItemAllowEdit(const Variant& Index) {
  return readItem("ItemAllowEdit", Index, &ListItem::AllowEdit);
}

void nvList::ItemAllowEdit(const Variant& Index, Boolean value) {
  writeItem("ItemAllowEdit", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.AllowEdit = value; });
}

std::string nvList::ItemText(const Variant& Index) {
  return readItem("ItemText", Index, &ListItem::Text);
}

void nvList::ItemText(const Variant& Index, const std::string& value) {
  trapped(here, "ItemText", [&](Trap& on) {
    on.step([&] { state_.Items.setText(Index.toInt32(), value); });
    on.step([&] { container_.PropertyChanged("ItemText"); });
    repaint(on);
  });
}

Boolean nvList::ItemEnabled(const Variant& Index) {
  return readItem("ItemEnabled", Index, &ListItem::Enabled);
}

void nvList::ItemEnabled(const Variant& Index, Boolean value) {
  writeItem("ItemEnabled", Index, ItemRepaint::yes, [&](ListItem& item) { item.Enabled = value; });
}

Boolean nvList::ItemBold(const Variant& Index) {
  return readItem("ItemBold", Index, &ListItem::Bold);
}

void nvList::ItemBold(const Variant& Index, Boolean value) {
  writeItem("ItemBold", Index, ItemRepaint::yes, [&](ListItem& item) { item.Bold = value; });
}

Boolean nvList::ItemItalic(const Variant& Index) {
  return readItem("ItemItalic", Index, &ListItem::Italic);
}

void nvList::ItemItalic(const Variant& Index, Boolean value) {
  writeItem("ItemItalic", Index, ItemRepaint::yes, [&](ListItem& item) { item.Italic = value; });
}

Boolean nvList::ItemUnderline(const Variant& Index) {
  return readItem("ItemUnderline", Index, &ListItem::Underline);
}

void nvList::ItemUnderline(const Variant& Index, Boolean value) {
  writeItem("ItemUnderline", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.Underline = value; });
}

// A key reads back as a text, whatever type was set.

Variant nvList::ItemKey(const Variant& Index) {
  Variant value;
  trapped(here, "ItemKey",
          [&](Trap& on) { on.step([&] { value = Variant(item(Index.toInt32()).Key.view()); }); });
  return value;
}

void nvList::ItemKey(const Variant& Index, const Variant& value) {
  writeItem("ItemKey", Index, ItemRepaint::no, [&](ListItem& item) { item.Key = value.toText(); });
}

// The colours of the normal state are read as numbers, although the item may hold "def".

Colour nvList::ownColour(const char* name, const Variant& Index, Variant ListItem::*field) {
  Colour colour = 0;
  trapped(here, name,
          [&](Trap& on) { on.step([&] { colour = (item(Index.toInt32()).*field).toInt32(); }); });
  return colour;
}

Colour nvList::ItemForeColor(const Variant& Index) {
  return ownColour("ItemForeColor", Index, &ListItem::ForeColor);
}

void nvList::ItemForeColor(const Variant& Index, Colour value) {
  writeItem("ItemForeColor", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.ForeColor = value; });
}

Colour nvList::ItemBackColor(const Variant& Index) {
  return ownColour("ItemBackColor", Index, &ListItem::BackColor);
}

void nvList::ItemBackColor(const Variant& Index, Colour value) {
  writeItem("ItemBackColor", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.BackColor = value; });
}

// The colours of the disabled state are numbers in the item and Variants in the interface.

Variant nvList::colourOfDisabled(const char* name, const Variant& Index, Colour ListItem::*field) {
  Variant colour;
  trapped(here, name, [&](Trap& on) { on.step([&] { colour = item(Index.toInt32()).*field; }); });
  return colour;
}

Variant nvList::ItemForeColorDis(const Variant& Index) {
  return colourOfDisabled("ItemForeColorDis", Index, &ListItem::ForeColorDis);
}

void nvList::ItemForeColorDis(const Variant& Index, const Variant& value) {
  writeItem("ItemForeColorDis", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.ForeColorDis = value.toInt32(); });
}

Variant nvList::ItemBackColorDis(const Variant& Index) {
  return colourOfDisabled("ItemBackColorDis", Index, &ListItem::BackColorDis);
}

void nvList::ItemBackColorDis(const Variant& Index, const Variant& value) {
  writeItem("ItemBackColorDis", Index, ItemRepaint::yes,
            [&](ListItem& item) { item.BackColorDis = value.toInt32(); });
}

Boolean nvList::ItemSelected(const Variant& Index) {
  return readItem("ItemSelected", Index, &ListItem::Selected);
}

std::string nvList::Text() {
  std::string text;
  trapped(here, "Text", [&](Trap& on) {
    if (ItemsCount() == 0 || state_.ListIndex == -1) return;
    on.step([&] { text = item(state_.ListIndex).Text; });
  });
  return text;
}

// No trap: a failure is thrown to the caller.
void nvList::Text(std::string_view value) {
  if (ItemsCount() == 0) return;
  const std::int32_t found = firstItem([&](const ListItem& item) { return item.Text == value; });
  if (found >= 0) ListIndex(found);
}

}  // namespace norvane
