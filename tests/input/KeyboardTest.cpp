#include "../HearingList.h"

namespace norvane {
namespace {

using Keyboard = HearingListTest;

TEST_F(Keyboard, ArrowsGoToTheNearestEnabledRow) {
  const struct {
    std::initializer_list<int> disabled;
    int index;
    std::int16_t key;
    const char* outcome;
  } cases[] = {{{0, 1}, -1, down, "KeyDown(40 0) ListIndex* | 2: 2"},
               {{}, -1, up, "KeyDown(38 0) | -1: "},
               {{}, 0, up, "KeyDown(38 0) | 0: 0"},
               {{}, 4, down, "KeyDown(40 0) | 4: 4"},
               {{1, 2}, 3, up, "KeyDown(38 0) ListIndex* | 0: 0"},
               {{0, 1, 2}, 3, up, "KeyDown(38 0) | 3: 3"},
               {{2, 3, 4}, 1, down, "KeyDown(40 0) | 1: 1"}};
  for (const auto& c : cases) {
    fill(5);
    if (c.index >= 0) list.ListIndex(c.index);
    disable(c.disabled);
    key(c.key);
    EXPECT_EQ(outcome(), c.outcome) << &c - cases;
  }
  fill(5);
  list.MultiSelect(true);
  click(1), click(3, 1);
  key(down, 1);
  EXPECT_EQ(now(), "4: 4");
  EXPECT_EQ(list.state().SelectAnchor, 4);
}

TEST_F(Keyboard, TheRowComesIntoTheWindow) {
  fill(100);
  const struct {
    int index, top;
    std::int16_t key;
    const char* now;
  } cases[] = {{10, 10, up, "9: 9, top 9"},
               {6, 30, up, "5: 5, top 5"},
               {9, 0, down, "10: 10, top 1"},
               {19, 10, down, "20: 20, top 11"},
               {30, 0, down, "31: 31, top 22"},
               {5, 30, down, "6: 6, top 6"},
               {8, 0, down, "9: 9"}};
  for (const auto& c : cases) {
    list.ListIndex(c.index);
    list.TopIndex(c.top);
    key(c.key);
    EXPECT_EQ(now(), c.now) << &c - cases;
  }
}

TEST_F(Keyboard, EveryOtherKeyIsOnlyPassedOn) {
  fill(5);
  list.ListIndex(2);
  heard();
  for (const auto code : std::initializer_list<std::int16_t>{34, 16, 17}) {
    key(code, 3);
    EXPECT_EQ(outcome(), "KeyDown(" + std::to_string(code) + " 3) | 2: 2");
    EXPECT_EQ(list.state().ShiftDown, code == 16);
    EXPECT_EQ(list.state().CtrlDown, code == 17);
  }
  list.UserControl_KeyUp(65, 1);
  EXPECT_FALSE(list.state().CtrlDown);
  std::int16_t character = 97;
  list.UserControl_KeyPress(character);
  EXPECT_EQ(heard(), "KeyUp(65 1) KeyPress(97)");
}

TEST_F(Keyboard, AHandlerMayTurnTheKeyIntoAnother) {
  fill(5);
  list.ListIndex(2);
  newKeyCode = 38;
  EXPECT_EQ(key(65), 38);
  EXPECT_EQ(now(), "1: 1");
  newKeyCode.reset();
  onEvent = [](const std::string&) { throw Failure(1000, "own"); };
  key(down);
  EXPECT_EQ(reports(), "1000 UserControl_KeyDown");
  silent();
  key(down);
  EXPECT_EQ(now(), "2: 2");
}

TEST_F(Keyboard, WhileATextIsEditedOrNoneIsThereArrowsOnlyTell) {
  key(down);
  EXPECT_EQ(outcome(), "KeyDown(40 0) | 0: ");
  fill(5);
  list.AllowEdit(true);
  list.ItemAllowEdit(1, true);
  list.ListIndex(1);
  list.SetEdit(1);
  heard();
  key(down), key(up);
  EXPECT_EQ(outcome(), "KeyDown(40 0) KeyDown(38 0) | 1: 1");
}

TEST_F(Keyboard, TheFocusAndTheNamePaintWhateverAutoRedrawSays) {
  fill(1);
  list.AutoRedraw(false);
  heard();
  list.UserControl_EnterFocus();
  EXPECT_TRUE(list.state().HasFocus.isTrue());
  list.UserControl_LostFocus();
  EXPECT_FALSE(list.state().HasFocus);
  list.UserControl_AmbientChanged("Font");
  EXPECT_EQ(heard(), "**");
  list.UserControl_AmbientChanged("DisplayName");
  EXPECT_EQ(heard(), "*");
}

}  // namespace
}  // namespace norvane
