#include "../Lists.h"

namespace norvane {
namespace {

/// Makes every kind of call on a surface.
void drawEverything(Surface& surface, const Picture& picture) {
  surface.Cls();
  surface.Line(LineMode::plainLine, 0, 1.5, 10, 1.5, colours::greyText);
  surface.Line(LineMode::outlineBox, 0, 0, 4, 4, 0x0000FF);
  surface.PaintPicture(picture, 1, 2);
  surface.PaintPicture(picture, 1, 2, 16, 16);
  surface.CurrentX(7);
  surface.CurrentY(8);
  surface.BackColor(0xFF0000);
  surface.ForeColor(0x00FF00);
  surface.Font(makeRef<FontObject>());
  surface.FontBold(true);
  surface.FontItalic(true);
  surface.FontUnderline(false);
  surface.DrawTextA(surface.hDC(), "cut here", 3, {1, 2, 3, 4}, TextFormat::right);
  surface.DrawFocusRect(surface.hDC(), {1, 2, 3, 4});
  surface.StretchDIBits(surface.hDC(), {0, 0, 9, 4}, {1, 2, {0xFF, 0x80, 0, 0xEE, 1, 2, 3, 0xEE}});
  surface.Print("a \"b\"");
}

Picture somePicture() {
  class Square : public PictureObject {
    float width() const override { return 5; }
    float height() const override { return 5; }
  };
  return makeRef<Square>();
}

TEST(Recording, KeepsEveryCallAndReplaysIt) {
  RecordingSurface surface(20, 20);
  drawEverything(surface, somePicture());
  EXPECT_EQ(surface.image().text(),
            "Cls\n"
            "Line 6 (0, 1.5)-(10, 1.5) system 17\n"
            "Line 22 (0, 0)-(4, 4) #FF0000\n"
            "PaintPicture 5x5 at (1, 2)\n"
            "PaintPicture 5x5 at (1, 2) as 16x16\n"
            "CurrentX 7\n"
            "CurrentY 8\n"
            "BackColor #0000FF\n"
            "ForeColor #00FF00\n"
            "Font \"Tahoma\" 8.25\n"
            "FontBold on\n"
            "FontItalic on\n"
            "FontUnderline off\n"
            "DrawTextA \"cut\" (1, 2)-(3, 4) 2\n"
            "DrawFocusRect (1, 2)-(3, 4)\n"
            "StretchDIBits 1x2 (0, 0)-(9, 4) #0080FF..#030201\n"
            "Print \"a \\\"b\\\"\"\n");
  EXPECT_EQ(surface.CurrentX(), 0);
  EXPECT_EQ(surface.CurrentY(), 21);

  RecordingSurface other(20, 20);
  surface.replay(other);
  EXPECT_EQ(other.image().text(), surface.image().text());
  EXPECT_THROW(surface.PaintPicture(nullptr, 0, 0), Failure);
  EXPECT_THROW(surface.StretchDIBits(surface.hDC(), {0, 0, 9, 4}, {1, 2, {1, 2, 3, 0, 1, 2, 3}}),
               Failure);
}

TEST(Recording, AnImageBeginsWithTheSettingsOfItsTime) {
  RecordingSurface surface(20, 20);
  surface.BackColor(0x123456);
  surface.FontBold(true);
  surface.Cls();
  surface.BackColor(0);
  RecordingSurface other(20, 20);
  other.Cls();
  surface.replay(other);
  RecordingSurface third(20, 20);
  third.Cls();
  other.replay(third);
  EXPECT_EQ(third.TextWidth("ab"), 16);
  EXPECT_EQ(surface.image().calls.size(), 2U);
}

TEST(Recording, MeasuresTextsByCharacters) {
  RecordingSurface surface(20, 20);
  EXPECT_EQ(surface.TextWidth(""), 0);
  EXPECT_EQ(surface.TextHeight(""), 13);
  EXPECT_EQ(surface.TextWidth("\u00e4\xff"), 14);
  EXPECT_EQ(surface.TextWidth("ab\r\nabcd\rx\n"), 28);
  EXPECT_EQ(surface.TextHeight("ab\r\nabcd\rx\n"), 52);
  surface.FontBold(true);
  EXPECT_EQ(surface.TextWidth("ab"), 16);
  surface.fontMeasure({1, 2, 3});
  EXPECT_EQ(surface.TextWidth("ab"), 4);
  EXPECT_EQ(surface.TextHeight("ab"), 3);
}

}  // namespace
}  // namespace norvane
