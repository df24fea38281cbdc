#include <nvlist/drawing/SvgDocument.h>

#include <gtest/gtest.h>

#include <string>

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

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
