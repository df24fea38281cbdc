#include "../ListScript.h"

namespace norvane {
namespace {

// clang-format off
const Scenario scenarios[] = {
  {"an index says where an item goes",
   "clear; insert 'a' 99; new; fill 3; insert 'x' -1; texts; new; fill 3; insert 'x' 99; texts;"
   "fill 3; insert 'x' -7; texts; fill 3; insert 'x' 0; texts; fill 3; insert 'x' @; texts;"
   "fill 3; insert 'x' '1'; texts; new; fill 3; insert 'x' 1.4; texts; new;"
   "fill 3; insert 'x' '0.5'; texts; fill 3; insert 'x' 2.5; texts; new",
   "0 / <0 1 2 x> / 3 / <0 1 2 x> / <0 1 2 x> / <x 0 1 2> / <x 0 1 2> / <0 x 1 2> / 1 / "
   "<0 x 2 2> / 1 / <x 1 1 2> / <0 1 x x> / 2"},
  {"only AutoRedraw drops the current item",
   "AutoRedraw 0; clear; add 'a'; index; AutoRedraw 1; add 'b'; index", "0 / -1"},
  {"adding many stops painting when the rows are full",
   "resize 200 100; clear; forget; many 50; events", "********************"},
  {"counts yield once an item and see the list change",
   "AutoRedraw 0; clear; add 'a' 'b'; addChecked 'c'; post addChecked 'd'; checkedCount;"
   "post checkedCount; forget; checkedCount; events; post clear; checkedCount",
   "2 / 2 / [2] / 0"},
  {"duplicates are found in the texts joined by commas",
   "clear; add 'a' 'A' 'b' 'a'; removeDouble 1; texts; clear; add 'a' 'A' 'b' 'a'; removeDouble 0;"
   "texts; clear; add '\u00e4' '\u00c4'; removeDouble 1; texts", "<a b> / <a A b> / <\u00e4>"},
  {"items are found by key",
   "clear; addKey 'abc' '10'; addKey 'Abd' 'k'; add 'z'; findKey 'k'; findKey 'K'; loop; findKey '';"
   "findKey 10; findKey 11; reports", "1 / -1 / 3 / 2 / 0 / -1 / 13 IndexByKey"},
  {"a search knows of every change",
   "clear; addKey 'a' 'a'; addKey 'b' 'b'; add 'c'; find 'b'; find 'b'; setText 0 'b'; find 'b';"
   "find 'b'; findKey 'b'; findKey 'b'; up 1 1; findKey 'b'; find 'c'; find 'c'; down 2 -2; find 'c';"
   "find 'c'; clear; find 'c'", "1 / 1 / 0 / 0 / 1 / 1 / 0 / 2 / 2 / 0 / 0 / -1"},
  {"an index that is no number leaves the item at the end",
   "clear; add 'a' 'b'; insert 'x' 'front'; reports; texts; width; silent; insert 'y' 'front';"
   "texts; width", "13 ItemsAdd / <a b > / 15 / <a b  y> / 19"},
  {"removing leaves the numbers as they were",
   "clear; add 'a' 'b' 'c' 'd'; remove '1' 2; texts; remove -1 2 'x' 1.1; texts; new; index;"
   "remove 0 0; index", "<a c> / <a c> / 3 / -1 / 0"},
  {"removing yields once a moved item", "AutoRedraw 0; posts 5; remove 0; texts; waiting; loop",
   "<1 2 3 4> / 1 / 3"},
  {"a handler clears while an item is removed",
   "AutoRedraw 0; posts 2; post clear; remove 0; drain; texts", "<>"},
  {"a handler removes while an item is removed",
   "AutoRedraw 0; posts 2; post remove 4; remove 0; drain; texts", "<1 2 3>"},
  {"a handler adds while an item is removed",
   "AutoRedraw 0; posts 2; post add 'x'; remove 0; drain; texts", "<1 2 3 4 x>"},
  {"a handler fails while an item is removed",
   "AutoRedraw 0; posts 2; post throw; remove 0; reports; silent; post throw; remove 0; count",
   "1000 ItemsRemove / 4"},
  {"a repaint in a yield moves the shared position", "post redraw; remove 0; texts", "<1 1 2 3>"},
  {"sorts by the bytes of the texts",
   "clear; AutoRedraw 0; add 'b' 'a' 'C' '10' '9' '\u00e4'; forget; sort 1; texts; sort 2; texts;"
   "events", "<10 9 C a b \u00e4> / <\u00e4 b a C 9 10> / **"},
};
// clang-format on

using ItemScenarios = ListScript;
TEST_P(ItemScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Core, ItemScenarios, testing::ValuesIn(scenarios), nameOf);

using Items = ListTest;

TEST_F(Items, AHostMayComeBackAsItsObjectsGo) {
  struct Leaving : Object {
    explicit Leaving(std::function<void()> last) : atEnd(std::move(last)) {}
    ~Leaving() override { atEnd(); }
    std::function<void()> atEnd;
  };
  const auto tag = [](std::function<void()> atEnd) {
    return Variant(Ref<Object>(makeRef<Leaving>(std::move(atEnd))));
  };
  list.ItemTag(
      0, tag([&] { list.ItemsAdd({.aText = "inner", .aTag = tag([&] { list.ItemsClear(); })}); }));
  list.ItemsAdd({.aText = "outer", .aKey = "a key of some length"});
  EXPECT_EQ(list.ItemsCount(), 0);

  add({"a", "b"});
  list.ItemTag(0, tag([&] { list.ItemsClear(); }));
  list.ItemTag(0, 1);
  EXPECT_EQ(list.ItemsCount(), 0);
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, AColourThatIsNoNumberLeavesTheFieldsBeforeIt) {
  list.ItemsClear();
  list.ItemsAdd({.aText = "a", .aAllowEdit = true, .aForeColorDis = 3, .aBackColorDis = "def"});
  list.ItemsAdd({.aText = "b", .aForeColor = 1, .aForeColorDis = "def", .aBackColorDis = 4});
  EXPECT_EQ(reports(), "13 ItemsAdd, 13 ItemsAdd");
  EXPECT_EQ(list.ItemForeColorDis(0).toInt32(), 3);
  EXPECT_FALSE(list.ItemAllowEdit(0));
  EXPECT_EQ(list.ItemForeColor(1), 1);
  EXPECT_EQ(list.ItemBackColorDis(1).toInt32(), 0);
}

TEST_F(Items, ADuplicatePastTheSixteenBitLimitIsAFailure) {
  list.AutoRedraw(false);
  for (int i = 0; i <= 32767; ++i) list.ItemsAdd(std::to_string(100000 + i));
  list.ItemsAdd("100000");
  list.ItemsAdd("100001", 5);
  list.AutoRedraw(true);
  list.ItemsRemoveDouble();
  EXPECT_EQ(reports(), "6 ItemsRemoveDouble");
  EXPECT_EQ(list.ItemsCount(), 32770);
  EXPECT_FALSE(list.AutoRedraw());
  EXPECT_FALSE(list.AutoCheckScroll());

  silent();
  list.ItemsRemoveDouble();
  EXPECT_EQ(list.ItemsCount(), 32769);
}

TEST_F(Items, AMillionItemsStayInOrder) {
  list.AutoRedraw(false);
  list.AutoCheckScroll(false);
  for (int i = 0; i < 1000000; ++i) list.ItemsAdd(i, i % 2 == 0 ? Variant(0) : Variant(-1));
  for (int i = 0; i < 1000; ++i) list.ItemsRemove(0);
  EXPECT_EQ(list.ItemsCount(), 999000);
  EXPECT_EQ(item(0).Text, "997998");
  EXPECT_EQ(item(998999).Text, "999999");
}

}  // namespace
}  // namespace norvane
