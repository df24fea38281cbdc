#include "../ListScript.h"

namespace norvane {
namespace {

// clang-format off
const Scenario scenarios[] = {
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
   "clear; add 'A' 'a' 'b' 'a' 'off'; disable 4; forget; choose 'a'; outcome; choose ''; choose 'a*';"
   "choose 'off'; events; chosen; choose 'b'; remove 0 0 0; chosen; reports",
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
};
// clang-format on

using Selection = ListScript;
TEST_P(Selection, GivesItsOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Core, Selection, testing::ValuesIn(scenarios), nameOf);

TEST(SelectionTest, AnAssignmentWithoutScrollArmsTheNext) {
  // A list that was never started is not armed.
  HeadlessApplication application;
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
