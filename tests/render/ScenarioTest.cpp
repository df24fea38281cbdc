#include "../ListScript.h"

namespace norvane {
namespace {

// The window has 200 by 133 pixels, with rows of 13 pixels from 3 on. A character is 7 wide.
// clang-format off
const Scenario scenarios[] = {
  // Which rows are painted.
  {"whole rows only",
   "resize 200 29; visible; resize 200 28; rows; visible; resize 200 15; rows; visible",
   "2 / <0@3> / 1 / <> / 0"},
  {"row heights are rounded for counting only",
   "fill 3; MinHeight 16.5; rows; visible; MinHeight 17.5; visible", "<0@5 1@21 2@38> / 8 / 7"},
  {"the top index keeps the last row in the window",
   "resize 200 55; fill 40; setTop 5; rows; setTop 1000; bar; setTop -4; top; setTop 2147483647;"
   "reports", "<5@3 6@16 7@29 8@42> / 36 / 0 / 6 TopIndex"},
  {"a short list may have a negative top index and is still shown",
   "resize 200 100; fill 2; setTop 0; top; rows", "-5 / <0@3 1@16>"},
  {"the top index of a list that has grown is repaired",
   "fill 2; setTop 0; redraw; top; many 38; redraw; top; setIndex 3; top", "-8 / 0 / 0"},
  {"a top index past the end is repaired",
   "fill 40; setTop 30; AutoRedraw 0; removeFirst 38; AutoRedraw 1; rows; top",
   "<38@3 39@16> / 0"},
  {"a new size is fitted and painted twice and measures nothing",
   "fill 20; add '0'; width; forget; resize 200 100; events; width; range", "22 / ** / 22 / 14"},
  {"rows above the surface are passed over",
   "fill 10000; IndentTop -1690; rows; loop; IndentTop -1e9; rows; loop",
   "<128@-26 129@-13 130@0 131@13 132@26 133@39 134@52 135@65 136@78 137@91 138@104 139@117> / "
   "140 / <9999@-1000000000> / 10000"},
  // What is painted of a row.
  {"each style has its picture column",
   "clear; add 'ab'; setIcons 0 flag chosen; select 0; check 0; IconSelect 0; setBackColor 0 4386;"
   "IconW 20; IconH 9; Style 2; face DrawTextA; DistPicText 10; IndentLeft -1; Style 3; seen",
   "<DrawTextA \"ab\" (25, 3)-(200, 133) 64> / <Line 38 (45, 3)-(200, 16) #316AC5, "
   "Line 38 (0, 3)-(45, 16) #221100, PaintPicture 13x13 \"checked box\" at (-1, 3), "
   "PaintPicture 32x24 \"chosen\" at (15, 5) as 20x9, ForeColor #FFFFFF, "
   "DrawTextA \"ab\" (45, 3)-(200, 133) 64>"},
  // With pictures the box stays and the text moves.
  {"the text alone is selected, by its alignment",
   "clear; add 'ab'; FullRowSelect 0; ShowFocusRect 1; enter; setBackColor 0 4386; select 0; seen;"
   "Style 3; IconSelect 0; setAlignment 0 1; face Line 38 (93|DrawTextA; setAlignment 0 2;"
   "face Line 38 (183",
   "<Line 38 (14, 3)-(200, 16) #221100, Line 38 (0, 3)-(15, 16) #316AC5, "
   "DrawFocusRect (0, 3)-(14, 16), ForeColor #FFFFFF, DrawTextA \"ab\" (3, 3)-(200, 133) 64> / "
   "<Line 38 (93, 3)-(107, 16) #316AC5, DrawTextA \"ab\" (112, 3)-(200, 133) 64> / "
   "<Line 38 (183, 3)-(197, 16) #316AC5>"},
  {"colours of the item come first",
   "clear; add 'ab' 'own' 'ab' 'own'; ColorStyle 99; ValueColor 4386; ForeColor 170;"
   "BackColor -2147483643; setForeColor 1 1; setBackColor 1 2; setSelectColors 3 3 4; select 2 3;"
   "seen",
   "<Line 38 (0, 3)-(200, 16) system 5, ForeColor #AA0000, DrawTextA \"ab\" (3, 3)-(200, 133) 64, "
   "Line 38 (0, 16)-(200, 29) #020000, ForeColor #010000, DrawTextA \"own\" (3, 16)-(200, 133) 64, "
   "Line 38 (0, 29)-(200, 42) #221100, ForeColor #FFFFFF, DrawTextA \"ab\" (3, 29)-(200, 133) 64, "
   "Line 38 (0, 42)-(200, 55) #040000, ForeColor #030000, "
   "DrawTextA \"own\" (3, 42)-(200, 133) 64>"},
  {"a disabled row is never shown as selected",
   "clear; add 'ab'; setIcons 0 flag chosen; setDisabledColor 0 4386; disable 0; select 0; Style 3;"
   "seen",
   "<Line 38 (0, 3)-(200, 16) #221100, PaintPicture 13x13 \"disabled check box\" at (3, 3), "
   "PaintPicture 32x24 \"flag\" at (19, 1.5) as 16x16, ForeColor system 17, "
   "DrawTextA \"ab\" (37, 3)-(200, 133) 64>"},
  {"a row is measured with the font of the row above, the first one with that of the last",
   "AutoRedraw 0; clear; add 'abcd' 'abcd'; setAlignment 0 2; setAlignment 1 2;"
   "setFont 0 1 0 1; redraw; face DrawTextA; setFont 1 1 1 0; redraw; face Font; redraw;"
   "face DrawTextA",
   "<DrawTextA \"abcd\" (169, 3)-(200, 133) 64, DrawTextA \"abcd\" (165, 16)-(200, 133) 64> / "
   "<FontBold on, FontItalic off, FontUnderline on, FontBold on, FontItalic on, "
   "FontUnderline off> / <DrawTextA \"abcd\" (165, 3)-(200, 133) 64, "
   "DrawTextA \"abcd\" (165, 16)-(200, 133) 64>"},
  // Row 0: below. Row 1: above and below. Row 2, the last: above.
  {"grid lines are above and below rows",
   "fill 3; GridLines 1; GridLineColor 255; face Line 6; resize 200 42; face Line 6 (0, 29);"
   "many 40; setTop 5; face Line 6 (0, 3)",
   "<Line 6 (0, 16)-(200, 16) #FF0000, Line 6 (0, 16)-(200, 16) #FF0000, "
   "Line 6 (0, 29)-(200, 29) #FF0000, Line 6 (0, 29)-(200, 29) #FF0000> / "
   "<Line 6 (0, 29)-(200, 29) #FF0000, Line 6 (0, 29)-(200, 29) #FF0000> / <>"},
  {"a text in two columns",
   "clear; add 'Wörter|RIGHT=12|right=3&' '|right=' 'none|right'; face DrawTextA",
   "<DrawTextA \"Wörter\" (3, 3)-(200, 133) 64, DrawTextA \"12|right=3&\" (3, 3)-(197, 133) 2, "
   "DrawTextA \"\" (3, 16)-(200, 133) 64, DrawTextA \"\" (3, 16)-(197, 133) 2, "
   "DrawTextA \"none|right\" (3, 29)-(200, 133) 64>"},
  // The content is 284 pixels wide with the padding, plus the width of the vertical bar. The right
  // text is at 301 - 17 - 10 - 14 - 3, the one in the middle at (301 - 17 - 14) / 2 - 10.
  {"bars take their width and a scroll its distance, but not from the selection",
   "resize 200 100; ScrollBars 3; FullRowSelect 0; AutoRedraw 0; clear;"
   "add 'ab' 'ab' 'a|right=b' 'wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww' '' '' '' '';"
   "setAlignment 0 2; setAlignment 1 1; select 0 1; AutoRedraw -1; measure; step 1 2 10; redraw;"
   "face DrawTextA \"a|DrawTextA \"b|Line 38 (166|Line 38 (84",
   "<Line 38 (166, 3)-(180, 16) #316AC5, DrawTextA \"ab\" (257, 3)-(301, 100) 64, "
   "Line 38 (84.5, 16)-(98.5, 29) #316AC5, DrawTextA \"ab\" (125, 16)-(301, 100) 64, "
   "DrawTextA \"a\" (-7, 29)-(284, 100) 64, DrawTextA \"b\" (-7, 29)-(281, 100) 2>"},
  // The bars and the frame.
  {"the content is as wide as the widest item and what its style puts beside it",
   "wide 3 4; AutoRedraw 0; Style 0; measure; width; Style 1; measure; width; Style 2; IconW 16.5;"
   "measure; width; Style 3; IconW 16; measure; width; Style 7; measure; width",
   "32 / 45 / 48 / 61 / 28"},
  {"each item added widens the content by the padding again",
   "clear; measure; ScrollBars 3; resize 200 1000; many 48; bars; add 'i'; bars;"
   "add 'mmmmmmmmmmmmmmmmmmmmmmmmmmmmmm'; width; remove 49; width; bars",
   "off 0 at 0 (0 0 17x0), off 0 at 0 (0 0 0x17) / off 0 at 0 (0 0 17x0), "
   "on 3 at 0 (1 982 198x17) / 214 / 18 / off 0 at 0 (0 0 17x0), off 0 at 0 (1 982 0x17)"},
  {"a horizontal bar alone", "resize 200 100; ScrollBars 1; wide 20 40; bars",
   "off 0 at 0 (0 0 17x0), on 84 at 0 (1 82 198x17)"},
  // The horizontal range includes the width of the vertical bar even without a horizontal bar.
  {"a vertical bar alone", "resize 200 100; ScrollBars 2; wide 20 40; bars",
   "on 13 at 0 (182 1 17x98), off 17 at 0 (0 0 0x17)"},
  {"both bars only if needed",
   "resize 200 100; ScrollBars 3; wide 7 28; bars; wide 7 29; bars; ScrollBars 0; bars; measure;"
   "bars; ScrollBars 3; resize 200 10; range",
   "off 0 at 0 (0 0 17x0), off 0 at 0 (0 0 0x17) / on 1 at 0 (182 1 17x81), "
   "on 24 at 0 (1 82 181x17) / on 1 at 0 (182 1 17x81), on 24 at 0 (1 82 181x17) / "
   "off 0 at 0 (182 1 17x0), off 0 at 0 (1 82 0x17) / 7"},
  {"the bars lie inside the frame and the corner is the list's",
   "resize 200 100; ScrollBars 3; BorderVisible 0; wide 20 40; bars; BorderVisible 1; measure;"
   "bars; face Line 38 (182; resize 10 5; bars",
   "on 14 at 0 (183 0 17x83), on 101 at 0 (0 83 183x17) / on 14 at 0 (182 1 17x81), "
   "on 101 at 0 (1 82 181x17) / <Line 38 (182, 82)-(200, 100) #FFFFFF> / on 20 at 0 (-8 1 17x0), "
   "on 291 at 0 (1 -13 0x17)"},
  {"a shrinking horizontal range goes back to the start",
   "ScrollBars 1; wide 2 40; step 1 2 5; measure;"
   "add 'mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm'; bars; remove 2; bars",
   "off 0 at 0 (0 0 17x0), on 154 at 5 (1 115 198x17) / off 0 at 0 (0 0 17x0), "
   "on 84 at 0 (1 115 198x17)"},
  {"the vertical value is kept whatever the range and lost when hidden",
   "resize 200 100; ScrollBars 3; wide 20 40; step 0 2 14; remove 1 1 1 1; bars; top; step 1 2 5;"
   "wide 7 1; bars", "on 10 at 14 (182 1 17x81), on 101 at 0 (1 82 181x17) / 14"
   " / off 0 at 0 (182 1 17x0), off 0 at 0 (1 82 0x17)"},
  {"the frame has the colour of the family, or else the host's or the one before",
   "BorderColor 255; ColorStyle 2; picture (0, 0) 1x; ColorStyle 1; picture (0, 0) 1x;"
   "ColorStyle 99; picture (0, 0) 1x; silent; ColorStyle 50; picture (0, 0) 1x",
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

using RenderScenarios = ListScript;
TEST_P(RenderScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Render, RenderScenarios, testing::ValuesIn(scenarios), nameOf);

}  // namespace
}  // namespace norvane
