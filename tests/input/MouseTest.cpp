#include "../HearingList.h"

namespace norvane {
namespace {

class Mouse : public HearingListTest {
 protected:
  Mouse() {
    fill(5);
    // The frame would receive the mouse events at the edges.
    list.BorderVisible(false);
  }
};

TEST_F(Mouse, GesturesAndTheOrderOfTheirEvents) {
  HeadlessContainer& form = headless.container();
  const struct {
    std::function<void()> prepare, gesture;
    const char* outcome;
  } cases[] = {
      {[] {}, [&] { click(2); }, "MouseDown* MouseUp Click | 2: 2"},
      {[] {}, [&] { click(2, 0, inZone); },
       "MouseDown ItemCheck(2)* MouseUp Click | 2: 2, checked 2"},
      {[] {}, [&] { press(2), form.release(300, 40); }, "MouseDown* MouseUp | 2: 2"},
      {[] {}, [&] { form.press(50, 40, 2), form.release(50, 40, 2); }, "MouseDown MouseUp | -1: "},
      {[] {}, [&] { doubleClick(2); }, "MouseDown* MouseUp Click DblClick MouseUp | 2: 2"},
      {[&] { list.Style(cCheckBoxes); }, [&] { doubleClick(2); },
       "MouseDown* MouseUp Click ItemCheck(2)* DblClick MouseUp | 2: 2, checked 2"},
      {[&] { list.ListIndex(1); }, [&] { doubleClick(8); },
       "MouseDown MouseUp Click MouseUp | 1: 1"},
      {[] {}, [&] { doubleClick(8); }, "MouseDown MouseUp Click DblClick MouseUp | -1: "},
      {[&] { list.ListIndex(1), disable({3}); }, [&] { click(3, 0, inZone); },
       "MouseDown(-1)* MouseUp Click | 1: 1"},
      {[&] { list.ListIndex(1), cancel = true; }, [&] { click(2, 0, inZone); },
       "MouseDown ItemCheck(2)* MouseUp Click | 2: 2"},
      {[&] { list.Style(cCheckBoxes), cancel = Boolean::ofNumber(1); }, [&] { doubleClick(2); },
       "MouseDown* MouseUp Click ItemCheck(2) DblClick MouseUp | 2: 2"},
      {[&] { newButton = 1; }, [&] { form.press(50, 40, 2), form.release(50, 40, 2); },
       "MouseDown* MouseUp | 2: 2"},
      {[&] { list.ItemsClear(); }, [&] { click(0); }, "MouseDown MouseUp Click | 0: "}};
  for (const auto& c : cases) {
    fill(5);
    list.Style(cDefault);
    cancel = false;
    newButton.reset();
    c.prepare();
    heard();
    c.gesture();
    EXPECT_EQ(outcome(), c.outcome) << &c - cases;
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(Mouse, APressFindsTheRowsFromAPlaceOfItsOwn) {
  list.IndentTop(20);
  const auto pressed = [&](float y) {
    list.ItemSelected(4, true);  // no current item
    headless.container().press(besideZone, y);
    return list.ListIndex();
  };
  EXPECT_EQ(pressed(3.5), -1);
  EXPECT_EQ(pressed(4), 0);
  EXPECT_EQ(pressed(16.5), 0);
  EXPECT_EQ(pressed(65), 4);
  EXPECT_EQ(pressed(65.5), -1);
  list.MinHeight(17.5);  // rows are 18 pixels high for hit tests
  EXPECT_EQ(pressed(39), 1);
}

TEST_F(Mouse, TheCheckZoneGoesWithTheContent) {
  const auto zone = [&] {
    std::string result;
    bool wasIn = false;
    for (float x = 0; x < 40; x += 0.5F) {
      heard();
      click(2, 0, x);
      const bool isIn = heard().find("ItemCheck") != std::string::npos;
      if (std::exchange(wasIn, isIn) != isIn) result += textOf(x) + (isIn ? "-" : "");
    }
    return result;
  };
  list.IndentLeft(5.5);
  EXPECT_EQ(zone(), "6.5-19");
  list.ScrollBars(vbBoth);
  list.ItemsAdd(std::string(40, 'w'));
  HeadlessContainer& bar = *headless.container().children()[1];
  for (int i = 0; i < 10; ++i) {
    bar.press(bar.bounds().Width - 5, 8);
    bar.release(bar.bounds().Width - 5, 8);
  }
  EXPECT_EQ(list.horizontalBar().Value(), 10);
  EXPECT_EQ(zone(), "0-9");
}

TEST_F(Mouse, APressCountsFromTheBarAndNotFromTheTop) {
  fill(40);
  list.TopIndex(20);
  click(2);
  EXPECT_EQ(now(), "22: 22, top 20");
}

TEST_F(Mouse, ShiftAndCtrl) {
  constexpr int plain = 0, shift = 1, ctrl = 2;
  list.MultiSelect(true);
  disable({3});
  const struct {
    int row, keys;
    const char* now;
  } presses[] = {{2, shift, "2: 0 1 2"}, {2, plain, "2: 2"}, {4, shift, "4: 2 4"},
                 {0, shift, "0: 0 1 2"}, {2, shift, "2: "},  {4, ctrl, "4: 4"},
                 {1, ctrl, "1: 1 4"},    {4, ctrl, "4: 1"},  {0, shift | ctrl, "0: 0"},
                 {3, ctrl, "0: 0"}};
  for (const auto& p : presses) {
    click(p.row, static_cast<std::int16_t>(p.keys));
    EXPECT_EQ(now(), p.now) << &p - presses;
    EXPECT_FALSE(list.state().MouseDownActive);
  }
  list.MultiSelect(false);
  click(2, ctrl);
  EXPECT_EQ(now(), "2: 2");
}

TEST_F(Mouse, ARangeFarOutsideTheListIsWalkedAsFarAsTheListGoes) {
  fill(20);
  list.MultiSelect(true);
  silent();
  list.MoveItemDown(0, -2e9);
  key(down);
  ASSERT_LT(list.state().SelectAnchor, -1'999'999'000);
  press(3, 1);
  EXPECT_EQ(selected(), "0 1 2 3");
}

TEST_F(Mouse, HandlersSeeWhatHasHappenedSoFar) {
  std::string seen;
  onEvent = [&](const std::string& event) { seen += event + ": " + now() + "; "; };
  headless.container().press(inZone, 40, 1, 2);
  EXPECT_EQ(arguments, "1 2 8 40");
  headless.container().moveTo(60, 50, 3, 4);
  EXPECT_EQ(arguments, "3 4 60 50");
  headless.container().release(inZone, 41);
  EXPECT_EQ(arguments, "1 0 8 41");
  EXPECT_EQ(seen,
            "MouseDown: -1: ; ItemCheck(2): 2: 2; MouseMove(3 3): 2: 2, checked 2; "
            "MouseUp: 2: 2, checked 2; Click: 2: 2, checked 2; ");
}

TEST_F(Mouse, HostsMayComeAndGoInAnEvent) {
  struct Host : __nvList {
    void Click() override { ++clicks; }
    int clicks = 0;
  } second, third;
  list.addSink(second), list.addSink(second);
  onEvent = [&](const std::string& event) {
    if (event == "Click") list.removeSink(*this), list.removeSink(second), list.addSink(third);
  };
  heard();
  for (const int clicksOfThird : {0, 1}) {
    click(1);
    EXPECT_EQ(second.clicks, 0);
    EXPECT_EQ(third.clicks, clicksOfThird);
  }
  EXPECT_EQ(heard(), "MouseDown* MouseUp Click*");
}

TEST_F(Mouse, AFailingStepEndsThePressOrIsSteppedOver) {
  const auto pressWith = [&](const std::string& failing) {
    fill(5);
    onEvent = [failing](const std::string& event) {
      if (event == failing) throw Failure(1000, "own");
    };
    press(2, 0, inZone);
    onEvent = [](const std::string&) {};
    const std::string result = outcome();
    release(2);
    return result;
  };
  EXPECT_EQ(pressWith("MouseDown"), "MouseDown | -1: ");
  EXPECT_EQ(pressWith("ItemCheck(2)"), "MouseDown ItemCheck(2) | 2: 2");
  EXPECT_EQ(reports(), "1000 UserControl_MouseDown, 1000 UserControl_MouseDown");
  silent();
  EXPECT_EQ(pressWith("ItemCheck(2)"), "MouseDown ItemCheck(2)* | 2: 2, checked 2");
}

}  // namespace
}  // namespace norvane
