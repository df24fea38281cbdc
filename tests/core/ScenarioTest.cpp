#include "../ListScript.h"

namespace norvane {
namespace {

// clang-format off
const Scenario scenarios[] = {
  // Items.
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
   "clear; addKey 'abc' '10'; addKey 'Abd' 'k'; add 'z'; findKey 'k'; findKey 'K'; loop;"
   "findKey ''; findKey 10; findKey 11; reports", "1 / -1 / 3 / 2 / 0 / -1 / 13 IndexByKey"},
  {"a search knows of every change",
   "clear; addKey 'a' 'a'; addKey 'b' 'b'; add 'c'; find 'b'; find 'b'; setText 0 'b'; find 'b';"
   "find 'b'; findKey 'b'; findKey 'b'; up 1 1; findKey 'b'; find 'c'; find 'c'; down 2 -2;"
   "find 'c'; find 'c'; clear; find 'c'", "1 / 1 / 0 / 0 / 1 / 1 / 0 / 2 / 2 / 0 / 0 / -1"},
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
  // The current item and the selection.
  {"nothing is current in an empty list",
   "clear; forget; setIndex 0; setIndex 5; setIndex -1; events", ""},
  {"what cannot be current is refused",
   "fill 3; disable 1; setIndex 2; forget; setIndex 3; setIndex -1; setIndex 1;"
   "setIndex 2147483647; outcome", "(3)(-1)(1)(2147483647) | 2: 2"},
  {"a handler of a refusal makes another item current",
   "setIndex 2; onWrongIndex setIndex 4; setIndex 9; now", "4: 4"},
  {"a handler of a refusal fails",
   "setIndex 2; onWrongIndex throw; setIndex 9; now; reports", "2: 2 / 1000 ListIndex"},
  {"a handler of a refusal clears the list",
   "setIndex 2; onWrongIndex clear; setIndex 9; now", "0: "},
  {"the current item is selected alone",
   "MultiSelect 1; select 0 1 3; forget; setIndex 1; outcome; select 0 1 3; forget; setIndex 1;"
   "outcome; AutoRedraw 0; setIndex 1; events; on ListIndex throw; setIndex 2; reports; now",
   "ListIndex* | 1: 1 / ListIndex* | 1: 1 / AutoRedraw ListIndex / 1000 ListIndex / 2: 2"},
  {"the current item scrolls into the window",
   "fill 100; setTop 0; forget; setIndex 50; events; top; setTop 0; setIndex 95; top;"
   "setTop 0; setIndex 10; top; setTop 0; setIndex 89; top; setTop 50; setIndex 49; top;"
   "setTop 50; forget; setIndex 59; events; top",
   "ListIndex TopIndex** / 50 / 86 / 10 / 80 / 49 / ListIndex* / 50"},
  {"Text is that of the current item and chooses by text",
   "clear; add 'A' 'a' 'b' 'a' 'off'; disable 4; forget; choose 'a'; outcome; choose '';"
   "choose 'a*'; choose 'off'; events; chosen; choose 'b'; remove 0 0 0; chosen; reports",
   "ListIndex* | 1: a / (4) / a / 9 Text"},
  {"selecting an item stores the truth value as the current index",
   "setIndex 1; forget; select 4; outcome; deselect 1; index", "ItemSelected* | -1: 1 4 / 0"},
  {"a selected item scrolls into the window",
   "fill 100; select 9; top; select 95; top; setTop 50; select '49'; top; setTop 50; deselect 70;"
   "top; AutoCheckScroll 0; fill 20; select 3; top", "0 / 90 / 49 / 50 / 3"},
  {"a bad index is a failure",
   "select 'x'; isSelected 'x'; select 5; isSelected 5; events; reports",
   "no / no / 13 ItemSelected, 13 ItemSelected, 9 ItemSelected, 9 ItemSelected"},
  {"a mark is found again after a removal", "AutoRedraw 0; select 4; remove 0; setIndex 0; now",
   "0: 1"},
  {"a mark is found again after an insertion",
   "AutoRedraw 0; select 4; remove 4; select 1; insert 'x' 1; setIndex 0; now", "0: 0"},
  {"marks are found again after one is cleared",
   "AutoRedraw 0; select 1 3; deselect 3; setIndex 0; now", "0: 0"},
  {"the mark of the slot of an empty list is found again",
   "AutoRedraw 0; clear; select 0; add 'a'; select 0; setIndex 0; now", "0: a"},
  // The yields of a removal come first, then one for each item and two at the end: 15 + 14 + 42.
  {"removing the selected goes to the top",
   "fill 40; setTop 20; select 24 25; posts 72; forget; removeSelected; waiting; events; top",
   "1 / ** TopIndex** / 0"},
  {"a handler adds at the end while the selected are removed",
   "fill 4; AutoRedraw 0; select 2 3; post add 'end'; removeSelected; texts", "<0 1 end>"},
  {"a handler adds at the start while the selected are removed",
   "fill 4; AutoRedraw 0; select 2 3; post insert 'x' 0; removeSelected; texts", "<x 0 1 2 3>"},
  {"a handler clears while the selected are removed",
   "fill 4; AutoRedraw 0; select 2 3; post clear; removeSelected; texts", "<>"},
  {"a handler removes while the selected are removed",
   "fill 4; AutoRedraw 0; select 2 3; post remove 0; removeSelected; texts; reports",
   "<1> / 9 ItemsSelectedRemove"},
  // Order.
  {"moves take the items on the way along",
   "begin; up 2 1; outcome; texts; begin; up '2' '5'; outcome; texts; begin; up 0 3; outcome;"
   "texts; begin; down @ 2; outcome; texts; begin; down 2 9; outcome; texts; begin; down 4 1;"
   "outcome; texts",
   "* | 1: 2 / <0 2 1 3 4> / * | 0: 2 / <2 0 1 3 4> /  | 2: 2 / <0 1 2 3 4> / * | 4: 2 / "
   "<1 2 0 3 4> / * | 4: 2 / <0 1 3 4 2> /  | 2: 2 / <0 1 2 3 4>"},
  {"a move from a bad index does nothing",
   "begin; up 'x' 1; outcome; texts; reports", " | 2: 2 / <0 1 2 3 4>"},
  {"a negative count loses the item at the target",
   "begin; up 1 -3; outcome; texts; begin; down 2 -2; outcome; texts",
   "* | 5: 2 / <0 1 2 3 1> / * | 0: 2 2 / <2 1 2 3 4>"},
  {"two texts are concatenated to a target",
   "begin; down '1' '2'; outcome; texts; begin; down '0' '3'; outcome; texts",
   "* | 5: 2 / <0 2 3 4 1> / * | 5: 2 / <1 2 3 0 4>"},
  {"each position of a move is rounded separately",
   "begin; up 3.5 2; outcome; texts; begin; up 3 2.5; outcome; texts",
   "* | 0: 2 / <0 1 4 3 2> / * | 0: 2 / <3 1 1 2 4>"},
  {"a failing move leaves the list unchanged",
   "begin; up 2 'x'; up 2 -3; down 2 -1e10; outcome; texts; reports",
   " | 2: 2 / <0 1 2 3 4> / 13 MoveItemUp, 9 MoveItemUp, 6 MoveItemDown"},
  {"a move leaves the shared position at its end and finds the marks again",
   "AutoRedraw 0; setIndex 2; up 2 2; loop; now; down 0 3; loop; now", "0 / 0: 2 / 4 / 3: 2"},
  {"two slots may hold the same item",
   "AutoRedraw 0; down 1 -1; setText 1 'z'; setIndex 0; texts; now; down 1 1; setIndex 4; now",
   "<z z 2 3 4> / 0: z z / 4: 4"},
  {"a sort moves items and marks but no numbers",
   "fill 0; AutoRedraw 0; addKey 'same' 0; addKey 'same' 1; addKey 'first' 2; addKey 'same' 3;"
   "addKey 'same' 4; addKey 'same' 5; setIndex 2; setTop 2; sort 1; keys; outcome; new; setIndex 3;"
   "now", "<245310> / AutoRedraw ListIndex TopIndex* | 2: first / 5 / 3: same"},
};
// clang-format on

using CoreScenarios = ListScript;
TEST_P(CoreScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Core, CoreScenarios, testing::ValuesIn(scenarios), nameOf);

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

TEST_F(Items, AnAssignmentWithoutScrollArmsTheNext) {
  // A list that was never started is not armed.
  HeadlessContainer place(200, 133);
  nvList own(place);
  for (int i = 0; i < 100; ++i) own.ItemsAdd(i);
  own.ListIndex(-1);
  own.ListIndex(50);
  EXPECT_EQ(own.TopIndex(), 0);
  own.ListIndex(50);
  EXPECT_EQ(own.TopIndex(), 50);
}

}  // namespace
}  // namespace norvane
