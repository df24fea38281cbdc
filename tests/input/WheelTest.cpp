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
  const auto turned = [&](std::int32_t delta) {
    wheel->WndProc(delta * 0x10000 + 9, -2 * 0x10000 + 40000);
    return ear.heard.substr(0, ear.heard.find(' '));
  };
  EXPECT_EQ(turned(120), "1");
  EXPECT_EQ(ear.heard, "1 9 -25536 -2");
  const std::pair<int, const char*> turns[] = {{30, "0"},    {60, "0"},  {61, "1"},
                                               {180, "2"},   {-60, "0"}, {-61, "-1"},
                                               {-180, "-2"}, {300, "2"}, {-32768, "-273"}};
  for (const auto& [delta, notches] : turns) EXPECT_EQ(turned(delta), notches) << delta;

  wheel->EnableWheel();
  EXPECT_FALSE(place.turnWheel(120));
  wheel->hWndCapture(1);
  wheel->EnableWheel();
  EXPECT_TRUE(place.turnWheel(120));
  place.hookWheel({});
  wheel->EnableWheel();
  EXPECT_FALSE(place.turnWheel(120));  // on already
  wheel->DisableWheel();
  wheel->EnableWheel();
  EXPECT_TRUE(place.turnWheel(120));
  wheel->hWndCapture(0);
  wheel->DisableWheel();
  EXPECT_TRUE(place.turnWheel(120));
  wheel.reset();
  EXPECT_FALSE(place.turnWheel(120));
}

TEST_F(WheelScrolls, TheHookLastsFromTheReadingToTheEnd) {
  struct Place : HeadlessContainer {
    std::int32_t hwnd() override { throw Failure(1000, "own"); }
  } broken;
  nvList unhooked(broken);
  unhooked.UserControl_InitProperties();
  EXPECT_FALSE(broken.turnWheel(120));
  EXPECT_EQ(reports(), "");
  EXPECT_EQ(unhooked.hwnd(), 0);
  EXPECT_EQ(reports(), "1000 hwnd");

  HeadlessContainer place;
  {
    nvList own(place);
    place.userMode = false;
    own.UserControl_InitProperties();
    EXPECT_FALSE(place.turnWheel(120));
    place.userMode = true;
    own.UserControl_InitProperties();
    EXPECT_TRUE(place.turnWheel(120));
  }
  EXPECT_FALSE(place.turnWheel(120));
}

TEST_F(WheelScrolls, TheBarByLinesAndAtTheEndsBySnapping) {
  fill(40);
  // A scroll is told twice: by the bar's handler and by the wheel's.
  const std::string moved = "* Scroll Scroll*";
  const struct {
    int top, lines, delta, newTop;
  } cases[] = {{0, 1, -120, 1},   {0, 1, -360, 1},   {0, 5, -120, 5},    {24, 5, -120, 29},
               {25, 5, -120, 30}, {29, 1, -120, 30}, {30, 1, -120, 30},  {3, 1, -30, 30},
               {3, 1, 30, 30},    {3, 1, 60, 30},    {30, 1, 30, 30},    {10, 1, 120, 9},
               {10, 3, 240, 7},   {3, 3, 120, 0},    {4, 3, 120, 1},     {1, 1, 120, 0},
               {0, 1, 120, 0},    {10, 40, 120, 0},  {10, 40, -120, 30}, {10, -2, -120, 8}};
  for (const auto& c : cases) {
    list.WheelScrollLines(c.lines);
    list.TopIndex(c.top);
    heard();
    turn(static_cast<std::int16_t>(c.delta));
    EXPECT_EQ(list.TopIndex(), c.newTop) << &c - cases;
    EXPECT_EQ(list.verticalBar().Value(), c.newTop) << &c - cases;
    EXPECT_EQ(heard(), c.top == c.newTop ? "*" : moved) << &c - cases;
  }
  list.WheelScrollLines(INT32_MAX);
  list.TopIndex(3);
  heard();
  turn(-120);
  EXPECT_EQ(reports(), "6 Wheel1_WheelScroll");
  EXPECT_TRUE(list.state().SuppressRedraw.isTrue());
  turn(120);
  EXPECT_FALSE(list.state().SuppressRedraw);
}

TEST_F(WheelScrolls, WhereNothingScrollsItStillPaints) {
  turn(-120);
  EXPECT_EQ(heard(), "");
  fill(5);
  for (const std::int16_t delta : {-120, 120, 30}) {
    turn(delta);
    EXPECT_EQ(heard(), "*");
  }
  fill(40);
  for (const int function : {2, 7}) {
    list.WheelFunction(static_cast<cWheelFunction>(function));
    list.TopIndex(10);
    heard();
    turn(-120), turn(120);
    EXPECT_EQ(heard(), "**");
  }
  EXPECT_EQ(list.TopIndex(), 10);
}

