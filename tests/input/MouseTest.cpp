#include "../HearingList.h"

namespace norvane {
namespace {

class Mouse : public HearingListTest {
 protected:
  Mouse() { fill(5); }
};

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

TEST(WheelMessage, IsUnpackedIntoNotchesKeysAndPoint) {
  struct Ear : WheelEvents {
    void Wheel1_WheelScroll(std::int16_t& Rotation, std::int16_t& Keys, float& X,
                            float& Y) override {
      heard = textOf(Rotation) + " " + textOf(Keys) + " " + textOf(X) + " " + textOf(Y);
    }
    std::string heard;
  } ear;
  HeadlessContainer place;
  std::optional<Wheel> wheel(std::in_place, place, ear);
  wheel->WndProc(120 * 0x10000 + 9, -2 * 0x10000 + 40000);
  EXPECT_EQ(ear.heard, "1 9 -25536 -2");
  for (const auto& [delta, notches] : {std::pair(60, "0 "),
                                       {61, "1 "},
                                       {180, "2 "},
                                       {-60, "0 "},
                                       {-180, "-2 "},
                                       {-32768, "-273 "}}) {
    wheel->WndProc(delta * 0x10000, 0);
    EXPECT_TRUE(ear.heard.starts_with(notches)) << delta;
  }
  wheel->EnableWheel();
  EXPECT_FALSE(place.turnWheel(120));
  wheel->hWndCapture(1);
  wheel->EnableWheel();
  EXPECT_TRUE(place.turnWheel(120));
  wheel->DisableWheel();
  EXPECT_FALSE(place.turnWheel(120));
  wheel->EnableWheel();
  wheel->hWndCapture(0);
  wheel.reset();
  EXPECT_FALSE(place.turnWheel(120));
}

}  // namespace
}  // namespace norvane
