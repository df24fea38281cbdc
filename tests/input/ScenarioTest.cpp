#include "../ListScript.h"

namespace norvane {
namespace {

// Repaints are asterisks; what follows a bar is the state: the current item, then those selected.
// clang-format off
const Scenario scenarios[] = {
  // Presses and clicks.
  {"a click", "click 2; outcome", "MouseDown* MouseUp Click | 2: 2"},
  {"a click in the check zone", "check 2; outcome",
   "MouseDown ItemCheck(2)* MouseUp Click | 2: 2, checked 2"},
  {"a release outside", "press 2; releaseAt 300 40; outcome", "MouseDown* MouseUp | 2: 2"},
  {"the right button", "pressAt 50 40 2; releaseAt 50 40 2; outcome", "MouseDown MouseUp | -1: "},
  {"the right button as the left one",
   "newButton 1; pressAt 50 40 2; releaseAt 50 40 2; outcome", "MouseDown* MouseUp | 2: 2"},
  {"a double click", "double 2; outcome", "MouseDown* MouseUp Click DblClick MouseUp | 2: 2"},
  {"a double click checks", "Style 1; forget; double 2; outcome",
   "MouseDown* MouseUp Click ItemCheck(2)* DblClick MouseUp | 2: 2, checked 2"},
  {"a double click below the rows", "setIndex 1; forget; double 8; outcome",
   "MouseDown MouseUp Click MouseUp | 1: 1"},
  {"a double click below the rows without a current item", "double 8; outcome",
   "MouseDown MouseUp Click DblClick MouseUp | -1: "},
  {"a disabled row", "setIndex 1; disable 3; forget; check 3; outcome",
   "MouseDown(-1)* MouseUp Click | 1: 1"},
  {"a cancelled check", "setIndex 1; cancel -1; forget; check 2; outcome",
   "MouseDown ItemCheck(2)* MouseUp Click | 2: 2"},
  {"a check cancelled by any number", "Style 1; cancel 1; forget; double 2; outcome",
   "MouseDown* MouseUp Click ItemCheck(2) DblClick MouseUp | 2: 2"},
  {"an empty list", "clear; forget; click 0; outcome", "MouseDown MouseUp Click | 0: "},
  {"a press finds the rows from a place of its own",
   "IndentTop 20; pressAt 50 3.5; index; pressAt 50 4; index; pressAt 50 16.5; index;"
   "pressAt 50 65; index; pressAt 50 65.5; select 4; index; pressAt 50 65.5; index;"
   "MinHeight 17.5; pressAt 50 39; index", "-1 / 0 / 0 / 4 / -1 / -1 / 1"},
  {"a press counts from the bar", "fill 40; setTop 20; click 2; now", "22: 22, top 20"},
  {"Shift and Ctrl",
   "MultiSelect 1; disable 3; click 2 1; now; click 2; now; click 4 1; now; click 0 1; now;"
   "click 2 1; now; click 4 2; now; click 1 2; now; click 4 2; now; click 0 3; now; click 3 2; now;"
   "MultiSelect 0; click 2 2; now",
   "2: 0 1 2 / 2: 2 / 4: 2 4 / 0: 0 1 2 / 2:  / 4: 4 / 1: 1 4 / 4: 1 / 0: 0 / 0: 0 / 2: 2"},
  {"the check zone goes with the content",
   "BorderVisible 0; IndentLeft 5.5; forget; pressAt 6 36; pressAt 6.5 36; pressAt 18.5 36;"
   "pressAt 19 36; events; ScrollBars 3; wide 5 40; step 1 2 10; forget; pressAt 0 36;"
   "pressAt 8.5 36; pressAt 9 36; events",
   "MouseDown* MouseDown ItemCheck(2)* MouseDown ItemCheck(2)* MouseDown* / "
   "MouseDown ItemCheck(2)* MouseDown ItemCheck(2)* MouseDown*"},
  {"a range far outside the list is walked as far as the list goes",
   "fill 20; MultiSelect 1; silent; down 0 -2000000000; key 40; anchor; press 3 1; now",
   "-2000000000 / 3: 0 1 2 3"},
  {"handlers see what has happened so far",
   "onEach now; pressAt 8 40 1 2; arguments; moveTo 60 50 3 4; arguments; releaseAt 8 41;"
   "arguments; events",
   "1 2 8 40 / 3 4 60 50 / 1 0 8 41 / MouseDown [-1: ] ItemCheck(2) [2: 2]* "
   "MouseMove(3 3) [2: 2, checked 2] MouseUp [2: 2, checked 2] Click [2: 2, checked 2]"},
  {"a failing handler ends the press",
   "on MouseDown throw; press 2; outcome; reports; release 2; on ItemCheck throw; pressAt 8 36;"
   "outcome; reports",
   "MouseDown | -1:  / 1000 UserControl_MouseDown / "
   "MouseUp Click MouseDown ItemCheck(2) | 2: 2 / 1000 UserControl_MouseDown"},
  {"or is stepped over", "silent; on ItemCheck throw; pressAt 8 36; outcome",
   "MouseDown ItemCheck(2)* | 2: 2, checked 2"},
  // Dragging.
  {"moves name the row under the pointer",
   "moveTo 50 20; moveTo 50 300; moveTo 50 131; events; clear; pressAt 50 90; forget;"
   "moveTo 50 10 1; moveTo 50 -1 1; events; ticks 10",
   "MouseMove(1 1) MouseMove(10 ) / MouseMove(0 ) MouseMove(-1 ) / 0"},
  {"a plain drag sweeps the current row along",
   "disable 3; forget; press 1; drag 2; drag 2; drag 3; drag 5; drag 0; outcome;"
   "drag 4 3; drag 4 0; outcome",
   "MouseDown* ListIndex* MouseMove(2 2) ListIndex* MouseMove(2 2)(3) MouseMove(3 3)"
   "(5) MouseMove(5 ) ListIndex* MouseMove(0 0) | 0: 0 / MouseMove(4 4) MouseMove(4 4) | 0: 0"},
  {"a drop lands before the marked row",
   "AllowItemMoving 1; press 1; drag 2; drag 3; forget; release 3; outcome; texts;"
   "fill 5; press 0; drag 5; forget; release 5; outcome; texts;"
   "fill 5; press 3; drag 1; forget; release 1; outcome; texts",
   "** MouseUp Click | 2: 1 / <0 2 1 3 4> / ** MouseUp Click | 4: 0 / <1 2 3 4 0> / "
   "** MouseUp Click | 1: 3 / <0 3 1 2 4>"},
  {"a drop without a mark moves to the top",
   "AllowItemMoving 1; press 3; forget; release 3; outcome; texts",
   "** MouseUp Click | 0: 3 / <3 0 1 2 4>"},
  {"the marked row made current by a host",
   "AllowItemMoving 1; press 1; drag 3; setIndex 3; forget; release 3; outcome",
   "* MouseUp Click | 3: 3"},
  {"the target has a black mark until the next repaint",
   "disable 3; AllowItemMoving 1; press 1; forget; drag 3; drag 3; events; hover; drag 1; hover;"
   "face Line 22; redraw; face Line 22",
   "* MouseMove(3 3)* MouseMove(3 3) / 3 / -1 / <Line 22 (0, 42)-(200, 43) #000000> / <>"},
  {"past the top it scrolls until the first row is next",
   "fill 40; setTop 5; press 3; forget; moveTo 50 -1 1; wait 20; outcome; release 0;"
   "AllowItemMoving 1; fill 40; setTop 5; press 3; moveTo 50 -1 1; wait 9; top; hover",
   "MouseMove(4 4) TopIndex* TopIndex* TopIndex* TopIndex* | 8: 8, top 1 / 1 / 1"},
  {"past the bottom it scrolls to the end and on",
   "fill 40; setTop 26; press 3; moveTo 50 130.5 1; wait 9; top; hover; ticks 5; release 0;"
   "ticks 5; AllowItemMoving 1; fill 40; setTop 20; press 3; moveTo 50 130.5 1; wait 3; top; hover",
   "30 / -1 / 5 / 0 / 23 / 32"},
  {"another button stops the scrolling",
   "fill 40; setTop 10; press 3; moveTo 50 130.5 1; pressAt 50 130.5 2; releaseAt 50 130.5 2;"
   "ticks 5", "0"},
  {"back inside the scrolling ends with the next tick",
   "fill 40; setTop 10; press 3; moveTo 50 130.5 1; wait 1; drag 4; now; ticks 5",
   "15: 15, top 11 / 0"},
  // Keys.
  {"down from nowhere", "disable 0 1; forget; key 40; outcome", "KeyDown(40 0) ListIndex* | 2: 2"},
  {"up from nowhere", "key 38; outcome", "KeyDown(38 0) | -1: "},
  {"up from the first row", "setIndex 0; forget; key 38; outcome", "KeyDown(38 0) | 0: 0"},
  {"down from the last row", "setIndex 4; forget; key 40; outcome", "KeyDown(40 0) | 4: 4"},
  {"up over disabled rows", "setIndex 3; disable 1 2; forget; key 38; outcome",
   "KeyDown(38 0) ListIndex* | 0: 0"},
  {"up with none enabled", "setIndex 3; disable 0 1 2; forget; key 38; outcome",
   "KeyDown(38 0) | 3: 3"},
  {"down with none enabled", "setIndex 1; disable 2 3 4; forget; key 40; outcome",
   "KeyDown(40 0) | 1: 1"},
  {"an arrow with Shift selects one row",
   "MultiSelect 1; click 1; click 3 1; key 40 1; now; anchor", "4: 4 / 4"},
  {"an arrow brings its row into the window",
   "fill 100; setIndex 10; setTop 10; key 38; now; setIndex 6; setTop 30; key 38; now;"
   "setIndex 9; setTop 0; key 40; now; setIndex 19; setTop 10; key 40; now;"
   "setIndex 30; setTop 0; key 40; now; setIndex 5; setTop 30; key 40; now;"
   "setIndex 8; setTop 0; key 40; now",
   "9: 9, top 9 / 5: 5, top 5 / 10: 10, top 1 / 20: 20, top 11 / 31: 31, top 22 / 6: 6, top 6 / "
   "9: 9"},
  {"other keys are passed on",
   "setIndex 2; forget; key 34 3; outcome; key 16 3; outcome; held; key 17 3; outcome; held;"
   "keyUp 65 1; held; keyPress 97; events",
   "KeyDown(34 3) | 2: 2 / KeyDown(16 3) | 2: 2 / Shift / KeyDown(17 3) | 2: 2 / Ctrl / "
   "KeyUp(65 1) KeyPress(97)"},
  {"focus and name paint whatever AutoRedraw is",
   "AutoRedraw 0; forget; enter; focus; leave; focus; ambient Font; events; ambient DisplayName;"
   "events", "yes / no / ** / *"},
  {"a handler turns the key into another", "setIndex 2; newKeyCode 38; key 65; now; code",
   "1: 1 / 38"},
  {"a handler of a key fails",
   "setIndex 1; on KeyDown throw; key 40; reports; silent; key 40; now",
   "1000 UserControl_KeyDown / 2: 2"},
  {"an arrow without items", "clear; forget; key 40; outcome", "KeyDown(40 0) | 0: "},
  {"arrows while a text is edited",
   "AllowEdit 1; editable 1; setIndex 1; edit 1; forget; key 40; key 38; outcome",
   "KeyDown(40 0) KeyDown(38 0) | 1: 1"},
  // The wheel.
  {"a wheel without a range only paints", "wheel -120; wheel 120; events", "**"},
  {"a wheel of an unknown function only paints",
   "fill 40; WheelFunction 2; forget; wheel -120; outcome", "* | -1: "},
  {"the wheel scrolls by lines and snaps to the ends",
   "fill 40; WheelScrollLines 1; setTop 0; forget; wheel -360; events; bar; setTop 30; wheel -120;"
   "bar; setTop 3; wheel -30; bar; setTop 3; wheel 60; bar; setTop 0; forget; wheel 120; events;"
   "bar; WheelScrollLines 5; setTop 24; wheel -120; bar; setTop 25; wheel -120; bar;"
   "WheelScrollLines 3; setTop 10; wheel 240; bar; setTop 3; wheel 120; bar; setTop 4; wheel 120;"
   "bar; setTop 10; WheelScrollLines 40; wheel -120; bar; setTop 10; WheelScrollLines -2;"
   "wheel -120; bar", "* Scroll Scroll* / 1 / 30 / 30 / 30 / * / 0 / 29 / 30 / 7 / 0 / 1 / 30 / 8"},
  {"the wheel makes the next enabled row current",
   "WheelFunction 1; disable 0 1; forget; wheel -120; outcome; fill 5; setIndex 1; forget;"
   "wheel -240; outcome; setIndex 2; forget; wheel -240; outcome; forget; wheel -120; outcome;"
   "setIndex 1; forget; wheel 30; outcome; setIndex 3; forget; wheel 360; outcome; setIndex 0;"
   "forget; wheel 120; outcome",
   "ListIndex Scroll* | 2: 2 / ListIndex Scroll* | 2: 2 / ListIndex Scroll* | 4: 4 / ListIndex* | "
   "4: 4 / ListIndex Scroll* | 4: 4 / ListIndex Scroll* | 2: 2 / ListIndex* | 0: 0"},
  {"the wheel over disabled rows",
   "WheelFunction 1; setIndex 3; disable 4; forget; wheel -120; outcome; setIndex 2; disable 3;"
   "forget; wheel -120; outcome; fill 5; setIndex 3; disable 1 2; forget; wheel 120; outcome;"
   "fill 5; disable 0; forget; wheel 120; outcome; setIndex 1; forget; wheel 120; outcome",
   "(4) Scroll* | 3: 3 / * | 2: 2 / ListIndex Scroll* | 0: 0 / (0) Scroll* | -1:  / * | 1: 1"},
  {"a wheel that overflows",
   "fill 40; WheelScrollLines 2147483647; setTop 3; wheel -120; reports; suppressed",
   "6 Wheel1_WheelScroll / yes"},
  {"the wheel keeps the current row in view",
   "WheelFunction 1; fill 40; setIndex 9; forget; wheel -120; outcome; wheel 120; outcome",
   "ListIndex TopIndex Scroll* | 10: 10, top 10 / ListIndex TopIndex Scroll* | 9: 9, top 9"},
  {"a message in the middle of another",
   "fill 40; post wheel -120; wheel -120; outcome;"
   "WheelFunction 1; setIndex 20; disable 21 22; forget; post wheel -120; wheel -120; outcome;"
   "post clear; wheel -120; now",
   "* Scroll Scroll** Scroll Scroll* | -1: , top 2 / "
   "ListIndex Scroll* ListIndex* Scroll* | 23: 23, top 20 / 0: , top 20"},
  // The edit box.
  {"the press of the current row opens the box",
   "AllowEdit 1; editable 2 4; click 2; editing; click 2; editing; click 3; editing; double 4;"
   "editing", "closed / 2 (1, 29) 197x14 / closed / 4 (1, 55) 197x14"},
  {"editing has to be allowed in three places",
   "editable 3; edit 3; editing; AllowEdit 1; disable 3; edit 3; editing; edit 2; editing",
   "closed / closed / closed"},
  {"Return writes the text into the current item",
   "AllowEdit 1; editable 2 4; click 2; click 2; type a text far too wide for the list; width;"
   "character 27; character 10; character 97; character 9; forget; character 13; outcome; editing;"
   "width; character 13; edit 4; setIndex 1; type new; character 13; texts",
   "11 / kept / kept / kept / kept / taken / * | 2: a text far too wide for the list / closed / "
   "11 / kept / taken / <0 new a text far too wide for the list 3 4>"},
  {"an edit that nobody allows to end or to begin",
   "AllowEdit 1; editable 0 1; edit 40; edit -1; edit 'x'; reports; editing;"
   "setIndex 1; edit 1; select 0; character 13; reports; silent; character 13; editing",
   "9 SetEdit, 9 SetEdit, 13 SetEdit / closed / kept / 9 Text1_KeyPress / taken / closed"},
  {"the box has the place of the style and of the last press",
   "fill 1; BorderVisible 0; AllowEdit 1; editable 0; Style 3; edit 0; editing; Style 0; edit 0;"
   "editing; pressAt 50 0; Style 1; edit 0; editing; releaseAt 50 50; IconW 20; IndentLeft 5;"
   "MinHeight 20; Style 2; edit 0; editing",
   "0 (37, -10) 161x14 / 0 (1, -10) 197x14 / 0 (18, 3) 180x14 / 0 (27, 29) 171x14"},
  {"a press beside the row drops the text",
   "AllowEdit 1; fill 40; editable 2; click 2; click 2; click 5; editing; click 2; click 2;"
   "pressAt 50 2; releaseAt 50 2; editing; click 2; click 2; step 0 1; editing",
   "closed / closed / closed"},
  {"nothing else closes the box",
   "AllowEdit 1; fill 40; editable 2; click 2; click 2; pressAt 50 40 2; releaseAt 50 40 2; leave;"
   "key 27; key 40; key 34; drag 2; drag 3; setIndex 30; setTop 30; redraw; editing",
   "2 (1, 29) 197x14"},
  {"a scroll drops the text", "AllowEdit 1; fill 40; editable 2; edit 2; wheel 120; editing;"
   "wheel -120; editing", "2 (1, -10) 197x14 / closed"},
};
// clang-format on

using InputScenarios = ListScript;
TEST_P(InputScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Input, InputScenarios, testing::ValuesIn(scenarios), nameOf);

using Input = ListScript;

TEST_F(Input, TheEditBoxLooksLikeItsRow) {
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

TEST_F(Input, HostsMayComeAndGoInAnEvent) {
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
  // Messages arrive from EnableWheel with a window to DisableWheel or the end.
  const auto turns = [&] { return static_cast<int>(place.turnWheel(120)); };
  std::string arrives;
  wheel->EnableWheel(), arrives += textOf(turns());
  wheel->hWndCapture(1), wheel->EnableWheel(), arrives += textOf(turns());
  wheel->DisableWheel(), arrives += textOf(turns());
  wheel->EnableWheel(), wheel->hWndCapture(0), wheel.reset(), arrives += textOf(turns());
  EXPECT_EQ(arrives, "0100");
}

}  // namespace
}  // namespace norvane
