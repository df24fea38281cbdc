#include "../ListScript.h"

namespace norvane {
namespace {

// Of 200 by 100 pixels, seven rows, and six above a horizontal bar. A character is 7 wide.
// clang-format off
const Scenario scenarios[] = {
  {"the content is as wide as the widest item and what its style puts beside it",
   "wide 3 4; AutoRedraw 0; Style 0; measure; width; Style 1; measure; width; Style 2; IconW 16.5;"
   "measure; width; Style 3; IconW 16; measure; width; Style 7; measure; width",
   "32 / 45 / 48 / 61 / 28"},
  {"each item added widens the content by the padding again",
   "clear; measure; ScrollBars 3; resize 200 1000; many 48; bars; add 'i'; bars;"
   "add 'mmmmmmmmmmmmmmmmmmmmmmmmmmmmmm'; width; remove 49; width; bars", "off 0 at 0 (0 0 17x0), off 0 at 0 (0 0 0x17) / off 0 at 0 (0 0 17x0), on 3 at 0 (1 982 198x17)"
   " / 214 / 18 / off 0 at 0 (0 0 17x0), off 0 at 0 (1 982 0x17)"},
  {"a horizontal bar alone", "resize 200 100; ScrollBars 1; wide 20 40; bars", "off 0 at 0 (0 0 17x0), on 84 at 0 (1 82 198x17)"},
  // The horizontal range includes the width of the vertical bar even without a horizontal bar.
  {"a vertical bar alone", "resize 200 100; ScrollBars 2; wide 20 40; bars", "on 13 at 0 (182 1 17x98), off 17 at 0 (0 0 0x17)"},
  {"both bars only if needed",
   "resize 200 100; ScrollBars 3; wide 7 28; bars; wide 7 29; bars; ScrollBars 0; bars; measure;"
   "bars; ScrollBars 3; resize 200 10; range", "off 0 at 0 (0 0 17x0), off 0 at 0 (0 0 0x17) / on 1 at 0 (182 1 17x81), on 24 at 0 (1 82 181x17)"
   " / on 1 at 0 (182 1 17x81), on 24 at 0 (1 82 181x17)"
   " / off 0 at 0 (182 1 17x0), off 0 at 0 (1 82 0x17) / 7"},
  {"the bars lie inside the frame and the corner is the list's",
   "resize 200 100; ScrollBars 3; BorderVisible 0; wide 20 40; bars; BorderVisible 1; measure;"
   "bars; face Line 38 (182; resize 10 5; bars", "on 14 at 0 (183 0 17x83), on 101 at 0 (0 83 183x17)"
   " / on 14 at 0 (182 1 17x81), on 101 at 0 (1 82 181x17)"
   " / <Line 38 (182, 82)-(200, 100) #FFFFFF> / on 20 at 0 (-8 1 17x0), on 291 at 0 (1 -13 0x17)"},
  {"a shrinking horizontal range goes back to the start",
   "ScrollBars 1; wide 2 40; step 1 2 5; measure;"
   "add 'mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm'; bars; remove 2; bars", "off 0 at 0 (0 0 17x0), on 154 at 5 (1 115 198x17)"
   " / off 0 at 0 (0 0 17x0), on 84 at 0 (1 115 198x17)"},
  {"the vertical value is kept whatever the range and lost when hidden",
   "resize 200 100; ScrollBars 3; wide 20 40; step 0 2 14; remove 1 1 1 1; bars; top; step 1 2 5;"
   "wide 7 1; bars", "on 10 at 14 (182 1 17x81), on 101 at 0 (1 82 181x17) / 14"
   " / off 0 at 0 (182 1 17x0), off 0 at 0 (1 82 0x17)"},
  {"the frame has the colour of the family, or else the host's or the one before",
   "BorderColor 255; ColorStyle 2; picture (0, 0) 1x; ColorStyle 1; picture (0, 0) 1x; ColorStyle 99;"
   "picture (0, 0) 1x; silent; ColorStyle 50; picture (0, 0) 1x",
   "<(0, 0) 1x133 on #A4B97F> / <(0, 0) 1x133 on #7F9DB9> / <(0, 0) 1x133 on #FF0000> / "
   "<(0, 0) 1x133 on #FF0000>"},
  {"the frame lies on the edges, fits a size set while hidden, and keeps presses from the list",
   "BorderVisible 0; resize 201 134; picture (; BorderVisible 1; picture (; forget;"
   "pressAt 0.5 50; releaseAt 0.5 50; pressAt 100 133.5; releaseAt 100 133.5; pressAt 200.5 10;"
   "releaseAt 200.5 10; pressAt 1 1; releaseAt 1 1; events; resize 0 0",
   "<(0, 0) 201x134 on #FFFFFF> / <(0, 0) 201x134 on #FFFFFF, (0, 0) 201x1 on #7F9DB9, "
   "(200, 0) 1x134 on #7F9DB9, (0, 133) 201x1 on #7F9DB9, (0, 0) 1x134 on #7F9DB9> / "
   "MouseDown* MouseUp Click"},
  {"the list follows the buttons",
   "wide 1000 1; forget; step 0 2; events; top; step 0 1; events; top; ScrollBars 3; wide 5 40;"
   "forget; step 1 2; events", "* Scroll / 1 / * Scroll / 0 / * Scroll"},
  {"the list follows the thumb",
   "resize 200 100; wide 1000 1; pressAt 190 20; forget; moveTo 190 400 1; events; top;"
   "releaseAt 190 400; events; top", "* Scroll / 993 / * Scroll / 993"},
  {"a scroll drops the edit, yields, paints and raises its event",
   "wide 20 40; AllowEdit 1; editable 0; edit 0; type typed; forget; post top;"
   "step 0 2; events; editing", "[1]* Scroll / closed"},
};
// clang-format on

using ScrollFitScenarios = ListScript;
TEST_P(ScrollFitScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Render, ScrollFitScenarios, testing::ValuesIn(scenarios), nameOf);

using ScrollFit = HearingListTest;

TEST_F(ScrollFit, AWidthIsKeptUntilTheTextOrTheFontChanges) {
  // Measures the items.
  RecordingSurface& label = headless.container().children().at(6)->ownSurface();
  const auto widthNow = [&] {
    list.AutoCheckScroll(true);
    return list.state().MaxItemWidth;
  };
  list.AutoRedraw(false);
  add({"mmmmmmmmmm", "i", "i"});
  widthNow();
  list.AutoRedraw(true);
  label.fontMeasure({9, 9, 13});
  list.ItemText(0, "mmmmm");
  EXPECT_EQ(widthNow(), 5 * 9 + 4);
  list.ItemsAdd("mmmmmmm");
  label.fontMeasure({20.5F, 20, 13});
  EXPECT_EQ(widthNow(), 7 * 9 + 4);
  list.Font(list.Font());
  for (int i = 0; i < 2; ++i) EXPECT_EQ(widthNow(), 144 + 4);  // 143.5
}

}  // namespace
}  // namespace norvane
