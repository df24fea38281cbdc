#include "../HearingList.h"

#include <type_traits>

namespace norvane {
namespace {

std::string shown(Boolean value) { return std::to_string(value.number()); }
std::string shown(std::int32_t value) { return std::to_string(value); }
std::string shown(const std::string& value) { return value; }
std::string shown(const Picture& value) { return value ? value->description() : "none"; }
std::string shown(const Variant& value) { return value.isEmpty() ? "(empty)" : value.toText(); }

/// One item property, with a value that new items do not have.
struct Accessor {
  std::string name, zero, value;
  std::function<std::string(nvList&, const Variant& index)> read;
  std::function<void(nvList&, const Variant& index)> write;
  std::string heard;
};

template <class Value, class Given>
Accessor of(const char* name, Value (nvList::*get)(const Variant&),
            void (nvList::*let)(const Variant&, Given), const std::type_identity_t<Value>& value,
            const std::string& repaint = "*") {
  const auto read = [=](nvList& list, const Variant& at) { return shown((list.*get)(at)); };
  const auto write = [=](nvList& list, const Variant& at) { (list.*let)(at, value); };
  return {name, shown(Value{}), shown(value), read, write, name + repaint};
}

class ItemProperties : public HearingListTest {
 protected:
  std::string fields(int index) {
    std::string result;
    for (const Accessor& each : accessors) result += each.read(list, index) + "\n";
    reports();  // a default colour is no number
    return result;
  }

  using L = nvList;
  const Picture icon = makeRef<NamedPicture>("icon"), other = makeRef<NamedPicture>("other");
  const std::vector<Accessor> accessors = {
      of("ItemChecked", &L::ItemChecked, &L::ItemChecked, true),
      of("ItemForeColor", &L::ItemForeColor, &L::ItemForeColor, 1),
      of("ItemBackColor", &L::ItemBackColor, &L::ItemBackColor, 2),
      of("ItemForeColorSelect", &L::ItemForeColorSelect, &L::ItemForeColorSelect, "3"),
      of("ItemBackColorSelect", &L::ItemBackColorSelect, &L::ItemBackColorSelect, 4),
      of("ItemForeColorDis", &L::ItemForeColorDis, &L::ItemForeColorDis, 5),
      of("ItemBackColorDis", &L::ItemBackColorDis, &L::ItemBackColorDis, 6),
      of("ItemTag", &L::ItemTag, &L::ItemTag, 7.5, ""),
      of("ItemKey", &L::ItemKey, &L::ItemKey, "a key of some length", ""),
      of("ItemIcon", &L::ItemIcon, &L::ItemIcon, icon),
      of("ItemIconSelected", &L::ItemIconSelected, &L::ItemIconSelected, other),
      of("ItemAlignment", &L::ItemAlignment, &L::ItemAlignment, cItemAlignment{77}),
      of("ItemAllowEdit", &L::ItemAllowEdit, &L::ItemAllowEdit, true),
      of("ItemText", &L::ItemText, &L::ItemText, "a text"),
      of("ItemEnabled", &L::ItemEnabled, &L::ItemEnabled, false),
      of("ItemBold", &L::ItemBold, &L::ItemBold, Boolean::ofNumber(5)),
      of("ItemItalic", &L::ItemItalic, &L::ItemItalic, true),
      of("ItemUnderline", &L::ItemUnderline, &L::ItemUnderline, true)};
};

TEST_F(ItemProperties, EachWritesAFieldOfItsOwnAndNotifiesTheHost) {
  fill(3);
  const std::string before = fields(0) + fields(2);
  for (const bool isAutomatic : {true, false}) {
    list.AutoRedraw(isAutomatic);
    heard();
    for (const Accessor& each : accessors) {
      EXPECT_EQ(each.read(list, 1) == each.value, !isAutomatic) << each.name;
      each.write(list, 1);
      EXPECT_EQ(heard(), isAutomatic ? each.heard : each.name);
      EXPECT_EQ(each.read(list, 1), each.value) << each.name;
    }
  }
  EXPECT_EQ(fields(0) + fields(2), before);
  // Alike again, and changed again.
  for (const Accessor& each : accessors) each.write(list, 2);
  EXPECT_EQ(fields(1), fields(2));
  // The names mean the same to ItemsAdd.
  list.ItemsAdd({.aText = "a text",
                 .aIcon = icon,
                 .aIconSelected = other,
                 .aChecked = true,
                 .aForeColor = 1,
                 .aBackColor = 2,
                 .aAllowEdit = true,
                 .aAlignment = cItemAlignment{77},
                 .aForeColorSelected = "3",
                 .aBackColorSelected = 4,
                 .aEnabled = false,
                 .aTag = 7.5,
                 .aForeColorDis = 5,
                 .aBackColorDis = 6,
                 .aBold = Boolean::ofNumber(5),
                 .aItalic = true,
                 .aUnderline = true,
                 .aKey = "a key of some length"});
  EXPECT_EQ(fields(1), fields(3));
  list.ItemChecked(2, Boolean::ofNumber(7));
  EXPECT_EQ(list.ItemChecked(1).number(), -1);
}

TEST_F(ItemProperties, ABadIndexIsAFailureAndAnEmptyListHasOneSlot) {
  for (const Accessor& each : accessors) {
    list.ItemsClear();
    each.write(list, 0);
    EXPECT_EQ(each.read(list, 0), each.value);
    EXPECT_EQ(list.ItemsCount(), 0);
    fill(2);
    const std::string before = fields(0) + fields(1);
    for (const auto& [bad, number] : {std::pair(Variant(2), "9 "), {"x", "13 "}}) {
      for (const bool isSilent : {false, true}) {
        Error().SilentError(isSilent);
        EXPECT_EQ(each.read(list, bad), each.zero);
        each.write(list, bad);
        const std::string report = number + each.name;
        EXPECT_EQ(reports(), isSilent ? "" : report + ", " + report);
        EXPECT_EQ(heard(), isSilent ? each.heard : "") << each.name;
      }
    }
    EXPECT_EQ(fields(0) + fields(1), before);
  }
}

TEST_F(ItemProperties, AnIndexIsRoundedAndAValueConverted) {
  fill(5);
  EXPECT_EQ(list.ItemText(1.5) + list.ItemText(" 2.5 "), "22");
  list.ItemKey(9, Ref<Object>(makeRef<Object>()));
  EXPECT_EQ(reports(), "9 ItemKey");
  list.ItemBackColorDis(0, "2.5");
  EXPECT_EQ(list.ItemBackColorDis(0).type(), Variant::Type::Int32);
  heard();
  for (const bool isSilent : {false, true}) {
    Error().SilentError(isSilent);
    list.ItemForeColorDis(0, "def");
    list.ItemBackColorDis(0, 1e10);
    EXPECT_EQ(item(0).BackColorDis, 2);
    EXPECT_EQ(reports(), isSilent ? "" : "13 ItemForeColorDis, 6 ItemBackColorDis");
    EXPECT_EQ(heard(), isSilent ? "ItemForeColorDis* ItemBackColorDis*" : "");
  }
}

}  // namespace
}  // namespace norvane
