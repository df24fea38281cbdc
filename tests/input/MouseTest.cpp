#include "../ListScript.h"

namespace norvane {
namespace {

using Mouse = ListScript;

TEST_F(Mouse, TheEditBoxLooksLikeItsRow) {
  EXPECT_EQ(run("AllowEdit 1; editable 2 3; ForeColor 1193046; setText 2 'Füße'; click 2; click 2;"
                "editing"),
            "Füße (1, 29) 197x14");
  EXPECT_EQ(box().font, list.Font());
  EXPECT_EQ(box().foreColor, 1193046);
  EXPECT_TRUE(box().hasFocus);
  EXPECT_EQ(box().selectionLength, 4);
  box().refusesFocus = true;
  EXPECT_EQ(run("edit '3'; reports"), "5 SetEdit");
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
    run("click 1");
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
