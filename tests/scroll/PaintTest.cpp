#include "Bars.h"

namespace norvane {
namespace {

/// The colour of a surface that shows nothing else.
Colour flatColour(HeadlessContainer& place) {
  EXPECT_EQ(place.ownSurface().image().text(), "Cls\n");
  return background(place);
}

TEST_P(Bars, ATrackPressDarkensTheSideOfThePress) {
  const std::string track = either("Cls\nStretchDIBits 17x1 (0, 0)-(17, 200) #F3F1EC..#FDFDFA\n",
                                   "Cls\nStretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC\n");
  // The press makes the first step at once.
  run("press 150");
  EXPECT_EQ(drawn(place),
            track + either("StretchDIBits 17x1 (0, 84)-(17, 200) #E3DED3..#FCFCF9\n",
                           "StretchDIBits 4x17 (84, 0)-(200, 17) #FEFEFB..#E3DED4\n"));
  run("release");
  EXPECT_EQ(drawn(place), track);
  run("value 100; press 30");
  EXPECT_EQ(drawn(place),
            track + either("StretchDIBits 17x1 (0, 17)-(17, 116) #E3DED3..#FCFCF9\n",
                           "StretchDIBits 4x17 (17, 0)-(116, 17) #FEFEFB..#E3DED4\n"));
  run("release; gradient 0; press 150");
  EXPECT_EQ(flatColour(place), colours::white);
  run("release; gradient 1; enable 0");
  EXPECT_EQ(flatColour(place), colours::white);
  run("enable 1");
  place.ownSurface().forget();
  run("paint");
  EXPECT_EQ(drawn(place), track);
}

TEST_P(Bars, TheThumbHasEdgesAndAGrip) {
  run(either("max 146; style 0", "max 145; style 2"));
  EXPECT_EQ(drawn(thumb),
            either("Cls\nPaintPicture 13x14 \"vertical thumb 3\" at (1, 0) as 14x299\n"
                   "Line 22 (0, 0)-(15, 18) #FFFFFF\nLine 6 (2, 19)-(15, 19) #7C9FD3\n"
                   "PSet (0, 19) #EEEDE5\nPSet (0, 18) #9AB5DC\nPSet (1, 19) #9AB5DC\n"
                   "PSet (15, 19) #EEEDE5\nPSet (15, 18) #9AB5DC\n"
                   "PaintPicture 7x8 \"vertical thumb 6\" at (4.5, 6)\n",
                   "Cls\nPaintPicture 14x13 \"horizontal thumb 15\" at (1, 0) as 19x239\n"
                   "Line 22 (0, 0)-(19, 14) #FFFFFF\nLine 6 (2, 15)-(20, 15) #829061\n"
                   "PSet (0, 15) #EEEDE5\nPSet (0, 14) #8F9975\nPSet (1, 15) #8F9975\n"
                   "PSet (20, 15) #EEEDE5\nPSet (20, 14) #8F9975\n"
                   "PaintPicture 8x7 \"horizontal thumb 18\" at (6.5, 4.5)\n"));
  run("style 0; max 153");
  EXPECT_EQ(picture(thumb), either("vertical thumb 3", "horizontal thumb 3"));
  run("max 152");
  EXPECT_EQ(picture(thumb), either("vertical thumb 6", "horizontal thumb 6"));
}

TEST_P(Bars, ASilverThumbHasAnOutlineThatChangesUnderThePointer) {
  run("max 153; style 1");
  EXPECT_TRUE(drawn(thumb).ends_with(
      either("Line 6 (0, 1)-(0, 11) #9495A2\nLine 6 (15, 1)-(15, 11) #9495A2\nPSet (1, 0) #9495A2\n"
             "PSet (15, 0) #9495A2\nLine 6 (14, 2)-(14, 10) #FFFFFF\n"
             "Line 6 (1, 0)-(14, 0) #B7B7BF\nLine 6 (1, 11)-(14, 11) #D0D1DF\n",
             "Line 6 (1, 0)-(11, 0) #B7B7BF\nLine 6 (1, 14)-(11, 14) #D0D1DF\n")));
  run("hover 20");
  EXPECT_TRUE(drawn(thumb).ends_with(
      either("PSet (15, 11) #8B8C9A\nLine 6 (0, 1)-(0, 11) #5B6665\n"
             "Line 6 (15, 1)-(15, 11) #5B6665\nLine 6 (2, 12)-(15, 12) #5B6665\n"
             "Line 6 (1, 0)-(14, 0) #5B6665\nLine 6 (1, 11)-(14, 11) #D0D1DF\n",
             "Line 6 (1, 0)-(11, 0) #5B6665\nLine 6 (1, 14)-(11, 14) #D0D1DF\n")));
}

TEST_P(Bars, AStyleWithoutPicturesLeavesThePartsUnpainted) {
  for (const char* style : {"style 7; reports", either("style 99; reports", "style -1; reports")}) {
    EXPECT_EQ(run(style), either("<340 RedrawScroll, 340 C, 340 C>",
                                 "<340 RedrawScroll, 340 PaintState, 340 PaintState>"));
    EXPECT_EQ(drawn(thumb), "Cls\n");
    EXPECT_NE(drawn(place), "Cls\n");
  }
  EXPECT_EQ(run("press 190; events; release"), either("<>", "<Change 1>"));
  // A style that is too large for selecting a picture.
  run("style 0; style 1073741824");
  EXPECT_EQ(drawn(thumb) == "Cls\n", axis == scroll::Axis::horizontal);
}

/// The other bar has no pictures in that style.
struct HorizontalBar : BarTest {
  HorizontalBar() : BarTest(scroll::Axis::horizontal) {}
};

TEST_F(HorizontalBar, HasACustomStyle) {
  auto& horizontal = static_cast<nvHScroll&>(bar);
  horizontal.SetNewProperty(propertiesOf(
      "ScrollBar = 1\nScrollBarHover = 2\nScrollBarDown = 3\nScrollButtons = 4\n"
      "ScrollButtonsHover = 5\nScrollButtonsDown = 6\nScrollArrows = 7\nScrollArrowsHover = 8\n"
      "ScrollArrowsDown = 9\nScrollBackColor = 10"));
  run("style 99; press 150");
  EXPECT_EQ(flatColour(place), 10);
  const std::tuple<const char*, Colour, Colour, std::string> cases[] = {
      {"release; hover 50", 2, 4, "#070000\n"},
      {"press 50", 3, 4, "#070000\n"},
      {"move 50 60; release 50 60", 1, 4, "#070000\n"},
      {"hover 3 3", 1, 5, "#080000\n"},
      {"press 3 3", 1, 6, "#090000\n"}};
  for (const auto& [script, fill, face, arrow] : cases) {
    run(script);
    EXPECT_EQ(flatColour(thumb), fill) << script;
    EXPECT_EQ(background(nearButton), face) << script;
    std::string calls = "Cls\nForeColor " + arrow;
    for (const char* call : {"Line 6 (9, 4)-(5, 8) ", "Line 6 (9, 5)-(5, 9) ",
                             "Line 6 (10, 5)-(5, 10) ", "PSet (5, 8) ", "Line 6 (5, 8)-(11, 12) ",
                             "Line 6 (6, 9)-(10, 13) ", "Line 6 (8, 9)-(11, 12) "})
      calls += call + arrow;
    EXPECT_EQ(drawn(nearButton), calls) << script;
  }
  EXPECT_TRUE(drawn(farButton).ends_with("Line 6 (10, 9)-(6, 13) #070000\n"));

  // Colours read before an invalid value are kept; an empty store gives the defaults.
  horizontal.SetNewProperty(propertiesOf("ScrollBarDown = red\nScrollBackColor = 11"));
  EXPECT_EQ(run("reports"), "<13 SetNewProperty>");
  EXPECT_EQ(horizontal.BackColor(), 11);
  horizontal.SetNewProperty(PropertyBag());
  EXPECT_EQ(horizontal.BackColor(), colours::white);
  EXPECT_EQ(flatColour(thumb), systemColour(15));
}

}  // namespace
}  // namespace norvane
