#include "../Lists.h"

#include <stdexcept>
#include <string>

#include <nvlist/render/art.h>

namespace norvane {
namespace {

class Flag final : public PictureObject {
 public:
  explicit Flag(std::string name, std::uintptr_t handle = 1) : name_(name), handle_(handle) {}
  std::uintptr_t handle() const override { return handle_; }
  float width() const override { return 32; }
  float height() const override { return 24; }
  std::string description() const override { return name_; }

 private:
  std::string name_;
  std::uintptr_t handle_;
};

class Rows : public ListTest {
 protected:
  /// What is seen of a repaint: no steps of the position, and a font flag only where it changes.
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

  Picture flag = makeRef<Flag>("flag");
};

TEST_F(Rows, ASelectedRowWithPicturesCallByCall) {
  list.Style(cCheckBoxesIcons);
  list.ShowFocusRect(true);
  list.UserControl_GotFocus();
  list.ItemsAdd({.aText = "ab", .aIcon = flag});
  list.ItemSelected(0, true);
  EXPECT_EQ(headless.picture(),
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
  EXPECT_EQ(headless.picture().find("DrawFocusRect"), std::string::npos);
}

TEST_F(Rows, EachStyleHasItsPictureColumn) {
  list.ItemsAdd({.aText = "ab", .aIcon = flag, .aIconSelected = makeRef<Flag>("chosen")});
  list.ItemsAdd("");
  list.ItemSelected(0, true);
  const std::string chosen = "PaintPicture 32x24 \"chosen\" at ";
  const auto firstRow = [&](cListStyle style) {
    list.Style(style);
    const std::string all = seen();
    return all.substr(0, all.find("Line 38 (0, 16)"));
  };
  EXPECT_EQ(firstRow(cDefault), R"(
Line 38 (0, 3)-(200, 16) #316AC5
ForeColor #FFFFFF
DrawTextA "ab" (3, 3)-(200, 100) 64
)");
  list.ItemChecked(0, true);
  EXPECT_EQ(firstRow(cCheckBoxes), R"(
Line 38 (18, 3)-(200, 16) #316AC5
Line 38 (0, 3)-(18, 16) #316AC5
PaintPicture 13x13 "checked box" at (3, 3)
ForeColor #FFFFFF
DrawTextA "ab" (18, 3)-(200, 100) 64
)");
  list.IconSelect(false);
  list.ItemBackColor(0, 0x332211);
  list.IconW(20);
  list.IconH(9);
  EXPECT_EQ(firstRow(cIcons), R"(
Line 38 (25, 3)-(200, 16) #316AC5
Line 38 (0, 3)-(25, 16) #112233
PaintPicture 32x24 "chosen" at (3, 5) as 20x9
ForeColor #FFFFFF
DrawTextA "ab" (25, 3)-(200, 100) 64
)");
  list.DistPicText(10);
  list.IndentLeft(-1);
  EXPECT_EQ(firstRow(cCheckBoxesIcons), R"(
Line 38 (45, 3)-(200, 16) #316AC5
Line 38 (0, 3)-(45, 16) #112233
PaintPicture 13x13 "checked box" at (-1, 3)
PaintPicture 32x24 "chosen" at (15, 5) as 20x9
ForeColor #FFFFFF
DrawTextA "ab" (45, 3)-(200, 100) 64
)");
  // A style nobody knows has no pictures, and the text stands at the very left.
  EXPECT_NE(firstRow(static_cast<cListStyle>(7)).find("\"ab\" (0, 3)"), std::string::npos);
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
  EXPECT_EQ(aligned(static_cast<cItemAlignment>(5)), aligned(cLeft));
  EXPECT_EQ(aligned(cCenter), R"(
Line 38 (0, 3)-(200, 16) #112233
Line 38 (93, 3)-(107, 16) #316AC5
DrawFocusRect (0, 3)-(14, 16)
ForeColor #FFFFFF
DrawTextA "ab" (93, 3)-(200, 100) 64
)");
  // With pictures the box stays where it was, the text moves.
  list.Style(cCheckBoxesIcons);
  list.IconSelect(false);
  EXPECT_EQ(aligned(cCenter), R"(
Line 38 (0, 3)-(200, 16) #112233
Line 38 (93, 3)-(107, 16) #316AC5
DrawFocusRect (0, 3)-(14, 16)
Line 38 (0, 3)-(37, 16) #112233
PaintPicture 13x13 "check box" at (3, 3)
ForeColor #FFFFFF
DrawTextA "ab" (112, 3)-(200, 100) 64
)");
  list.Style(cIcons);
  EXPECT_NE(aligned(cCenter).find("\"ab\" (102, 3)"), std::string::npos);
  EXPECT_NE(aligned(cRight).find("Line 38 (183, 3)-(197, 16) #316AC5"), std::string::npos);
  EXPECT_NE(aligned(cRight).find("\"ab\" (183, 3)"), std::string::npos);
  // A background of its own is what makes the box stand out.
  list.ItemsClear();
  list.ItemsAdd("");
  list.ItemSelected(0, true);
  EXPECT_EQ(seen().substr(0, 73), R"(
Line 38 (21, 3)-(200, 16) #316AC5
Line 38 (21, 3)-(22, 16) #316AC5
)"
                                  "DrawF");
}

TEST_F(Rows, ADisabledRowIsNeverShownAsSelected) {
  list.Style(cCheckBoxesIcons);
  list.FullRowSelect(false);
  list.ShowFocusRect(true);
  list.UserControl_EnterFocus();
  list.ItemsAdd({.aText = "ab",
                 .aIcon = flag,
                 .aIconSelected = makeRef<Flag>("chosen"),
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
  list.ItemChecked(0, true);
  EXPECT_NE(seen().find("\"disabled checked box\""), std::string::npos);
}

TEST_F(Rows, ColoursOfTheItemComeFirst) {
  list.ColorStyle(cCustom);
  list.ValueColor(0xF0F0F0);
  list.ForeColor(0x0000AA);
  list.BackColor(systemColour(5));
  list.ItemsAdd("plain");
  list.ItemsAdd({.aText = "own",
                 .aForeColor = 1,
                 .aBackColor = 2,
                 .aForeColorSelected = 3,
                 .aBackColorSelected = 4});
  EXPECT_EQ(seen(), R"(
Line 38 (0, 3)-(200, 16) system 5
ForeColor #AA0000
DrawTextA "plain" (3, 3)-(200, 100) 64
Line 38 (0, 16)-(200, 29) #020000
ForeColor #010000
DrawTextA "own" (3, 16)-(200, 100) 64
)");
  list.ItemSelected(0, true);
  list.ItemSelected(1, true);
  EXPECT_EQ(seen(), R"(
Line 38 (0, 3)-(200, 16) #F0F0F0
ForeColor #FFFFFF
DrawTextA "plain" (3, 3)-(200, 100) 64
Line 38 (0, 16)-(200, 29) #040000
ForeColor #030000
DrawTextA "own" (3, 16)-(200, 100) 64
)");
  list.ColorStyle(static_cast<cColorStyle>(7));
  EXPECT_NE(seen().find("Line 38 (0, 3)-(200, 16) #000000"), std::string::npos);
}

TEST_F(Rows, AColourThatIsNoneIsReported) {
  add({"a", "b"});
  list.AutoRedraw(false);
  list.ItemSelected(0, true);
  list.ItemBackColorSelect(0, "Def");
  list.ItemForeColorSelect(0, "white");
  silent();
  // No box is drawn, and so nothing has gone down to the row's foot before the way back to its top.
  EXPECT_EQ(seen().substr(0, 37), "\nDrawTextA \"a\" (3, -10)-(200, 100) 64");
  Error().SilentError(false);
  list.Redraw();
  EXPECT_EQ(reports(), "13 Redraw");
  EXPECT_TRUE(list.state().IsRedrawing.isTrue());
}

TEST_F(Rows, TextsInTwoColumns) {
  list.ItemsAdd("Wörter|RIGHT=12|right=3\t&");
  list.ItemsAdd("|right=");
  list.ItemsAdd("a|right|Right=x");
  list.ItemsAdd("none|right");
  EXPECT_EQ(seen(), R"(
Line 38 (0, 3)-(200, 16) #FFFFFF
ForeColor #000000
DrawTextA "Wörter" (3, 3)-(200, 100) 64
DrawTextA "12|right=3\x09&" (3, 3)-(197, 100) 2
Line 38 (0, 16)-(200, 29) #FFFFFF
ForeColor #000000
DrawTextA "" (3, 16)-(200, 100) 64
DrawTextA "" (3, 16)-(197, 100) 2
Line 38 (0, 29)-(200, 42) #FFFFFF
ForeColor #000000
DrawTextA "a|right" (3, 29)-(200, 100) 64
DrawTextA "x" (3, 29)-(197, 100) 2
Line 38 (0, 42)-(200, 55) #FFFFFF
ForeColor #000000
DrawTextA "none|right" (3, 42)-(200, 100) 64
)");
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
  // The first row is measured with what the last one of the repaint before has left.
  EXPECT_NE(seen().find("\"abcd\" (165, 3)"), std::string::npos);
  EXPECT_NE(headless.picture().find("FontBold on\nFontItalic off\nFontUnderline on\n"),
            std::string::npos);
  EXPECT_NE(headless.picture().find("FontBold on\nFontItalic on\nFontUnderline off\n"),
            std::string::npos);
}

TEST_F(Rows, GridLinesStandAboveAndBelowRows) {
  add({"a", "b", "c"});
  list.GridLines(true);
  list.GridLineColor(0xFF);
  const std::string color = ") #FF0000\n";
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
  EXPECT_NE(headless.picture().find("Line 6 (0, 16)-(200, 16) #FF0000\n"), std::string::npos);
  // Once a row has drawn the line above, its foot is tested from its own top.
  headless.resize(200, 42);
  EXPECT_EQ(lines(), "16 16 29 29 ");
  headless.resize(200, 29);
  EXPECT_EQ(lines(), "16 ");
  // A list that has been scrolled, and a short one whose top is a negative number.
  headless.resize(200, 100);
  list.TopIndex(0);
  ASSERT_LT(list.TopIndex(), 0);
  EXPECT_EQ(lines(), "16 16 29 29 ");
  list.GridLines(Boolean::ofNumber(1));
  EXPECT_EQ(lines(), "");
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
  list.ItemsAdd({.aText = "b", .aIcon = flag, .aIconSelected = makeRef<Flag>("empty", 0)});
  list.ItemsAdd({.aText = "c", .aIcon = makeRef<Broken>()});
  list.ItemSelected(1, true);
  EXPECT_EQ(seen().find("PaintPicture"), seen().find("PaintPicture 32x24 \"flag\" at (3, 14.5)"));
  EXPECT_EQ(reports(), "");
}

TEST_F(Rows, TheVerticalBarTakesItsWidthFromAlignedTextsWhereRowsDoNotFit) {
  list.AutoRedraw(false);
  list.FullRowSelect(false);
  for (int i = 0; i < 7; ++i)
    list.ItemsAdd({.aText = "ab", .aAlignment = i % 2 ? cRight : cCenter});
  list.ItemSelected(0, true);
  list.ItemSelected(1, true);
  const auto holds = [&](const char* call) { return seen().find(call) != std::string::npos; };
  EXPECT_TRUE(holds("\"ab\" (93, 3)"));
  EXPECT_TRUE(holds("Line 38 (183, 16)-(197, 29)"));
  list.ItemsAdd("8");
  EXPECT_TRUE(holds("\"ab\" (84, 3)"));
  EXPECT_TRUE(holds("\"ab\" (166, 16)"));
  EXPECT_TRUE(holds("Line 38 (84.5, 3)-(98.5, 16)"));
  EXPECT_TRUE(holds("Line 38 (166, 16)-(180, 29)"));
}

TEST_F(Rows, WhatARowLeavesBehind) {
  list.Style(cCheckBoxes);
  list.IndentLeft(4);
  list.DistPicText(2.5);
  list.IndentTop(3.25);
  list.MinHeight(16.5);
  list.AutoRedraw(false);
  list.ItemsAdd({.aText = "a", .aChecked = true, .aBackColor = 5, .aAlignment = cRight});
  list.ItemsAdd({.aText = "b", .aChecked = true, .aEnabled = false});
  list.ItemSelected(0, true);
  list.Redraw();
  EXPECT_EQ(list.state().FocusRect, (Rectangle{20, 3, 200, 20}));
  EXPECT_EQ(list.state().PaintIcon, art::checkBox(true, false));
  EXPECT_EQ(list.state().RowBackColor, 5);
  EXPECT_EQ(list.state().LoopIndex, 2);
  EXPECT_TRUE(headless.picture().ends_with("CurrentX 19.5\n"));
}

TEST_F(Rows, AScrolledListHasNoLineAboveItsFirstRow) {
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  list.GridLines(true);
  list.TopIndex(5);
  EXPECT_EQ(headless.picture().find("Line 6 (0, 3)"), std::string::npos);
}

TEST_F(Rows, WhateverTheSurfaceThrowsIsReportedOnce) {
  /// Fails at the n-th question, counted over all kinds of them.
  class Failing : public HeadlessSurface {
   public:
    using HeadlessSurface::HeadlessSurface;
    float ScaleWidth() const override { return ask(HeadlessSurface::ScaleWidth()); }
    float TextWidth(std::string_view text) override {
      return ask(HeadlessSurface::TextWidth(text));
    }
    float TextHeight(std::string_view text) override {
      return ask(HeadlessSurface::TextHeight(text));
    }
    float CurrentY() const override { return ask(HeadlessSurface::CurrentY()); }
    mutable int questionsLeft = 0;

   private:
    float ask(float answer) const {
      if (--questionsLeft == 0) throw std::runtime_error("no answer");
      return answer;
    }
  };
  for (const bool isWholeRow : {true, false}) {
    bool hasFailed = true;
    for (int question = 1; hasFailed; ++question) {
      Failing surface(200, 40);
      HeadlessContainer container(surface);
      nvList own(container);
      own.UserControl_InitProperties();
      own.Style(cCheckBoxesIcons);
      own.FullRowSelect(isWholeRow);
      own.GridLines(true);
      own.ItemsAdd({.aText = "a", .aAlignment = cCenter});
      own.ItemSelected(0, true);
      surface.questionsLeft = question;
      own.Redraw();
      hasFailed = surface.questionsLeft <= 0;
      EXPECT_EQ(application.boxes.size(), hasFailed ? 1U : 0U) << question;
      reports();
    }
  }
}

TEST_F(Rows, BarsTakeTheirWidthAndAScrollItsDistance) {
  list.ScrollBars(vbBoth);
  list.AutoRedraw(false);
  list.ItemsAdd({.aText = "ab", .aAlignment = cRight});
  list.ItemsAdd({.aText = "ab", .aAlignment = cCenter});
  add({"a|right=b", std::string(40, 'w'), "", "", "", ""});
  list.AutoRedraw(true);
  list.CheckScroll();
  HeadlessContainer& bar = *headless.container().children()[1];
  for (int i = 0; i < 10; ++i) {
    bar.press(bar.bounds().Width - 5, 8);
    bar.release(bar.bounds().Width - 5, 8);
  }
  // 284 pixels wide with the padding, and as many more as the vertical bar takes.
  ASSERT_EQ(list.verticalBar().Width(), 17);
  ASSERT_EQ(list.horizontalBar().Value(), 10);
  ASSERT_EQ(list.horizontalBar().Max(), 101);
  const std::string all = seen();
  const auto texts = [&](const std::string& text) { return all.find(text) != std::string::npos; };
  EXPECT_TRUE(texts("\"ab\" (257, 3)-(301, 100) 64"));   // 301 - 17 - 10 - 14 - 3
  EXPECT_TRUE(texts("\"ab\" (125, 16)-(301, 100) 64"));  // (301 - 17 - 14) / 2 - 10
  EXPECT_TRUE(texts("\"a\" (-7, 29)-(284, 100) 64"));
  EXPECT_TRUE(texts("\"b\" (-7, 29)-(281, 100) 2"));
}

TEST_F(Rows, PropertiesReadAnewInTheMiddleOfARowEndTheRepaint) {
  /// Lets a reading of the properties fail at its first key in one of the calls.
  class Hostile : public HeadlessSurface {
   public:
    using HeadlessSurface::HeadlessSurface;
    void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override {
      HeadlessSurface::Line(mode, x1, y1, x2, y2, colour);
      readIn("Line");
    }
    void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override {
      HeadlessSurface::DrawFocusRect(hDC, rectangle);
      readIn("DrawFocusRect");
    }
    void ForeColor(Colour colour) override {
      HeadlessSurface::ForeColor(colour);
      readIn("ForeColor");
    }
    void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                   const Rectangle& rectangle, TextFormat format) override {
      HeadlessSurface::DrawTextA(hDC, text, length, rectangle, format);
      readIn("DrawTextA");
    }
    void readIn(std::string_view call) {
      if (call == hostileCall) list->UserControl_ReadProperties(propertiesOf("Font = 7"));
    }
    std::string_view hostileCall;
    nvList* list = nullptr;
  } surface(200, 100);
  HeadlessContainer container(surface);
  nvList own(container);
  surface.list = &own;
  const auto lastCalls = [&](std::string_view hostileCall, bool isSelected) {
    surface.hostileCall = {};
    own.UserControl_InitProperties();
    own.Style(cCheckBoxes);
    own.ShowFocusRect(true);
    own.UserControl_GotFocus();
    for (const char* text : {"a", "b"}) own.ItemsAdd(text);
    own.ItemSelected(0, isSelected);
    surface.hostileCall = hostileCall;
    own.Redraw();
    EXPECT_FALSE(own.state().IsRedrawing);
    const std::string image = surface.image().text();
    return image.substr(image.rfind("Line"));
  };
  const std::string background = "Line 38 (0, 3)-(200, 16) #FFFFFF\n";
  EXPECT_EQ(lastCalls("Line", false), background + "CurrentY 3\nCurrentY 3\nCurrentX 18\n");
  EXPECT_EQ(lastCalls("DrawFocusRect", true),
            "Line 38 (18, 3)-(200, 16) #316AC5\nDrawFocusRect (18, 3)-(200, 16)\n");
  EXPECT_EQ(lastCalls("ForeColor", false),
            background +
                "CurrentY 3\nCurrentY 3\nCurrentX 18\n"
                "PaintPicture 13x13 \"check box\" at (3, 3)\nForeColor #000000\n");
  const std::string afterText = lastCalls("DrawTextA", false);
  EXPECT_EQ(afterText.substr(afterText.find("DrawTextA")),
            "DrawTextA \"a\" (18, 3)-(200, 100) 64\nCurrentY 16\nCurrentX 18\n");
}

}  // namespace
}  // namespace norvane
