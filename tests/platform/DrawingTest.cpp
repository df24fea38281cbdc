#include "../Lists.h"

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/drawing/SvgDocument.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

TEST(Recording, KeepsEveryCallAndReplaysIt) {
  const Picture picture = makeRef<NamedPicture>("flag");
  RecordingSurface surface(20, 20);
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
  EXPECT_EQ(
      surface.image().text(),
      "Cls\nLine 6 (0, 1.5)-(10, 1.5) system 17\nLine 22 (0, 0)-(4, 4) #FF0000\n"
      "PaintPicture 32x24 \"flag\" at (1, 2)\nPaintPicture 32x24 \"flag\" at (1, 2) as 16x16\n"
      "CurrentX 7\nCurrentY 8\nBackColor #0000FF\nForeColor #00FF00\nFont \"Tahoma\" 8.25\n"
      "FontBold on\nFontItalic on\nFontUnderline off\nDrawTextA \"cut\" (1, 2)-(3, 4) 2\n"
      "DrawFocusRect (1, 2)-(3, 4)\nStretchDIBits 1x2 (0, 0)-(9, 4) #0080FF..#030201\n"
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
  for (const auto& [text, width, height] :
       {std::tuple("", 0, 13), {"\u00e4\xff", 14, 13}, {"ab\r\nabcd\rx\n", 28, 52}}) {
    EXPECT_EQ(surface.TextWidth(text), width) << text;
    EXPECT_EQ(surface.TextHeight(text), height) << text;
  }
  surface.FontBold(true);
  EXPECT_EQ(surface.TextWidth("ab"), 16);
  surface.fontMeasure({1, 2, 3});
  EXPECT_EQ(surface.TextWidth("ab"), 4);
  EXPECT_EQ(surface.TextHeight("ab"), 3);
}

using PictureOfAForm = ListTest;

TEST_F(PictureOfAForm, HoldsItsControls) {
  headless.resize(100, 60);
  list.AllowEdit(true);
  for (int i = 0; i < 10; ++i) list.ItemsAdd({.aText = i, .aAllowEdit = true});
  EXPECT_EQ(headless.picture().find("edit box"), std::string::npos);
  list.SetEdit(2);
  HeadlessContainer& form = headless.container();
  form.textBoxes()[0]->Move({90, 50, 20, 20});
  form.children()[0]->children()[0]->move({1, 50, 16, 18});
  const std::string picture = headless.picture();
  EXPECT_TRUE(
      picture.starts_with("(0, 0) 100x60 on #FFFFFF\n  Cls\n"
                          "  Line 38 (0, 3)-(100, 16) #FFFFFF\n  ForeColor #000000\n"))
      << picture;
  std::string places;
  forEachLine(picture, [&](std::string_view line) {
    if (!line.starts_with("  ")) places += std::string(line) + "|";
    return true;
  });
  EXPECT_EQ(places,
            "(0, 0) 100x60 on #FFFFFF|(82, 1) 17x58 on #FFFFFF|"
            "(83, 51) 16x18 on #FFFFFF, seen as (83, 51) 16x8|"
            "(82, 1) 17x17 on #FFFFFF|(82, 42) 17x17 on #FFFFFF|(0, 0) 100x1 on #7F9DB9|"
            "(99, 0) 1x60 on #7F9DB9|(0, 59) 100x1 on #7F9DB9|(0, 0) 1x60 on #7F9DB9|"
            "edit box (90, 50) 20x20 \"2\", seen as (90, 50) 10x10||");

  // The same, drawn on one surface for each place.
  std::vector<std::pair<Bounds, RecordingSurface>> drawn;
  drawn.reserve(10);
  form.replay([&](const Bounds& bounds) -> Surface& {
    return drawn.emplace_back(bounds, RecordingSurface(bounds.Width, bounds.Height)).second;
  });
  ASSERT_EQ(drawn.size(), 10U);
  EXPECT_EQ(drawn[0].second.image().text(), headless.face());
  EXPECT_EQ(drawn[5].second.background(), 0xB99D7F);
  EXPECT_EQ(drawn[9].first, (Bounds{90, 50, 20, 20}));
  EXPECT_EQ(drawn[9].second.image().text(),
            "Cls\nFont \"Tahoma\" 8.25\nForeColor #000000\nPrint \"2\"\n");
}

void write(Surface& onto, std::string_view text, TextFormat format = TextFormat::expandTabs) {
  onto.DrawTextA(onto.hDC(), text, -1, {1, 2, 11, 22}, format);
}

constexpr struct {
  const char* name;
  void (*draw)(Surface& onto);
  const char* svg;  ///< part of the document
} drawings[] = {
    {"the background", [](Surface& s) { s.BackColor(rgb(1, 2, 3)), s.Cls(); },
     "<rect x=\"0\" y=\"0\" width=\"20\" height=\"10\" fill=\"#010203\"/>"},
    {"Cls covers what was there", [](Surface& s) { s.PSet(1, 1, 0), s.Cls(); },
     "height=\"10\">\n<rect x=\"0\" y=\"0\" width=\"20\""},
    {"a system colour", [](Surface& s) { s.PSet(1, 2, systemColour(13)); },
     "<rect x=\"1\" y=\"2\" width=\"1\" height=\"1\" fill=\"#316AC5\"/>"},
    {"a line without its last pixel",
     [](Surface& s) { s.Line(LineMode::plainLine, 5, 1, 2, 1, 0); },
     "<rect x=\"3\" y=\"1\" width=\"3\" height=\"1\""},
    {"a box with its last pixels", [](Surface& s) { s.Line(LineMode::filledBox, 1, 1, 3, 4, 0); },
     "<rect x=\"1\" y=\"1\" width=\"3\" height=\"4\""},
    {"an outline", [](Surface& s) { s.Line(LineMode::outlineBox, 1, 1, 3, 4, 0); },
     "<rect x=\"1.5\" y=\"1.5\" width=\"2\" height=\"3\" fill=\"none\" stroke=\"#000000\"/>"},
    {"a text", [](Surface& s) { write(s, "<a>\"\x01\xFF"); },
     "<text x=\"0\" y=\"10\">&lt;a&gt;&quot;\uFFFD\uFFFD</text>"},
    {"marked characters", [](Surface& s) { write(s, "&a&&b&"); },
     "<tspan text-decoration=\"underline\">a</tspan>&amp;b</text>"},
    {"a tab and two lines", [](Surface& s) { write(s, "ab\tc\r\nd"); },
     ">ab      c</text><text x=\"0\" y=\"23\">d</text>"},
    {"a text at the right", [](Surface& s) { write(s, "a", TextFormat::right); },
     "text-anchor=\"end\"><text x=\"10\""},
    {"a font",
     [](Surface& s) {
       auto font = makeRef<FontObject>();
       font->Name = "A'&\"";
       font->Size = 12;
       s.Font(font), s.FontBold(true), s.Print("x");
     },
     " font-family=\"A&amp;&quot;, Tahoma, 'DejaVu Sans Condensed', 'DejaVu Sans', sans-serif\" "
     "font-size=\"16\" font-weight=\"bold\""},
    {"an underlined text", [](Surface& s) { s.FontUnderline(true), s.Print("x"); },
     "y=\"10\" text-decoration=\"underline\">x</text>"},
    {"runs of equal pixels of a bitmap",
     [](Surface& s) {
       s.StretchDIBits(s.hDC(), {0, 0, 6, 2}, {3, 1, {1, 1, 1, 1, 1, 1, 9, 9, 9}});
     },
     "<rect x=\"0\" y=\"0\" width=\"4\" height=\"2\" fill=\"#010101\"/>\n<rect x=\"4\" y=\"0\" "
     "width=\"2\" height=\"2\" fill=\"#090909\"/>"},
    {"a picture",
     [](Surface& s) { s.PaintPicture(makeRef<art::DrawnPicture>("dot", 1, 1), 1, 2, 3, 4); },
     "<image x=\"1\" y=\"2\" width=\"3\" height=\"4\" preserveAspectRatio=\"none\" "
     "href=\"data:image/"
     "bmp;base64,Qk06AAAAAAAAADYAAAAoAAAAAQAAAAEAAAABABgAAAAAAAQAAAAAAAAAAAAAAAAAAA"
     "AAAAAAAAAAAA==\"/>"},
};

TEST(Svg, DrawsEachCall) {
  for (const auto& [name, draw, svg] : drawings) {
    SvgDocument document(40, 30);
    draw(document.add(1, 2, 20, 10));
    EXPECT_NE(document.text().find(svg), std::string::npos) << name << "\n" << document.text();
  }
}

TEST(Svg, PlacesItsSurfacesAndRefusesWhatOthersRefuse) {
  SvgDocument document(40, 30);
  Surface& first = document.add(1, 2, 20, 10);
  document.add(3, 4, 5, 6);
  EXPECT_EQ(
      document.text(),
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"30\" "
      "shape-rendering=\"crispEdges\">\n<svg x=\"1\" y=\"2\" width=\"20\" height=\"10\">\n</svg>\n"
      "<svg x=\"3\" y=\"4\" width=\"5\" height=\"6\">\n</svg>\n</svg>\n");
  EXPECT_THROW(first.PaintPicture(nullptr, 0, 0), Failure);
  EXPECT_THROW(first.StretchDIBits(first.hDC(), {0, 0, 1, 1}, {1, 1, {0}}), Failure);
}

}  // namespace
}  // namespace norvane
