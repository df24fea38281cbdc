// What users and hosts do to a list widget, as scripts.

#include "../Scenario.h"
#include "WidgetTest.h"

namespace norvane {
namespace {

class WidgetScenario : public WidgetTest, public testing::WithParamInterface<Scenario> {
 protected:
  void check(const std::string& setUp) {
    EXPECT_EQ(run(setUp + GetParam().script), GetParam().expected);
  }
};

// clang-format off
const Scenario ofAList[] = {
  {"clicks with all buttons and keys",
   "fill 40; shiftClick 4; ctrlClick 3; button 2; button 4; button 8; press 3; release 3 300; heard;"
   "Style 1; double 5; heard; state",
   "MouseDown 1 1, MouseUp 1, Click, MouseDown 1 2, MouseUp 1, Click, MouseDown 2 0, MouseUp 2, "
   "MouseDown 4 0, MouseUp 4, MouseDown 1 0, MouseUp 1 / "
   "MouseDown 1 0, MouseUp 1, Click, ItemCheck 5, DblClick, MouseUp 1 / 5 (5)"},
  {"a text is typed into the box",
   "AllowEdit 1; fill 40; click 2; click 2; editing; focus; forget; type Zoe; key Esc; key Down;"
   "editing; key Return; focus; heard; text 2", "2 / edit / Zoe / list / - / Zoe"},
  {"only a press on the rows closes the box without saving",
   "AllowEdit 1; fill 40; click 2; click 2; type gone; leave; editing; press 4; editing; text 2",
   "gone / closed / 2"},
  {"the focus is of the whole list",
   "AllowEdit 1; fill 40; select 2; hasFocus; leave; hasFocus; enter; hasFocus; edit 2; hasFocus",
   "yes / no / yes / no"},
  {"keys have their codes",
   "key Shift+Down; type a; key Alt+F2; key !; key Num+7; key +; key Num++; key ?; key F24; key Del;"
   "key Media Play; repeat; heard",
   "KeyDown 16 1, KeyDown 40 1, KeyUp 40, KeyUp 16, KeyDown 65 0, KeyPress 97, KeyUp 65, "
   "KeyDown 18 4, KeyDown 113 4, KeyUp 113, KeyUp 18, "
   "KeyDown 49 0, KeyPress 33, KeyUp 49, KeyDown 103 0, KeyPress 55, KeyUp 103, "
   "KeyDown 187 0, KeyPress 43, KeyUp 187, KeyDown 107 0, KeyPress 43, KeyUp 107, "
   "KeyDown 191 0, KeyPress 63, KeyUp 191, KeyDown 135 0, KeyUp 135, KeyDown 46 0, KeyUp 46"},
  {"a handler swallows a key, and Tab is the form's",
   "fill 40; swallowKeys; type a; key Tab; heard; focus", "KeyDown 65 0, KeyUp 65 / other"},
  {"a wheel scrolls by whole notches, and by parts where asked to",
   "fill 40; wheel -30; wheel -30; wheel -30; top; wheel -30; top; wheel -110; wheel 20; top;"
   "wheel -240; top; passesFineWheel 1; wheel -120; wheel 0; top; wheel 30; top",
   "0 / 1 / 1 / 2 / 3 / 28"},
  {"the edit box composes and undoes",
   "AllowEdit 1; fill 3; edit 2; editing; compose 你好; editing; key Ctrl+Z; editing", "2 / 你好 / 2"},
  {"a handler empties the list during a drag of the thumb",
   "fill 40; on Scroll clear; pressAt 190 25; dragTo 190 60; heard; dragTo 190 70;"
   "releaseAt 190 70; add new; texts", "Scroll / new"},
  {"a button of the bar ends its repeats though the widget is disabled",
   "fill 40; on Scroll enabled 0; pressAt 190 194; releaseAt 190 194; enabled 1; rest; rest; rest;"
   "rest; top", "1"},
  {"a drag scrolls by a real timer", "fill 40; AllowItemMoving 1; press 1; dragTo 60 230; reach 28", ""},
  {"a sideways wheel moves the horizontal bar",
   "fill 40; add mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm; sideways -120; left;"
   "ScrollBars 3; fit; sideways -60; left; sideways -60; left; sideways 1200; left; top",
   "0 / 24 / 48 / 0 / 0"},
  {"a touch scrolls by rows and to the side",
   "fill 40; touch 0 165; top; touch 0 100000; top; add mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm;"
   "ScrollBars 3; fit; touch 30 0; left; top; mirror; touch 30 0; left", "10 / 28 / 30 / 0 / 282"},
};

/// In both layouts.
const Scenario ofItsPlaces[] = {
  {"rows and bars",
   "fill 40; scroll 3; rect 3; rect 14; rect 0; rect 40; at 30 100; at 175 100; at 190 100; at 60 2;"
   "at 60 199",
   "1 3 181x16 / 1 179 181x16 / 1 -45 181x16 / none / 9 / 9 / -1 / 2 / -1"},
  {"clicks on rows, a check box and a button of the bar",
   "fill 40; scroll 3; click 2; state; click 4 175; state; Style 1; click 5 9; checked 8;"
   "click 11 190; top", "5 (5) / 7 (7) / yes / 4"},
  {"the edit box of the list alone covers the bar",
   "AllowEdit 1; fill 40; click 0; edit 0; box; resize 260 200; box; mirror; box",
   "1 3 197x15 / 1 3 197x15 / 1 3 197x15"},
  {"with the keys the edit box is over its row",
   "AllowEdit 1; fill 40; keys; select 3; key F2; box; key Esc; select 0; key F2; box;"
   "resize 150 100; box", "2 51 179x16 / 2 3 179x16 / 2 3 129x16"},
  {"tips of cut texts",
   "resize 100 100; add short; add A text with <b>& more than fits into a row;"
   "add Another text that is long|right=9; add left column|right=right column; add ; tip 0; tip 1;"
   "tip 2; tip 3; tip 4; tip 5; showsCutTexts 0; tip 1; showsCutTexts 1; toolTip the host's; tip 1; toolTip ;"
   "resize 600 100; tip 1",
   "- / A text with &lt;b&gt; more than fits into a row / Another text that is long\t9 / "
   "left column\tright column / - / - / - / the host's / -"},
  {"a text is dropped between rows",
   "fill 3; drops; hold 24; mark; dragOff; mark; drop 24; drop 90; drop 1; heard; mark",
   "1 19 198x2 / 1 19 198x2 / - / dropped text 1, dropped text 3, dropped text 0 / -"},
  {"files and texts alone are taken, while the list is enabled",
   "fill 3; drops; holdColour 24; enabled 0; hold 24", "refused / refused"},
  {"the list scrolls while something is held at an edge",
   "fill 40; drops; hold 195; hold 100; rest; hold 195; dragOff; rest; top; hold 195; reach 28;"
   "hold 3; reach 0",
   "1 195 181x2 / 1 99 181x2 / 1 195 181x2 / 0 / 1 195 181x2 / 1 3 181x2"},
  {"rows are dragged out as text",
   "MultiSelect 1; fill 5; drops; select 1; shiftClick 2; click 1; state; shiftClick 2;"
   "dragOut 1 4; state; pressed; dragOut 4 1; state; pressed",
   "1 (1) / 1+2 / 2 (1 2) / no / 4 / 4 (4) / no"},
};

const Scenario ofItsSignals[] = {
  {"the selection", "select 3; heard; select 3; heard; click 3; heard; click 4; heard; shiftClick 6;"
   "heard; key Down; heard; deselect; heard; deselect; heard; select 7; heard; remove 7; heard;"
   "remove 7; heard",
   "current 3, selection / - / - / current 4, selection / current 6, selection / "
   "current 7, selection / selection / - / selection / selection / -"},
  {"a slot may prevent a check",
   "preventChecks 1; click 3 9; heard; preventChecks 0; click 3 9; heard",
   "current 3, selection / checked 3 1"},
  {"they wait for the end of the event",
   "press 2; forget; hearEvents; on MouseUp select 18+select 19+scroll 3; release 2; heard",
   "MouseUp 1, Click, current 19, selection, scrolled"},
  {"only the user's checks", "select 4; shiftClick 6; forget; click 6 9; heard; check 6 0; heard",
   "selection, checked 6 1 / -"},
  {"scrolling that moves something",
   "scroll 5; heard; scrollTo 6; heard; scrollTo 17; heard; scrollTo -1; heard; clear; heard",
   "scrolled / - / scrolled / - / current 0, scrolled"},
  {"a command and what is refused",
   "select 7; forget; key Return; heard; disable 7; key Return; heard; select 99; heard;"
   "load no such file; heard; double 4; heard",
   "activated 7 / - / wrong 99 / inputFailed / current 4, selection, checked 4 1, activated 4"},
  {"an edit, a move and menus",
   "AllowEdit 1; click 2; click 2; forget; type Zoe; key Return; heard; menu 4; heard; menuKey;"
   "heard; AllowItemMoving 1; press 1; forget; drag 4; release 4; heard; text 3; clear; forget;"
   "menu 4; heard",
   "edited 2 Zoe / menu 4 60,76 / menu 2 1,50 / current 3, moved 1 3 / 1 / menu -1 60,76"},
};

/// With the keys that users know from other lists.
const Scenario withKeys[] = {
  {"page keys go to the edge, then by pages",
   "fill 40; disable 0; disable 39; select 5; forget; key PgDown; heard; state; top; key PgDown;"
   "state; top; key PgUp; state; top; key PgUp; state; top",
   "KeyDown 0 0, KeyUp 34 / 11 (11) / 0 / 22 (22) / 11 / 11 (11) / 11 / 1 (1) / 1"},
  {"page keys from a row out of view", "fill 40; select 5; scroll 20; key PgDown; state; top;"
   "select 5; scroll 20; key PgUp; state", "16 (16) / 16 / 0 (0)"},
  {"Home and End go to the last enabled rows",
   "fill 40; disable 0; disable 39; select 5; key End; state; top; key PgDown; state; key PgUp;"
   "state; top; key Home; state; key Up; state; key Down; state; top",
   "38 (38) / 27 / 38 (38) / 27 (27) / 27 / 1 (1) / 1 (1) / 2 (2) / 1"},
  {"Shift extends the selection",
   "fill 9; disable 4; select 3; key Shift+Down; state; MultiSelect 1; select 3; key Shift+Down;"
   "state; key Shift+End; state; key Shift+Home; state; shiftClick 2;"
   "state; key Shift+Up; state; key Ctrl+A; state; key Ctrl+Space; state; key Down; state",
   "5 (5) / 5 (3 5) / 8 (3 5 6 7 8) / 0 (0 1 2 3) / 2 (2 3) / 1 (1 2 3) / 1 (0 1 2 3 5 6 7 8) / "
   "1 (0 2 3 5 6 7 8) / 2 (2)"},
  {"Space checks unless a slot prevents it",
   "fill 3; hearSignals; select 1; key Space; checked 1; preventChecks 1; key Space; checked 1",
   "yes / yes"},
  {"F2 edits, Escape gives up and Return writes",
   "AllowEdit 1; fill 30; select 20; key F2; type gone; key Esc; editing; focus; text 20;"
   "select 0; key F2; type first; key Return; text 0; key Down; state",
   "closed / list / 20 / first / 1 (1)"},
  {"what was edited is written when the user goes elsewhere",
   "AllowEdit 1; fill 30; select 2; key F2; popUp; editing; type left; leave; editing; text 2;"
   "enter; key F2; type clicked; click 5; editing; text 2; select 2; key F2; type turned;"
   "wheel -120; editing; text 2", "2 / closed / left / closed / clicked / closed / turned"},
  {"typing finds the next row with that beginning",
   "add &Alpha; add beta; add Berlin; add bern|right=9; add Ödipus; add a && b; disable 1;"
   "select 0; typingInterval 100000; type BERN; state; typingInterval -1; compose öd; state; type b; state;"
   "type z; state; key Space; checked 2", "3 (3) / 4 (4) / 2 (2) / 2 (2) / yes"},
  {"a letter repeated goes on, a blank belongs to the word",
   "add an ape; add ant; add bee; add and; add a fly; typingInterval 100000; type a f; state;"
   "checked 4; typingInterval -1; type a; state; typingInterval 100000; type a; state; type a;"
   "state",
   "4 (4) / no / 0 (0) / 1 (1) / 3 (3)"},
  {"a blank alone begins no word", "Style 0; add a; add b; select 0; typingInterval 100000;"
   "key Space; type b; state", "1 (1)"},
  {"Ctrl and C copy what is read in the selected rows",
   "MultiSelect 1; add &one|right=1; add two; add three; select 1; key Shift+Home; key Ctrl+C;"
   "clipboard", "one\t1\ntwo"},
  {"a click moves nothing, a drag does",
   "fill 5; AllowItemMoving 1; click 2; texts; press 2; drag 0; release 0; texts",
   "0 1 2 3 4 / 2 0 1 3 4"},
};
// clang-format on

using OfAList = WidgetScenario;
TEST_P(OfAList, GivesItsOutputs) { check("hearEvents;"); }
INSTANTIATE_TEST_SUITE_P(Widget, OfAList, testing::ValuesIn(ofAList), nameOf);

using OfItsPlaces = WidgetScenario;
TEST_P(OfItsPlaces, GivesItsOutputs) { check(""); }
TEST_P(OfItsPlaces, GivesThemMirrored) { check("mirror;"); }
INSTANTIATE_TEST_SUITE_P(Widget, OfItsPlaces, testing::ValuesIn(ofItsPlaces), nameOf);

using OfItsSignals = WidgetScenario;
TEST_P(OfItsSignals, GivesItsOutputs) { check("Style 1; MultiSelect 1; fill 20; hearSignals;"); }
INSTANTIATE_TEST_SUITE_P(Widget, OfItsSignals, testing::ValuesIn(ofItsSignals), nameOf);

using WithKeys = WidgetScenario;
TEST_P(WithKeys, GivesItsOutputs) { check("Style 1; keys; hearEvents;"); }
INSTANTIATE_TEST_SUITE_P(Widget, WithKeys, testing::ValuesIn(withKeys), nameOf);

}  // namespace
}  // namespace norvane
