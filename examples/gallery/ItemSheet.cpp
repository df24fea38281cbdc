// The sheet of the properties of an item.

#include "Sheet.h"

using norvane::nvList;
using norvane::Variant;

namespace gallery {
namespace {

/// A property with a pair of accessors in the list.
template <class Value, class Argument>
Property row(const char* name, MakeEditor<Value> make, Value (nvList::*read)(const Variant&),
             void (nvList::*write)(const Variant&, Argument)) {
  return property<Value>(
      name, make, [read](const Subject& on) { return (on.list().*read)(on.item); },
      [write](const Subject& on, const Value& value) { (on.list().*write)(on.item, value); });
}

/// A colour whose accessor returns a number and fails for "def"; read from the item instead.
Property ownNumber(const char* name, Variant norvane::ListItem::*field,
                   void (nvList::*write)(const Variant&, norvane::Colour)) {
  return property<Variant>(
      name, itemColour(Default::shown),
      [field](const Subject& on) { return on.list().state().Items.at(on.item).*field; },
      [write](const Subject& on, const Variant& value) {
        (on.list().*write)(on.item, value.toInt32());
      });
}

MakeEditor<norvane::cItemAlignment> alignment() {
  return choice<norvane::cItemAlignment>(
      {{"cLeft", norvane::cLeft}, {"cCenter", norvane::cCenter}, {"cRight", norvane::cRight}});
}

}  // namespace

const std::vector<PropertyGroup>& propertiesOfItems() {
  using norvane::ListItem;
  static const std::vector<PropertyGroup> groups = {
      {"Look",
       {row("ItemText", text(), &nvList::ItemText, &nvList::ItemText),
        row("ItemChecked", flag(), &nvList::ItemChecked, &nvList::ItemChecked),
        row("ItemEnabled", flag(), &nvList::ItemEnabled, &nvList::ItemEnabled),
        row("ItemSelected", flag(), &nvList::ItemSelected, &nvList::ItemSelected),
        row("ItemAlignment", alignment(), &nvList::ItemAlignment, &nvList::ItemAlignment),
        row("ItemBold", flag(), &nvList::ItemBold, &nvList::ItemBold),
        row("ItemItalic", flag(), &nvList::ItemItalic, &nvList::ItemItalic),
        row("ItemUnderline", flag(), &nvList::ItemUnderline, &nvList::ItemUnderline),
        row("ItemIcon", picture(), &nvList::ItemIcon, &nvList::ItemIcon),
        row("ItemIconSelected", picture(), &nvList::ItemIconSelected, &nvList::ItemIconSelected)}},
      {"Colours",
       {ownNumber("ItemForeColor", &ListItem::ForeColor, &nvList::ItemForeColor),
        ownNumber("ItemBackColor", &ListItem::BackColor, &nvList::ItemBackColor),
        row("ItemForeColorSelect", itemColour(Default::accepted), &nvList::ItemForeColorSelect,
            &nvList::ItemForeColorSelect),
        row("ItemBackColorSelect", itemColour(Default::accepted), &nvList::ItemBackColorSelect,
            &nvList::ItemBackColorSelect),
        row("ItemForeColorDis", itemColour(Default::shown), &nvList::ItemForeColorDis,
            &nvList::ItemForeColorDis),
        row("ItemBackColorDis", itemColour(Default::shown), &nvList::ItemBackColorDis,
            &nvList::ItemBackColorDis)}},
      {"The host's own",
       {row("ItemAllowEdit", flag(), &nvList::ItemAllowEdit, &nvList::ItemAllowEdit),
        row("ItemKey", value(), &nvList::ItemKey, &nvList::ItemKey),
        row("ItemTag", value(), &nvList::ItemTag, &nvList::ItemTag)}},
  };
  return groups;
}

}  // namespace gallery
