#include "../ListScript.h"

#include <stdexcept>

namespace norvane {
namespace {

// Of 200 by 133 pixels, with rows of 13 pixels from 3 on.
// clang-format off
const Scenario scenarios[] = {
  {"each style has its picture column",
   "clear; add 'ab'; setIcons 0 flag chosen; select 0; check 0; IconSelect 0; setBackColor 0 4386;"
   "IconW 20; IconH 9; Style 2; face DrawTextA; DistPicText 10; IndentLeft -1; Style 3; seen",
   R"(<DrawTextA "ab" (25, 3)-(200, 133) 64> / <Line 38 (45, 3)-(200, 16) #316AC5, )"
   R"(Line 38 (0, 3)-(45, 16) #221100, PaintPicture 13x13 "checked box" at (-1, 3), )"
   R"(PaintPicture 32x24 "chosen" at (15, 5) as 20x9, ForeColor #FFFFFF, )"
   R"(DrawTextA "ab" (45, 3)-(200, 133) 64>)"},
  // With pictures the box stays and the text moves.
  {"the text alone is selected, by its alignment",
   "clear; add 'ab'; FullRowSelect 0; ShowFocusRect 1; enter; setBackColor 0 4386; select 0; seen;"
   "Style 3; IconSelect 0; setAlignment 0 1; face Line 38 (93|DrawTextA; setAlignment 0 2;"
   "face Line 38 (183",
   R"(<Line 38 (14, 3)-(200, 16) #221100, Line 38 (0, 3)-(15, 16) #316AC5, )"
   R"(DrawFocusRect (0, 3)-(14, 16), ForeColor #FFFFFF, DrawTextA "ab" (3, 3)-(200, 133) 64> / )"
   R"(<Line 38 (93, 3)-(107, 16) #316AC5, DrawTextA "ab" (112, 3)-(200, 133) 64> / )"
   R"(<Line 38 (183, 3)-(197, 16) #316AC5>)"},
  {"colours of the item come first",
   "clear; add 'ab' 'own' 'ab' 'own'; ColorStyle 99; ValueColor 4386; ForeColor 170; BackColor -2147483643;"
   "setForeColor 1 1; setBackColor 1 2; setSelectColors 3 3 4; select 2 3; seen",
   R"(<Line 38 (0, 3)-(200, 16) system 5, ForeColor #AA0000, DrawTextA "ab" (3, 3)-(200, 133) 64, )"
   R"(Line 38 (0, 16)-(200, 29) #020000, ForeColor #010000, DrawTextA "own" (3, 16)-(200, 133) 64, )"
   R"(Line 38 (0, 29)-(200, 42) #221100, ForeColor #FFFFFF, DrawTextA "ab" (3, 29)-(200, 133) 64, )"
   R"(Line 38 (0, 42)-(200, 55) #040000, ForeColor #030000, DrawTextA "own" (3, 42)-(200, 133) 64>)"},
  {"a disabled row is never shown as selected",
   "clear; add 'ab'; setIcons 0 flag chosen; setDisabledColor 0 4386; disable 0; select 0; Style 3; seen",
   R"(<Line 38 (0, 3)-(200, 16) #221100, PaintPicture 13x13 "disabled check box" at (3, 3), )"
   R"(PaintPicture 32x24 "flag" at (19, 1.5) as 16x16, ForeColor system 17, )"
   R"(DrawTextA "ab" (37, 3)-(200, 133) 64>)"},
  {"a row is measured with the font of the row above, the first one with that of the last",
   "AutoRedraw 0; clear; add 'abcd' 'abcd'; setAlignment 0 2; setAlignment 1 2; setBold 0 1; setUnderline 0 1;"
   "redraw; face DrawTextA; setItalic 1 1; setBold 1 1; redraw; face Font; redraw; face DrawTextA",
   R"(<DrawTextA "abcd" (169, 3)-(200, 133) 64, DrawTextA "abcd" (165, 16)-(200, 133) 64> / )"
   "<FontBold on, FontItalic off, FontUnderline on, FontBold on, FontItalic on, FontUnderline off> / "
   R"(<DrawTextA "abcd" (165, 3)-(200, 133) 64, DrawTextA "abcd" (165, 16)-(200, 133) 64>)"},
  // Row 0: below. Row 1: above and below. Row 2, the last: above. After the line above, the line below
  // is tested from the top of the row.
  {"grid lines are above and below rows",
   "fill 3; GridLines 1; GridLineColor 255; resize 200 42; face Line 6; resize 200 133; face Line 6;"
   "many 40; setTop 5; face Line 6 (0, 3)",
   "<Line 6 (0, 16)-(200, 16) #FF0000, Line 6 (0, 16)-(200, 16) #FF0000, "
   "Line 6 (0, 29)-(200, 29) #FF0000, Line 6 (0, 29)-(200, 29) #FF0000> / "
   "<Line 6 (0, 16)-(200, 16) #FF0000, Line 6 (0, 16)-(200, 16) #FF0000, "
   "Line 6 (0, 29)-(200, 29) #FF0000, Line 6 (0, 29)-(200, 29) #FF0000> / <>"},
  {"a text in two columns",
   "clear; add 'Wörter|RIGHT=12|right=3&' '|right=' 'none|right'; face DrawTextA",
   R"(<DrawTextA "Wörter" (3, 3)-(200, 133) 64, DrawTextA "12|right=3&" (3, 3)-(197, 133) 2, )"
   R"(DrawTextA "" (3, 16)-(200, 133) 64, DrawTextA "" (3, 16)-(197, 133) 2, )"
   R"(DrawTextA "none|right" (3, 29)-(200, 133) 64>)"},
  // The content is 284 pixels wide with the padding, plus the width of the vertical bar. The right
  // text is at 301 - 17 - 10 - 14 - 3, the one in the middle at (301 - 17 - 14) / 2 - 10.
  {"bars take their width and a scroll its distance, but not from the selection",
   "resize 200 100; ScrollBars 3; FullRowSelect 0; AutoRedraw 0; clear;"
   "add 'ab' 'ab' 'a|right=b' 'wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww' '' '' '' ''; setAlignment 0 2;"
   "setAlignment 1 1; select 0 1; AutoRedraw -1; measure; step 1 2 10; redraw;"
   "face DrawTextA \"a|DrawTextA \"b|Line 38 (166|Line 38 (84",
   R"(<Line 38 (166, 3)-(180, 16) #316AC5, DrawTextA "ab" (257, 3)-(301, 100) 64, )"
   R"(Line 38 (84.5, 16)-(98.5, 29) #316AC5, DrawTextA "ab" (125, 16)-(301, 100) 64, )"
   R"(DrawTextA "a" (-7, 29)-(284, 100) 64, DrawTextA "b" (-7, 29)-(281, 100) 2>)"},
};
// clang-format on

using RowScenarios = ListScript;
TEST_P(RowScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Render, RowScenarios, testing::ValuesIn(scenarios), nameOf);

using Rows = ListTest;

TEST_F(Rows, ASelectedRowWithPicturesCallByCall) {
  list.Style(cCheckBoxesIcons);
  list.ShowFocusRect(true);
  list.UserControl_GotFocus();
  list.ItemsAdd({.aText = "ab", .aIcon = makeRef<NamedPicture>("flag")});
  list.ItemSelected(0, true);
  EXPECT_EQ(headless.face(),
            "Cls\n"
            "CurrentY 3\n"
            "CurrentX 37\n"
            "Line 38 (37, 3)-(200, 16) #316AC5\n"
            "DrawFocusRect (21, 3)-(200, 16)\n"
            "Line 38 (0, 3)-(37, 16) #316AC5\n"
            "CurrentY 3\n"
            "CurrentY 3\n"
            "CurrentX 37\n"
            "PaintPicture 13x13 \"check box\" at (3, 3)\n"
            "PaintPicture 32x24 \"flag\" at (19, 1.5) as 16x16\n"
            "ForeColor #FFFFFF\n"
            "FontBold off\n"
            "FontItalic off\n"
            "FontUnderline off\n"
            "DrawTextA \"ab\" (37, 3)-(200, 100) 64\n"
            "CurrentY 16\n"
            "CurrentX 37\n");
  list.UserControl_LostFocus();
  EXPECT_FALSE(shows("DrawFocusRect"));
}

TEST_F(Rows, PicturesThatAreNoneAreSkipped) {
  struct Broken final : PictureObject {
    std::uintptr_t handle() const override { throw std::runtime_error("no handle"); }
    float width() const override { return 1; }
    float height() const override { return 1; }
  };
  list.Style(cIcons);
  list.ItemsAdd("a");
  list.ItemsAdd({.aText = "b",
                 .aIcon = makeRef<NamedPicture>("flag"),
                 .aIconSelected = makeRef<NamedPicture>("empty", 0U)});
  list.ItemsAdd({.aText = "c", .aIcon = makeRef<Broken>()});
  list.ItemSelected(1, true);
  const std::string face = headless.face();
  EXPECT_EQ(face.find("PaintPicture"), face.find("PaintPicture 32x24 \"flag\" at (3, 14.5)"));
  EXPECT_EQ(reports(), "");
}

}  // namespace
}  // namespace norvane
