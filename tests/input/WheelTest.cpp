#include "../HearingList.h"

namespace norvane {
namespace {

class WheelScrolls : public HearingListTest {
 protected:
  void turn(std::int16_t delta) { EXPECT_TRUE(headless.container().turnWheel(delta)); }
};

TEST_F(WheelScrolls, AMessageIsUnpacked) {
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
  const std::pair<int, const char*> turns[] = {{60, "0 "},  {61, "1 "},    {180, "2 "},
                                               {-60, "0 "}, {-180, "-2 "}, {-32768, "-273 "}};
  for (const auto& [delta, notches] : turns) {
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

TEST_F(WheelScrolls, TheBarByLinesAndAtTheEndsBySnapping) {
  fill(40);
  // A scroll is reported twice: by the bar and by the wheel.
  const std::string moved = "* Scroll Scroll*";
  const struct {
    int top, lines, delta, newTop;
  } cases[] = {{0, 1, -360, 1}, {24, 5, -120, 29}, {25, 5, -120, 30},  {30, 1, -120, 30},
               {3, 1, -30, 30}, {3, 1, 60, 30},    {10, 3, 240, 7},    {3, 3, 120, 0},
               {4, 3, 120, 1},  {0, 1, 120, 0},    {10, 40, -120, 30}, {10, -2, -120, 8}};
  for (const auto& c : cases) {
    SCOPED_TRACE(textOf(c.delta) + " from " + textOf(c.top) + " by " + textOf(c.lines));
    list.WheelScrollLines(c.lines);
    list.TopIndex(c.top);
    heard();
    turn(static_cast<std::int16_t>(c.delta));
    EXPECT_EQ(list.verticalBar().Value(), c.newTop);
    EXPECT_EQ(heard(), c.top == c.newTop ? "*" : moved);
  }
}

TEST_F(WheelScrolls, TheCurrentRow) {
  list.WheelFunction(cWheelListIndex);
  const struct {
    int index, delta;
    std::initializer_list<int> disabled;
    const char* outcome;
  } cases[] = {{-1, -120, {0, 1}, "ListIndex Scroll* | 2: 2"},
               {1, -240, {}, "ListIndex Scroll* | 2: 2"},
               {2, -240, {}, "ListIndex Scroll* | 4: 4"},
               {3, -120, {4}, "(4) Scroll* | 3: 3"},
               {4, -120, {}, "ListIndex* | 4: 4"},
               {1, 30, {}, "ListIndex Scroll* | 4: 4"},
               {2, -120, {3, 4}, "* | 2: 2"},
               {3, 360, {}, "ListIndex Scroll* | 2: 2"},
               {3, 120, {1, 2}, "ListIndex Scroll* | 0: 0"},
               {0, 120, {}, "ListIndex* | 0: 0"},
               {-1, 120, {0}, "(0) Scroll* | -1: "},
               {1, 120, {0}, "* | 1: 1"}};
  for (const auto& c : cases) {
    fill(5);
    if (c.index >= 0) list.ListIndex(c.index);
    disable(c.disabled);
    turn(static_cast<std::int16_t>(c.delta));
    EXPECT_EQ(outcome(), c.outcome) << c.delta << " from " << c.index;
  }
}

}  // namespace
}  // namespace norvane
