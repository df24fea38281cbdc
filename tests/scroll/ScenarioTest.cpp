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
  {"ATrackPressDarkensTheSideOfThePress",
   "press 150; draw 1; release; draw; value 100; press 30; draw 2; release; gradient 0; press 150;"
   "draw; colours; release; gradient 1; enable 0; draw; enable 1; forget; paint; draw 1",
   "<StretchDIBits 17x1 (0, 0)-(17, 200) #F3F1EC..#FDFDFA, "
   "StretchDIBits 17x1 (0, 84)-(17, 200) #E3DED3..#FCFCF9> | <Cls, "
   "StretchDIBits 17x1 (0, 0)-(17, 200) #F3F1EC..#FDFDFA> | "
   "<StretchDIBits 17x1 (0, 17)-(17, 116) #E3DED3..#FCFCF9> | <Cls> | 16777215 16777215 16777215 | "
   "<Cls> | <StretchDIBits 17x1 (0, 0)-(17, 200) #F3F1EC..#FDFDFA>",
   "<StretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC, "
   "StretchDIBits 4x17 (84, 0)-(200, 17) #FEFEFB..#E3DED4> | <Cls, "
   "StretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC> | "
   "<StretchDIBits 4x17 (17, 0)-(116, 17) #FEFEFB..#E3DED4> | <Cls> | 16777215 16777215 16777215 | "
   "<Cls> | <StretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC>"},
  {"TheThumbHasEdgesAndAGrip",
   "max 146; drawThumb; style 2; drawThumb 3; style 0; max 153; body; max 152; body",
   "<Cls, PaintPicture 13x14 \"vertical thumb 3\" at (1, 0) as 14x299, "
   "Line 22 (0, 0)-(15, 18) #FFFFFF, Line 6 (2, 19)-(15, 19) #7C9FD3, PSet (0, 19) #EEEDE5, "
   "PSet (0, 18) #9AB5DC, PSet (1, 19) #9AB5DC, PSet (15, 19) #EEEDE5, PSet (15, 18) #9AB5DC, "
   "PaintPicture 7x8 \"vertical thumb 6\" at (4.5, 6)> | <Line 6 (2, 19)-(15, 19) #829061, "
   "PSet (0, 19) #EEEDE5, PSet (0, 18) #8F9975, PSet (1, 19) #8F9975, PSet (15, 19) #EEEDE5, "
   "PSet (15, 18) #8F9975, PaintPicture 7x8 \"vertical thumb 18\" at (4.5, 6)> | thumb 3 | thumb 6",
   "<Cls, PaintPicture 14x13 \"horizontal thumb 3\" at (1, 0) as 18x239, "
   "Line 22 (0, 0)-(18, 14) #FFFFFF, Line 6 (2, 15)-(19, 15) #7C9FD3, PSet (0, 15) #EEEDE5, "
   "PSet (0, 14) #9AB5DC, PSet (1, 15) #9AB5DC, PSet (19, 15) #EEEDE5, PSet (19, 14) #9AB5DC, "
   "PaintPicture 8x7 \"horizontal thumb 6\" at (6, 4.5)> | <Line 6 (2, 15)-(19, 15) #829061, "
   "PSet (0, 15) #EEEDE5, PSet (0, 14) #8F9975, PSet (1, 15) #8F9975, PSet (19, 15) #EEEDE5, "
   "PSet (19, 14) #8F9975, PaintPicture 8x7 \"horizontal thumb 18\" at (6, 4.5)> | thumb 3 | "
   "thumb 6"},
  {"ASilverThumbHasAnOutlineThatChangesUnderThePointer",
   "max 153; style 1; drawThumb 9; hover 20; drawThumb 9",
   "<Line 6 (0, 1)-(0, 11) #9495A2, Line 6 (15, 1)-(15, 11) #9495A2, PSet (1, 0) #9495A2, "
   "PSet (15, 0) #9495A2, Line 6 (14, 2)-(14, 10) #FFFFFF, Line 6 (1, 0)-(14, 0) #B7B7BF, "
   "Line 6 (1, 11)-(14, 11) #D0D1DF> | <Line 6 (0, 1)-(0, 11) #5B6665, "
   "Line 6 (15, 1)-(15, 11) #5B6665, Line 6 (2, 12)-(15, 12) #5B6665, "
   "Line 6 (1, 0)-(14, 0) #5B6665, Line 6 (1, 11)-(14, 11) #D0D1DF>",
   "<Line 6 (0, 1)-(0, 14) #9495A2, Line 6 (12, 1)-(12, 14) #9495A2, PSet (1, 0) #9495A2, "
   "PSet (12, 0) #9495A2, Line 6 (11, 2)-(11, 13) #FFFFFF, Line 6 (1, 0)-(11, 0) #B7B7BF, "
   "Line 6 (1, 14)-(11, 14) #D0D1DF> | <Line 6 (0, 1)-(0, 14) #5B6665, "
   "Line 6 (12, 1)-(12, 14) #5B6665, Line 6 (2, 15)-(12, 15) #5B6665, "
   "Line 6 (1, 0)-(11, 0) #5B6665, Line 6 (1, 14)-(11, 14) #D0D1DF>"},
  {"AStyleWithoutPicturesLeavesThePartsUnpainted",
   "style 7; reports; drawThumb; draw 1; style -1; reports; press 190; events; release; style 0;"
   "style 1073741824; drawThumb 9",
   "<340 RedrawScroll, 340 C, 340 C> | <Cls> | "
   "<StretchDIBits 17x1 (0, 0)-(17, 200) #F3F1EC..#FDFDFA> | <340 RedrawScroll, 340 C, 340 C> | "
   "<> | <PaintPicture 7x8 \"vertical thumb 6\" at (4.5, 29)>",
   "<340 RedrawScroll, 340 PaintState, 340 PaintState> | <Cls> | "
   "<StretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC> | "
   "<340 RedrawScroll, 340 PaintState, 340 PaintState> | <Change 1> | <>"},
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

