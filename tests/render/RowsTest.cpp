#include "../Lists.h"

#include <stdexcept>

#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

class Rows : public ListTest {
 protected:
  /// The visible effects of a repaint: no position changes, and no font flags.
  std::string seen() {
    list.Redraw();
    Recording visible;
    for (const SurfaceCall& call : headless.surface().image().calls)
      if (std::holds_alternative<calls::Line>(call) ||
          std::holds_alternative<calls::PaintPicture>(call) ||
          std::holds_alternative<calls::DrawTextA>(call) ||
          std::holds_alternative<calls::DrawFocusRect>(call) ||
          std::holds_alternative<calls::ForeColor>(call))
        visible.calls.push_back(call);
    return "\n" + visible.text();
  }

  Picture flag = makeRef<NamedPicture>("flag");
};

TEST_F(Rows, ASelectedRowWithPicturesCallByCall) {
  list.Style(cCheckBoxesIcons);
  list.ShowFocusRect(true);
  list.UserControl_GotFocus();
  list.ItemsAdd({.aText = "ab", .aIcon = flag});
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

TEST_F(Rows, EachStyleHasItsPictureColumn) {
  list.ItemsAdd({.aText = "ab", .aIcon = flag, .aIconSelected = makeRef<NamedPicture>("chosen")});
  list.ItemSelected(0, true);
  list.ItemChecked(0, true);
  list.IconSelect(false);
  list.ItemBackColor(0, 0x332211);
  list.IconW(20);
  list.IconH(9);
  list.Style(cIcons);
  EXPECT_TRUE(shows("\"ab\" (25, 3)"));
  list.DistPicText(10);
  list.IndentLeft(-1);
  list.Style(cCheckBoxesIcons);
  EXPECT_EQ(seen(), R"(
Line 38 (45, 3)-(200, 16) #316AC5
Line 38 (0, 3)-(45, 16) #112233
PaintPicture 13x13 "checked box" at (-1, 3)
PaintPicture 32x24 "chosen" at (15, 5) as 20x9
ForeColor #FFFFFF
DrawTextA "ab" (45, 3)-(200, 100) 64
)");
}

TEST_F(Rows, SelectionOfTheTextAloneByAlignment) {
  list.FullRowSelect(false);
  list.ShowFocusRect(true);
  list.UserControl_EnterFocus();
  list.ItemsAdd({.aText = "ab", .aBackColor = 0x332211});
  list.ItemSelected(0, true);
  list.ItemAlignment(0, cLeft);
  EXPECT_EQ(seen(), R"(
Line 38 (14, 3)-(200, 16) #112233
Line 38 (0, 3)-(15, 16) #316AC5
DrawFocusRect (0, 3)-(14, 16)
ForeColor #FFFFFF
DrawTextA "ab" (3, 3)-(200, 100) 64
)");
  // With pictures the box stays and the text moves.
  list.Style(cCheckBoxesIcons);
  list.IconSelect(false);
  list.ItemAlignment(0, cCenter);
  EXPECT_TRUE(shows("Line 38 (93, 3)-(107, 16) #316AC5"));
  EXPECT_TRUE(shows("DrawTextA \"ab\" (112, 3)"));
  list.ItemAlignment(0, cRight);
  EXPECT_TRUE(shows("Line 38 (183, 3)-(197, 16) #316AC5"));
}

TEST_F(Rows, ColoursOfTheItemComeFirstAndADisabledRowIsNeverShownAsSelected) {
  list.ColorStyle(cCustom);
  list.ValueColor(0xF0F0F0);
  list.ForeColor(0x0000AA);
  list.BackColor(systemColour(5));
  for (int i = 0; i < 2; ++i) {
    list.ItemsAdd("plain");
    list.ItemsAdd({.aText = "own",
                   .aForeColor = 1,
                   .aBackColor = 2,
                   .aForeColorSelected = 3,
                   .aBackColorSelected = 4});
  }
  list.ItemsAdd({.aText = "off",
                 .aIcon = flag,
                 .aIconSelected = makeRef<NamedPicture>("chosen"),
                 .aEnabled = false,
                 .aBackColorDis = 0x00FF00});
  for (const int selected : {2, 3, 4}) list.ItemSelected(selected, true);
  EXPECT_EQ(seen(), R"(
Line 38 (0, 3)-(200, 16) system 5
ForeColor #AA0000
DrawTextA "plain" (3, 3)-(200, 100) 64
Line 38 (0, 16)-(200, 29) #020000
ForeColor #010000
DrawTextA "own" (3, 16)-(200, 100) 64
Line 38 (0, 29)-(200, 42) #F0F0F0
ForeColor #FFFFFF
DrawTextA "plain" (3, 29)-(200, 100) 64
Line 38 (0, 42)-(200, 55) #040000
ForeColor #030000
DrawTextA "own" (3, 42)-(200, 100) 64
Line 38 (0, 55)-(200, 68) #00FF00
ForeColor system 17
DrawTextA "off" (3, 55)-(200, 100) 64
)");
  list.Style(cCheckBoxesIcons);
  EXPECT_TRUE(
      shows("\"disabled check box\" at (3, 55)\nPaintPicture 32x24 \"flag\" at (19, 53.5)"));
}

TEST_F(Rows, TextsInTwoColumns) {
  for (const auto& [text, drawn] :
       {std::pair("Wörter|RIGHT=12|right=3\t&",
                  "DrawTextA \"Wörter\" (3, 3)-(200, 100) 64\n"
                  "DrawTextA \"12|right=3\\x09&\" (3, 3)-(197, 100) 2\n"),
        {"|right=", "DrawTextA \"\" (3, 3)-(200, 100) 64\nDrawTextA \"\" (3, 3)-(197, 100) 2\n"},
        {"none|right", "DrawTextA \"none|right\" (3, 3)-(200, 100) 64\n"}}) {
    list.ItemsClear();
    list.ItemsAdd(text);
    EXPECT_TRUE(seen().ends_with(std::string("#000000\n") + drawn)) << seen();
  }
}

TEST_F(Rows, ARowIsMeasuredWithTheFontOfTheRowAbove) {
  list.AutoRedraw(false);
  list.ItemsAdd({.aText = "abcd", .aAlignment = cRight, .aBold = true, .aUnderline = true});
  list.ItemsAdd({.aText = "abcd", .aAlignment = cRight});
  list.Redraw();
  EXPECT_TRUE(shows("\"abcd\" (169, 3)"));
  EXPECT_TRUE(shows("\"abcd\" (165, 16)"));
  list.ItemItalic(1, true);
  list.ItemBold(1, true);
  list.Redraw();
  EXPECT_TRUE(shows("FontBold on\nFontItalic off\nFontUnderline on\n"));
  EXPECT_TRUE(shows("FontBold on\nFontItalic on\nFontUnderline off\n"));
  // The first row is measured with the flags of the last row of the previous repaint.
  list.Redraw();
  EXPECT_TRUE(shows("\"abcd\" (165, 3)"));
}

TEST_F(Rows, GridLinesAreAboveAndBelowRows) {
  add({"a", "b", "c"});
  list.GridLines(true);
  list.GridLineColor(0xFF);
  // The window is higher than the rows, or as high: after the line above, the line below is tested
  // from the top of the row.
  for (const float height : {100.0F, 42.0F}) {
    headless.resize(200, height);
    std::string lines;
    for (const SurfaceCall& call : headless.surface().image().calls)
      if (const auto* line = std::get_if<calls::Line>(&call))
        if (line->mode == LineMode::plainLine) lines += textOf(line->y1) + " ";
    // Row 0: below. Row 1: above and below. Row 2, the last: above.
    EXPECT_EQ(lines, "16 16 29 29 ");
  }
  EXPECT_TRUE(shows("Line 6 (0, 16)-(200, 16) #FF0000\n"));
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  list.TopIndex(5);
  EXPECT_FALSE(shows("Line 6 (0, 3)"));
}

TEST_F(Rows, PicturesThatAreNoneAreSkipped) {
  struct Broken final : PictureObject {
    std::uintptr_t handle() const override { throw std::runtime_error("no handle"); }
    float width() const override { return 1; }
    float height() const override { return 1; }
  };
  list.Style(cIcons);
  list.ItemsAdd("a");
  list.ItemsAdd({.aText = "b", .aIcon = flag, .aIconSelected = makeRef<NamedPicture>("empty", 0U)});
  list.ItemsAdd({.aText = "c", .aIcon = makeRef<Broken>()});
  list.ItemSelected(1, true);
  EXPECT_EQ(seen().find("PaintPicture"), seen().find("PaintPicture 32x24 \"flag\" at (3, 14.5)"));
  EXPECT_EQ(reports(), "");
}

TEST_F(Rows, BarsTakeTheirWidthAndAScrollItsDistance) {
  list.ScrollBars(vbBoth);
  list.FullRowSelect(false);
  list.AutoRedraw(false);
  list.ItemsAdd({.aText = "ab", .aAlignment = cRight});
  list.ItemsAdd({.aText = "ab", .aAlignment = cCenter});
  add({"a|right=b", std::string(40, 'w'), "", "", "", ""});
  list.ItemSelected(0, true);
  list.ItemSelected(1, true);
  list.AutoRedraw(true);
  list.CheckScroll();
  HeadlessContainer& bar = *headless.container().children()[1];
  for (int i = 0; i < 10; ++i) {
    bar.press(bar.bounds().Width - 5, 8);
    bar.release(bar.bounds().Width - 5, 8);
  }
  list.Redraw();
  // 284 pixels wide with the padding, plus the width of the vertical bar. The selection does not
  // scroll.
  for (const char* call : {"\"ab\" (257, 3)-(301, 100) 64",   // 301 - 17 - 10 - 14 - 3
                           "\"ab\" (125, 16)-(301, 100) 64",  // (301 - 17 - 14) / 2 - 10
                           "\"a\" (-7, 29)-(284, 100) 64", "\"b\" (-7, 29)-(281, 100) 2",
                           "Line 38 (166, 3)-(180, 16)", "Line 38 (84.5, 16)-(98.5, 29)"})
    EXPECT_TRUE(shows(call)) << call;
}

}  // namespace
}  // namespace norvane
