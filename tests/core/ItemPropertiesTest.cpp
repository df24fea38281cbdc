#include "../Lists.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace norvane {
namespace {

std::string shown(Boolean value) { return std::to_string(value.number()); }
std::string shown(std::int32_t value) { return std::to_string(value); }
std::string shown(const std::string& value) { return value; }
std::string shown(const CompactText& value) { return std::string(value.view()); }
std::string shown(const Picture& value) { return std::to_string(value ? value->handle() : 0); }
std::string shown(const Variant& value) { return value.isEmpty() ? "(empty)" : value.toText(); }

/// One property of an item, with a value that no new item has.
struct Accessor {
  std::string name;
  std::string zero;
  std::string value;
  std::function<std::string(nvList&, const Variant& index)> read;
  std::function<void(nvList&, const Variant& index)> write;
  std::function<std::string(const ListItem&)> field;
  bool repaints;
};

template <class Value, class Given, class Field>
Accessor accessor(const char* name, Value (nvList::*get)(const Variant&),
                  void (nvList::*let)(const Variant&, Given), Field ListItem::*field,
                  const std::type_identity_t<Value>& value, bool repaints = true) {
  return {name,
          shown(Value{}),
          shown(value),
          [=](nvList& list, const Variant& index) { return shown((list.*get)(index)); },
          [=](nvList& list, const Variant& index) { (list.*let)(index, value); },
          [=](const ListItem& item) { return shown(item.*field); },
          repaints};
}

class Drawing : public PictureObject {
 public:
  float width() const override { return 16; }
  float height() const override { return 16; }
};

std::vector<Accessor> allAccessors() {
  using L = nvList;
  using I = ListItem;
  return {
      accessor("ItemChecked", &L::ItemChecked, &L::ItemChecked, &I::Checked, true),
      accessor("ItemForeColor", &L::ItemForeColor, &L::ItemForeColor, &I::ForeColor, 1),
      accessor("ItemBackColor", &L::ItemBackColor, &L::ItemBackColor, &I::BackColor, 2),
      accessor("ItemForeColorSelect", &L::ItemForeColorSelect, &L::ItemForeColorSelect,
               &I::ForeColorSelect, "3"),
      accessor("ItemBackColorSelect", &L::ItemBackColorSelect, &L::ItemBackColorSelect,
               &I::BackColorSelect, 4),
      accessor("ItemForeColorDis", &L::ItemForeColorDis, &L::ItemForeColorDis, &I::ForeColorDis, 5),
      accessor("ItemBackColorDis", &L::ItemBackColorDis, &L::ItemBackColorDis, &I::BackColorDis, 6),
      accessor("ItemTag", &L::ItemTag, &L::ItemTag, &I::Tag, 7.5, false),
      accessor("ItemKey", &L::ItemKey, &L::ItemKey, &I::Key, "a key of some length", false),
      accessor("ItemIcon", &L::ItemIcon, &L::ItemIcon, &I::Icon, makeRef<Drawing>()),
      accessor("ItemIconSelected", &L::ItemIconSelected, &L::ItemIconSelected, &I::IconSelected,
               makeRef<Drawing>()),
      accessor("ItemAlignment", &L::ItemAlignment, &L::ItemAlignment, &I::Alignment,
               static_cast<cItemAlignment>(77)),
      accessor("ItemAllowEdit", &L::ItemAllowEdit, &L::ItemAllowEdit, &I::AllowEdit, true),
      accessor("ItemText", &L::ItemText, &L::ItemText, &I::Text, "a text"),
      accessor("ItemEnabled", &L::ItemEnabled, &L::ItemEnabled, &I::Enabled, false),
      accessor("ItemBold", &L::ItemBold, &L::ItemBold, &I::Bold, Boolean::ofNumber(5)),
      accessor("ItemItalic", &L::ItemItalic, &L::ItemItalic, &I::Italic, true),
      accessor("ItemUnderline", &L::ItemUnderline, &L::ItemUnderline, &I::Underline, true)};
}

class ItemProperties : public ListTest, public __nvList {
 protected:
  ItemProperties() {
    headless.container().onPropertyChanged = [this](std::string_view name) {
      marked += (marked.empty() ? "" : " ") + std::string(name);
    };
    list.addSink(*this);
  }

