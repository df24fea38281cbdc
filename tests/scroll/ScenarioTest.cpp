#include "Bars.h"

#include <tuple>

namespace norvane {
namespace {

using scroll::Axis;

/// A script with its outputs; those of the horizontal bar only if they differ.
struct Scenario {
  const char* name;
  const char* script;
  std::string vertical;
  std::string horizontal = vertical;

  friend std::ostream& operator<<(std::ostream& out, const Scenario& scenario) {
    return out << scenario.name;
  }
};

// clang-format off
const Scenario scenarios[] = {
  {"HeldButtonsStepAfterTheirDelayAndThenTenTimesASecond",
   "press 8; wait 1000; times; release; wait 1000; times; press 190; wait 1000; times",
   "<0 600 700 800 900 1000> | <> | <0 600 700 800 900 1000>",
   "<0 350 450 550 650 750 850 950> | <> | <0 350 450 550 650 750 850 950>"},
  {"TheDelayBeginsWhenTheFirstStepIsDone", "hover 8; slow; press 8; events", "<Change 0>"},
  {"ThePointerOutsideAButtonPausesTheRepeat",
   "hover 8; press 8; wait 610; move -0.5; near; wait 100; move 0; near; wait 100; move 17.5;"
   "wait 100; move 17; wait 100; move 8 -0.5; wait 100; move 8 0; wait 100; move 8 17.5;"
   "wait 100; move 8 17; wait 100; times",
   "up 1 | up 3 | <0 600 800 1000 1200 1400>",
   "left 1 | left 3 | <0 350 450 550 750 950 1150 1350>"},
  {"ButtonsShowTheMouse",
   "press 190; far; move 190; far; release 190; far; hover 190 9; far; hover 170; far",
   "down 3 | down 3 | down 1 | down 2 | down 1",
   "right 1 | right 3 | right 2 | right 2 | right 1"},
  {"ButtonsDrivenByTheTrackDoNotLookPressed", "hover 190; press 180; far; release; far",
   "down 1 | down 1", "right 3 | right 2"},
  {"ButtonsShowStyleAndEnabled", "hover 190; enable 0; far; enable 1; far; style 1; near; far",
   "down 4 | down 1 | up 5 | down 5", "right 4 | right 2 | left 5 | right 6"},
  {"TheThumbShowsThePressUntilTheReleaseAndHoverByTheLastMove",
   "max 153; hover 20; body; press 20; body; frames; move 20 60; body; frames; capture;"
   "release 20 60; body; hover 20; hover 20 17; body; hover 20 17.5; body; capture; hover 190 9;"
   "capture; hover 170; capture",
   "thumb 2 | thumb 1 | 7 | thumb 1 | 7 | 10 | thumb 3 | thumb 2 | thumb 3 | 00 | 01 | 00"},
  {"TheMaximumMakesTheThumbShorter",
   "min -30; max -10; value -30; thumb; max 150; min 100; value 100; thumb; min 0; max 159;"
   "value 0; thumb; max 2147483647; thumb",
   "17+176 | 17+16 | 17+8 | 17+8"},
  {"TheThumbTakesItsLengthWhenShownNotWhenResized",
   "value 100; length 300; thumb; show; thumb; value 100; thumb", "217+66 | 217+166 | 117+166"},
  {"TheThumbIsPlacedByTheValueAndExactlyAtTheEnds",
   "max 301; thumb; value 301; thumb; value 1; thumb; value 1000; thumb",
   "17+8 | 175+8 | 17.5249+8 | 541.917+8"},
  {"AThumbOutsideTheRangeReturnsAndAButtonDoesNotClamp",
   "value -2; click 20; events; value 1000; click 190; click 10; events",
   "<Scroll 0, Change 0> | <Change 1000, Change 999>"},
  {"ButtonsStepByOneAndRaiseChangeAtTheEndsToo",
   "small 10; large 20; value 99; click 190; click 190; click 5; value 1; click 5; click 5; events",
   "<Change 100, Change 100, Change 99, Change 0, Change 0>"},
  {"DragsRoundHalvesToEvenAndStopAtTheButtons",
   "min 50; value 50; press 20; move 25; move 27; move 27.25; move 500; thumb; move -500; thumb;"
   "move 23; thumb; release; events",
   "117+66 | 17+66 | 20+66 | <Scroll 52, Scroll 54, Scroll 100, Scroll 50, Scroll 52, Change 52>"},
  {"DragsRoundThePressToAPixelAndEndWithTheRelease",
   "press 24.5; move 27; thumb; release; hover 90; thumb", "19+66 | 19+66"},
  {"AThumbBeyondTheFarEndReturnsWithAnyMoveOneBeforeTheNearEndDoesNot",
   "min 50; value 102; press 130; move 130; thumb; release; value 49; press 20; move 20; thumb",
   "117+66 | 15+66"},
  {"WithoutActiveScrollingTheValueChangesAtTheRelease",
   "active 0; press 20; move 60; events; release; events; press 60; move 70; value 7; thumb",
   "<> | <Scroll 40, Change 40> | 67+66"},
  {"DragsNeedTheLeftButtonAloneAndAPointerNearTheBar",
   "press 20; move 30; move 60 8 3; move 60 -129; move 60 147; thumb; move 40 -128.5;"
   "move 45 146.5; events",
   "27+66 | <Scroll 10, Scroll 20, Scroll 25>"},
  {"ARangeOfOneValueKeepsTheThumbAtTheNearEnd", "value 100; min 100; thumb", "17+66"},
  {"BoundsThatCrossAreRefused", "min 101; range; min 5; max 4; range", "0..100 | 5..100"},
  {"ABarKeepsItsBreadth", "breadth 40; size", "17x200", "200x17"},
  {"AThumbThatFillsTheTrackHasNoValue", "max 0; value 3; click 100; reports",
   "<11 ÜberprüfeValue>"},
  {"BarsWithoutRoomHideTheThumb",
   "length 45; visible; length 0; show; value 50; paint; visible; reports; length 46; visible",
   "hidden | hidden | <> | shown"},
  {"ARangeBeyondTheNumbersIsReportedEachTime",
   "max 2147483647; min -2; reports; value -2; reports; value -2; reports; value 2147483646;"
   "reports; press 190; events",
   "<6 GetIMX> | <6 GetIMX> | <6 GetIMX> | <6 GetIMX, 6 Redraw> | <Change 2147483647>"},
  {"ReportsNameTheProcedure",
   "failing; click 8; failing; click 190; failing; click 50; reports",
   "<6 VBtnUp1_ValueUp, 6 VBtnDown1_ValueDown, 6 VScrollBar1_MouseUp>",
   "<6 VBtnLeft1_ValueUp, 6 VBtnRight1_ValueDown, 6 HScrollBar1_MouseUp>"},
  {"TheTrackStepsUntilTheThumbReachesThePress",
   "press 85; direction; wait 2000; direction; times; events; release; value 100;"
   "press 114.5; direction; wait 2000; events",
   "2 | 0 | <0 600 700> | <Change 1, Change 2, Change 3> | 1 |"
   " <Change 99, Change 98, Change 97, Change 96>",
   "1 | 0 | <0 350 450> | <Change 1, Change 2, Change 3> | 2 |"
   " <Change 99, Change 98, Change 97, Change 96>"},
  {"APressBesideTheThumbOrRightAtItsEndDoesNothing",
   "press 17 0; release; press 83; wait 1000; events", "<>"},
  {"TheSameValueAgainEndsAPressThatTheThumbHasReached",
   "value 90; press 100; value 80; direction; value 80; direction", "1 | 0", "2 | 0"},
  {"AStepBeyondThePressGoesBack",
   "max 150; min 149; value 149; press 100; wait 1000; events", "<Change 150, Change 149>"},
  {"ATrackPressStepsOnceAfterThePointerHasLeftTheButton",
   "hover 190; hover 150; press 150; wait 2000; events", "<Change 1>"},
  {"DisabledBarsHaveNoThumbAndIgnoreTheMouse",
   "enable 0; visible; click 50; click 150; click 190; events; enable 1; visible",
   "hidden | <> | shown"},
};
// clang-format on

class Scenarios : public BarTest, public testing::WithParamInterface<std::tuple<Axis, Scenario>> {
 protected:
  Scenarios() : BarTest(std::get<Axis>(GetParam())) {}
};

TEST_P(Scenarios, GivesItsOutputs) {
  const auto& scenario = std::get<Scenario>(GetParam());
  EXPECT_EQ(run(scenario.script), either(scenario.vertical, scenario.horizontal));
}

std::string nameOf(const testing::TestParamInfo<Scenarios::ParamType>& test) {
  const auto& [axis, scenario] = test.param;
  return testing::PrintToString(axis) + "_" + scenario.name;
}

constexpr Axis axes[] = {Axis::vertical, Axis::horizontal};

INSTANTIATE_TEST_SUITE_P(Bar, Bars, testing::ValuesIn(axes), testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Bar, Scenarios,
                         testing::Combine(testing::ValuesIn(axes), testing::ValuesIn(scenarios)),
                         nameOf);

TEST_P(Bars, BoxesSayWhatIsWrongAndWhere) {
  run("min 101; max -1; failing; click 8");
  ASSERT_EQ(application.boxes.size(), 3U);
  EXPECT_EQ(application.boxes[0].text, "Min darf nicht größer sein als Max!");
  EXPECT_EQ(application.boxes[1].text, "Max darf nicht kleiner sein als Min!");
  const char* module = either(" nvVScroll\r", " nvHScroll\r");
  EXPECT_NE(application.boxes[2].text.find(module), std::string::npos);
}

TEST_P(Bars, PropertiesAreStored) {
  PropertyBag bag;
  const auto stored = [&] { return bar.UserControl_WriteProperties(bag), propertyText(bag); };
  run("min 2; max 7; value 3; gradient 0; style 2; active 0; small 2; large 3; enable 0");
  if (axis == Axis::horizontal) static_cast<nvHScroll&>(bar).BackColor(5);
  const std::string values = stored();
  EXPECT_EQ(values,
            "Min = 2\nMax = 7\nValue = 3\nGradient = False\nColorStyle = 2\n"
            "ActiveScrolling = False\nLargeChange = 3\nSmallChange = 2\nEnabled = False\n" +
                either<std::string>("", "BackColor = 5\n"));
  const PropertyBag kept = bag;
  bar.UserControl_ReadProperties(PropertyBag());
  EXPECT_EQ(stored(), "");
  bar.UserControl_ReadProperties(kept);
  EXPECT_EQ(stored(), values);
  // The minimum is compared with the old maximum, as the new one is read after it.
  bar.UserControl_ReadProperties(propertiesOf("Min = 8\nMax = 20\n"));
  EXPECT_EQ(run("range"), "2..20");
}

}  // namespace
}  // namespace norvane
