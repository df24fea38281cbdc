#include "../HearingList.h"

namespace norvane {
namespace {

class Mouse : public HearingListTest {
 protected:
  Mouse() { fill(5); }
};

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
  // The frame would receive the mouse events at the edges.
  list.BorderVisible(false);
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

TEST_F(Mouse, TheEditBoxLooksLikeItsRow) {
  list.AllowEdit(true);
  for (const int index : {2, 3}) list.ItemAllowEdit(index, true);
  list.ForeColor(0x123456);
  list.ItemText(2, "Füße");
  click(2), click(2);
  EXPECT_EQ(editing(box()), "Füße (1, 29) 197x14");
  EXPECT_EQ(box().font, list.Font());
  EXPECT_EQ(box().foreColor, 0x123456);
  EXPECT_TRUE(box().hasFocus);
  EXPECT_EQ(box().selectionLength, 4);
  box().refusesFocus = true;
  list.SetEdit("3");
  EXPECT_EQ(reports(), "5 SetEdit");
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

}  // namespace
}  // namespace norvane
