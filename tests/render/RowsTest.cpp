#include "../Lists.h"

#include <stdexcept>
#include <string>

#include <nvlist/render/art.h>

namespace norvane {
namespace {

class Rows : public ListTest {
 protected:
  /// The visible effects of a repaint: no position changes, and font flags only when they change.
  std::string seen() {
    list.Redraw();
    Recording visible;
    for (const SurfaceCall& call : headless.surface().image().calls) {
      const bool isSeen = std::holds_alternative<calls::Line>(call) ||
                          std::holds_alternative<calls::PaintPicture>(call) ||
                          std::holds_alternative<calls::DrawTextA>(call) ||
                          std::holds_alternative<calls::DrawFocusRect>(call) ||
                          std::holds_alternative<calls::ForeColor>(call);
      if (isSeen) visible.calls.push_back(call);
    }
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
  EXPECT_EQ(headless.face().find("DrawFocusRect"), std::string::npos);
}

TEST_F(Rows, EachStyleHasItsPictureColumn) {
  list.ItemsAdd({.aText = "ab", .aIcon = flag, .aIconSelected = makeRef<NamedPicture>("chosen")});
  list.ItemSelected(0, true);
  const auto row = [&](cListStyle style) {
    list.Style(style);
    return seen();
  };
  list.ItemChecked(0, true);
  list.IconSelect(false);
  list.ItemBackColor(0, 0x332211);
  list.IconW(20);
  list.IconH(9);
  EXPECT_NE(row(cIcons).find("\"ab\" (25, 3)"), std::string::npos);
  list.DistPicText(10);
  list.IndentLeft(-1);
  EXPECT_EQ(row(cCheckBoxesIcons), R"(
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
  const auto aligned = [&](cItemAlignment alignment) {
    list.ItemAlignment(0, alignment);
    return seen();
  };
  EXPECT_EQ(aligned(cLeft), R"(
Line 38 (14, 3)-(200, 16) #112233
Line 38 (0, 3)-(15, 16) #316AC5
DrawFocusRect (0, 3)-(14, 16)
ForeColor #FFFFFF
DrawTextA "ab" (3, 3)-(200, 100) 64
)");
  // With pictures the box stays and the text moves.
  list.Style(cCheckBoxesIcons);
  list.IconSelect(false);
  const std::string centred = aligned(cCenter);
  EXPECT_NE(centred.find("Line 38 (93, 3)-(107, 16) #316AC5"), std::string::npos);
  EXPECT_NE(centred.find("DrawTextA \"ab\" (112, 3)"), std::string::npos);
  EXPECT_NE(aligned(cRight).find("Line 38 (183, 3)-(197, 16) #316AC5"), std::string::npos);
}

TEST_F(Rows, ADisabledRowIsNeverShownAsSelected) {
  list.Style(cCheckBoxesIcons);
  list.ItemsAdd({.aText = "ab",
                 .aIcon = flag,
                 .aIconSelected = makeRef<NamedPicture>("chosen"),
                 .aEnabled = false,
                 .aBackColorDis = 0x00FF00});
  list.ItemSelected(0, true);
  EXPECT_EQ(seen(), R"(
Line 38 (0, 3)-(200, 16) #00FF00
PaintPicture 13x13 "disabled check box" at (3, 3)
PaintPicture 32x24 "flag" at (19, 1.5) as 16x16
ForeColor system 17
DrawTextA "ab" (37, 3)-(200, 100) 64
)");
}

TEST_F(Rows, ColoursOfTheItemComeFirst) {
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
  list.ItemSelected(2, true);
  list.ItemSelected(3, true);
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
)");
}

TEST_F(Rows, TextsInTwoColumns) {
  const auto drawn = [&](const std::string& text) {
    list.ItemsClear();
    list.ItemsAdd(text);
    const std::string all = seen();
    return all.substr(all.find("DrawTextA"));
  };
  EXPECT_EQ(drawn("Wörter|RIGHT=12|right=3\t&"),
            "DrawTextA \"Wörter\" (3, 3)-(200, 100) 64\n"
            "DrawTextA \"12|right=3\\x09&\" (3, 3)-(197, 100) 2\n");
  EXPECT_EQ(drawn("|right="),
            "DrawTextA \"\" (3, 3)-(200, 100) 64\n"
            "DrawTextA \"\" (3, 3)-(197, 100) 2\n");
  EXPECT_EQ(drawn("none|right"), "DrawTextA \"none|right\" (3, 3)-(200, 100) 64\n");
}

TEST_F(Rows, ARowIsMeasuredWithTheFontOfTheRowAbove) {
  list.AutoRedraw(false);
  list.ItemsAdd({.aText = "abcd", .aAlignment = cRight, .aBold = true, .aUnderline = true});
  list.ItemsAdd({.aText = "abcd", .aAlignment = cRight});
  list.Redraw();
  EXPECT_NE(seen().find("\"abcd\" (169, 3)"), std::string::npos);
  EXPECT_NE(seen().find("\"abcd\" (165, 16)"), std::string::npos);
  list.ItemItalic(1, true);
  list.ItemBold(1, true);
  list.Redraw();
  EXPECT_NE(headless.face().find("FontBold on\nFontItalic off\nFontUnderline on\n"),
            std::string::npos);
  EXPECT_NE(headless.face().find("FontBold on\nFontItalic on\nFontUnderline off\n"),
            std::string::npos);
  // The first row is measured with the flags of the last row of the previous repaint.
  EXPECT_NE(seen().find("\"abcd\" (165, 3)"), std::string::npos);
}

TEST_F(Rows, GridLinesStandAboveAndBelowRows) {
  add({"a", "b", "c"});
  list.GridLines(true);
  list.GridLineColor(0xFF);
  const auto lines = [&] {
    std::string result;
    for (const SurfaceCall& call : headless.surface().image().calls)
      if (const auto* line = std::get_if<calls::Line>(&call))
        if (line->mode == LineMode::plainLine)
          result += std::to_string(static_cast<int>(line->y1)) + " ";
    return result;
  };
  // Row 0: below. Row 1: above and below. Row 2, the last: above.
  EXPECT_EQ(lines(), "16 16 29 29 ");
  EXPECT_NE(headless.face().find("Line 6 (0, 16)-(200, 16) #FF0000\n"), std::string::npos);
  // After the line above, the line below is tested from the top of the row.
  headless.resize(200, 42);
  EXPECT_EQ(lines(), "16 16 29 29 ");
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  list.TopIndex(5);
  EXPECT_EQ(headless.face().find("Line 6 (0, 3)"), std::string::npos);
}

TEST_F(Rows, PicturesThatAreNoneAreSkipped) {
  class Broken final : public PictureObject {
   public:
    std::uintptr_t handle() const override { throw std::runtime_error("no handle"); }
    float width() const override { return 1; }
    float height() const override { return 1; }
  };
  list.Style(cIcons);
  list.ItemsAdd({.aText = "a"});
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
  // 284 pixels wide with the padding, plus the width of the vertical bar.
  const std::string all = seen();
  const auto texts = [&](const std::string& text) { return all.find(text) != std::string::npos; };
  EXPECT_TRUE(texts("\"ab\" (257, 3)-(301, 100) 64"));   // 301 - 17 - 10 - 14 - 3
  EXPECT_TRUE(texts("\"ab\" (125, 16)-(301, 100) 64"));  // (301 - 17 - 14) / 2 - 10
  EXPECT_TRUE(texts("\"a\" (-7, 29)-(284, 100) 64"));
  EXPECT_TRUE(texts("\"b\" (-7, 29)-(281, 100) 2"));
  // The selection does not scroll.
  EXPECT_TRUE(texts("Line 38 (166, 3)-(180, 16)"));
  EXPECT_TRUE(texts("Line 38 (84.5, 16)-(98.5, 29)"));
}

}  // namespace
}  // namespace norvane