TEST_F(WheelScrolls, TheCurrentRow) {
  list.WheelFunction(cWheelListIndex);
  const struct {
    int index, delta;
    std::initializer_list<int> disabled;
    const char* outcome;
  } cases[] = {{-1, -120, {}, "ListIndex Scroll* | 0: 0"},
               {-1, -120, {0, 1}, "ListIndex Scroll* | 2: 2"},
               {1, -120, {2}, "ListIndex Scroll* | 3: 3"},
               {1, -240, {}, "ListIndex Scroll* | 2: 2"},
               {2, -240, {}, "ListIndex Scroll* | 4: 4"},
               {3, -120, {}, "ListIndex Scroll* | 4: 4"},
               {3, -120, {4}, "(4) Scroll* | 3: 3"},
               {4, -120, {}, "ListIndex* | 4: 4"},
               {1, 30, {}, "ListIndex Scroll* | 4: 4"},
               {2, -120, {3, 4}, "* | 2: 2"},
               {3, 120, {}, "ListIndex Scroll* | 2: 2"},
               {3, 360, {}, "ListIndex Scroll* | 2: 2"},
               {3, 120, {1, 2}, "ListIndex Scroll* | 0: 0"},
               {2, 120, {0, 1}, "* | 2: 2"},
               {0, 120, {}, "ListIndex* | 0: 0"},
               {-1, 120, {}, "ListIndex Scroll* | 0: 0"},
               {-1, 120, {0}, "(0) Scroll* | -1: "},
               {1, 120, {0}, "* | 1: 1"}};
  for (const auto& c : cases) {
    fill(5);
    if (c.index >= 0) list.ListIndex(c.index);
    disable(c.disabled);
    turn(static_cast<std::int16_t>(c.delta));
    EXPECT_EQ(outcome(), c.outcome) << &c - cases;
  }
}

TEST_F(WheelScrolls, TheCurrentRowStaysInView) {
  list.WheelFunction(cWheelListIndex);
  fill(40);
  list.ListIndex(9);
  heard();
  turn(-120);
  EXPECT_EQ(outcome(), "ListIndex TopIndex Scroll* | 10: 10, top 10");
  turn(120);
  EXPECT_EQ(outcome(), "ListIndex TopIndex Scroll* | 9: 9, top 9");
  // Upward the bar follows also where a refused press has left the change without its scroll.
  disable({10});
  click(1);
  list.TopIndex(25);
  heard();
  turn(120);
  EXPECT_EQ(outcome(), "ListIndex* Scroll Scroll* | 8: 8, top 8");
  click(2);
  list.TopIndex(25);
  heard();
  turn(-120);
  EXPECT_EQ(outcome(), "ListIndex Scroll* | 9: 9, top 25");
}

TEST_F(WheelScrolls, AMessageMayComeInTheMiddleOfOne) {
  fill(40);
  HeadlessContainer& form = headless.container();
  form.post([&] { turn(-120); });
  turn(-120);
  EXPECT_EQ(outcome(), "* Scroll Scroll** Scroll Scroll* | -1: , top 2");
  list.WheelFunction(cWheelListIndex);
  list.ListIndex(20);
  disable({21, 22});
  heard();
  form.post([&] { turn(-120); });
  turn(-120);
  EXPECT_EQ(outcome(), "ListIndex Scroll* ListIndex* Scroll* | 23: 23, top 20");
  // One yield for each disabled row, two for the change and one at the end.
  for (const std::int16_t delta : {120, -120}) {
    for (int i = 0; i < 5; ++i) form.post({});
    turn(delta);
    EXPECT_EQ(form.waiting(), 0U);
  }
  form.post([&] { list.ItemsClear(); });
  turn(-120);
  EXPECT_EQ(now(), "0: , top 20");
  EXPECT_EQ(reports(), "");
  EXPECT_FALSE(list.state().SuppressRedraw);
}

TEST_F(WheelScrolls, AfterAFailedRepaintOnlyAnArrowOrTheWheelPaintsAgain) {
  class Broken : public HeadlessSurface {
   public:
    using HeadlessSurface::HeadlessSurface;
    void ForeColor(Colour) override {
      if (isBroken) throw Failure(1000, "own");
    }
    bool isBroken = false;
  } surface(200, 100);
  HeadlessContainer place(surface);
  nvList own(place);
  own.UserControl_InitProperties();
  for (int i = 0; i < 5; ++i) own.ItemsAdd(i);
  const auto repaints = [&](const std::function<void()>& act) {
    surface.isBroken = true;
    own.Redraw();
    surface.isBroken = false;
    const int before = surface.frames();
    act();
    return surface.frames() - before;
  };
  std::int16_t arrow = down;
  EXPECT_EQ(repaints([&] { own.ListIndex(2), own.UserControl_GotFocus(), place.press(50, 20); }),
            0);
  EXPECT_EQ(repaints([&] { own.UserControl_KeyDown(arrow, 0); }), 1);
  arrow = up;
  EXPECT_EQ(repaints([&] { own.UserControl_KeyDown(arrow, 0); }), 1);
  EXPECT_EQ(repaints([&] { place.turnWheel(120); }), 1);
}

}  // namespace
}  // namespace norvane