/// The other bar has no pictures in that style.
struct HorizontalBar : BarTest {
  HorizontalBar() : BarTest(Axis::horizontal) {}
};

TEST_F(HorizontalBar, HasACustomStyle) {
  auto& horizontal = static_cast<nvHScroll&>(bar);
  horizontal.SetNewProperty(propertiesOf(
      "ScrollBar = 1\nScrollBarHover = 2\nScrollBarDown = 3\nScrollButtons = 4\n"
      "ScrollButtonsHover = 5\nScrollButtonsDown = 6\nScrollArrows = 7\nScrollArrowsHover = 8\n"
      "ScrollArrowsDown = 9\nScrollBackColor = 10"));
  EXPECT_EQ(
      run("style 99; press 150; draw; release; hover 50; drawThumb; colours; drawNear 7; press 50;"
          "colours; move 50 60; release 50 60; colours; hover 3 3; colours; drawNear 7; press 3 3;"
          "colours; drawNear; drawFar 8"),
      "<Cls> | <Cls> | 10 2 4 | <Line 6 (6, 9)-(10, 13) #070000, Line 6 (8, 9)-(11, 12) #070000> "
      "| 10 3 4 | 10 1 4 | 10 1 5 | <Line 6 (6, 9)-(10, 13) #080000, "
      "Line 6 (8, 9)-(11, 12) #080000> | 10 1 6 | <Cls, ForeColor #090000, "
      "Line 6 (9, 4)-(5, 8) #090000, Line 6 (9, 5)-(5, 9) #090000, "
      "Line 6 (10, 5)-(5, 10) #090000, PSet (5, 8) #090000, Line 6 (5, 8)-(11, 12) #090000, "
      "Line 6 (6, 9)-(10, 13) #090000, Line 6 (8, 9)-(11, 12) #090000> | "
      "<Line 6 (10, 9)-(6, 13) #070000>");
  // Colours read before an invalid value are kept; an empty store gives the defaults.
  horizontal.SetNewProperty(propertiesOf("ScrollBarDown = red\nScrollBackColor = 11"));
  EXPECT_EQ(run("reports"), "<13 SetNewProperty>");
  EXPECT_EQ(horizontal.BackColor(), 11);
  horizontal.SetNewProperty(PropertyBag());
  EXPECT_EQ(horizontal.BackColor(), colours::white);
  EXPECT_EQ(background(thumb), systemColour(15));
}

}  // namespace
}  // namespace norvane