  void ErrorWrongIndex(Variant& Index) override { refused += Index.toText() + " "; }

  /// The names of the properties marked since the last call, and a * for each repaint.
  std::string marksAndRepaints() {
    const int now = headless.surface().frames();
    std::string result = std::exchange(marked, {}) + std::string(now - frames, '*');
    frames = now;
    return result;
  }

  static std::string fields(const ListItem& item) {
    std::string result;
    for (const Accessor& each : allAccessors()) result += each.field(item) + "\n";
    return result;
  }

  std::string marked;
  std::string refused;
  int frames = headless.surface().frames();
};

TEST_F(ItemProperties, EachHasAFieldOfItsOwn) {
  add({"a", "b", "c"});
  const std::string before = fields(item(0));
  const std::vector<Accessor> accessors = allAccessors();
  for (const Accessor& each : accessors) {
    EXPECT_NE(each.field(item(1)), each.value) << each.name;
    marksAndRepaints();
    each.write(list, 1);
    EXPECT_EQ(marksAndRepaints(), each.name + (each.repaints ? "*" : ""));
    list.AutoRedraw(false);
    marksAndRepaints();
    each.write(list, 1);
    EXPECT_EQ(marksAndRepaints(), each.name);
    list.AutoRedraw(true);
  }
  for (const Accessor& each : accessors) {
    EXPECT_EQ(each.field(item(1)), each.value) << each.name;
    EXPECT_EQ(each.read(list, 1), each.value) << each.name;
  }
  list.ItemText(0, "b");
  list.ItemText(0, "a");
  EXPECT_EQ(fields(item(0)), before);
  EXPECT_EQ(reports() + refused, "");
}

TEST_F(ItemProperties, ABadIndexIsAFailure) {
  struct Case {
    Variant index;
    const char* number;
  };
  const Case cases[] = {{3, "9 "}, {-1, "9 "}, {true, "9 "}, {"key", "13 "}, {1e10, "6 "}};
  list.ItemsAdd({.aText = "a", .aKey = "key"});
  add({"b", "c"});
  const std::string before = fields(item(0)) + fields(item(1)) + fields(item(2));
  marksAndRepaints();
  for (const Accessor& each : allAccessors()) {
    for (const Case& bad : cases) {
      Error().SilentError(false);
      EXPECT_EQ(each.read(list, bad.index), each.zero);
      EXPECT_EQ(reports(), bad.number + each.name);
      each.write(list, bad.index);
      EXPECT_EQ(reports(), bad.number + each.name);
      EXPECT_EQ(marksAndRepaints(), "") << each.name;
      silent();
      EXPECT_EQ(each.read(list, bad.index), each.zero);
      each.write(list, bad.index);
      EXPECT_EQ(marksAndRepaints(), each.name + (each.repaints ? "*" : ""));
      EXPECT_EQ(reports(), "");
    }
  }
  EXPECT_EQ(fields(item(0)) + fields(item(1)) + fields(item(2)), before);
  EXPECT_EQ(refused, "");
}

TEST_F(ItemProperties, AnEmptyListHasOneSlotThatIsNoItem) {
  for (const Accessor& each : allAccessors()) {
    list.ItemsClear();
    const bool isConverted = each.name.ends_with("Dis") || each.name == "ItemKey";
    EXPECT_EQ(each.read(list, 0) == each.zero, !isConverted) << each.name;
    if (each.name != "ItemEnabled") each.write(list, 0);
    EXPECT_EQ(each.read(list, 0), each.value);
    EXPECT_EQ(reports(), "");
    each.read(list, 1);
    EXPECT_EQ(reports(), "9 " + each.name);
  }
  EXPECT_EQ(list.ItemsCount(), 0);
}

TEST_F(ItemProperties, AnIndexIsRoundedAndMayBeAText) {
  add({"zero", "one", "two", "three", "four"});
  EXPECT_EQ(list.ItemText(1.5), "two");
  EXPECT_EQ(list.ItemText(2.5), "two");
  EXPECT_EQ(list.ItemText(-0.5), "zero");
  EXPECT_EQ(list.ItemText(" 1 "), "one");
  EXPECT_EQ(list.ItemText("3.5"), "four");
  EXPECT_EQ(list.ItemText(Variant()), "zero");
  list.ItemText("2.6", "3");
  EXPECT_EQ(texts(), "zero one two 3 four");
  EXPECT_EQ(reports(), "");
}

TEST_F(ItemProperties, ColoursPassInTheTypesOfTheirProperties) {
  add({"a"});
  EXPECT_EQ(list.ItemForeColor(0), 0);
  EXPECT_EQ(list.ItemBackColor(0), 0);
  EXPECT_EQ(reports(), "13 ItemForeColor, 13 ItemBackColor");
  list.ItemForeColor(0, 255);
  EXPECT_EQ(item(0).ForeColor.type(), Variant::Type::Int32);

  EXPECT_EQ(list.ItemForeColorSelect(0).text(), "def");
  list.ItemBackColorSelect(0, 1.5);
  EXPECT_EQ(list.ItemBackColorSelect(0).type(), Variant::Type::Single);
  list.ItemBackColorSelect(0, "def");
  EXPECT_EQ(list.ItemBackColorSelect(0).text(), "def");

  EXPECT_EQ(list.ItemForeColorDis(0).toInt32(), colours::greyText);
  list.ItemBackColorDis(0, "2.5");
  EXPECT_EQ(list.ItemBackColorDis(0).type(), Variant::Type::Int32);
  EXPECT_EQ(item(0).BackColorDis, 2);
  list.ItemKey(0, 12);
  EXPECT_EQ(list.ItemKey(0).text(), "12");
  marksAndRepaints();

  const auto setBadly = [&] {
    list.ItemForeColorDis(0, "def");
    list.ItemBackColorDis(0, 1e10);
    list.ItemKey(0, makeRef<Object>());
    EXPECT_EQ(item(0).ForeColorDis, colours::greyText);
    EXPECT_EQ(item(0).BackColorDis, 2);
    EXPECT_EQ(item(0).Key, "12");
    return marksAndRepaints();
  };
  EXPECT_EQ(setBadly(), "");
  EXPECT_EQ(reports(), "13 ItemForeColorDis, 6 ItemBackColorDis, 13 ItemKey");
  silent();
  EXPECT_EQ(setBadly(), "ItemForeColorDis ItemBackColorDis ItemKey**");
}

TEST_F(ItemProperties, TextIsThatOfTheCurrentItem) {
  list.ItemText(0, "blank");
  EXPECT_EQ(list.Text(), "");
  add({"a", "b", "c"});
  EXPECT_EQ(list.Text(), "");
  list.ListIndex(2);
  EXPECT_EQ(list.Text(), "c");
  list.ItemsRemove(0);
  EXPECT_EQ(reports(), "");
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(reports(), "9 Text");
}

TEST_F(ItemProperties, SettingTextSelectsTheFirstItemThatHasIt) {
  list.Text("a");
  add({"A", "a", "b", "a"});
  list.ItemsAdd({.aText = "off", .aEnabled = false});
  marksAndRepaints();
  list.Text("a");
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(marksAndRepaints(), "ListIndex*");
  for (const char* none : {"", "a*", "aa"}) list.Text(none);
  EXPECT_EQ(marksAndRepaints() + refused, "");
  EXPECT_EQ(list.state().LoopIndex, 5);
  list.Text("off");
  EXPECT_EQ(refused, "4 ");
  EXPECT_EQ(list.Text(), "a");
  EXPECT_EQ(texts(), "A a b a off");
}

TEST_F(ItemProperties, AFailureInSettingTextIsTheCallers) {
  struct Program : HeadlessApplication {
    void MsgBox(const std::string&, std::int32_t, const std::string&) override {
      if (!std::exchange(hasFailed, true)) throw Failure(1000, "no box");
    }
    bool hasFailed = false;
  } program;
  add({"a", "b"});
  headless.container().onPropertyChanged = [](std::string_view) { throw Failure(1, "own"); };
  EXPECT_THROW(list.Text("b"), Failure);
}

}  // namespace
}  // namespace norvane
