#include "Bars.h"

namespace norvane {
namespace {

template <class Bar>
class BarPaint : public BarTest<Bar> {
 protected:
  std::string picture() { return this->place.ownSurface().image().text(); }
};
using VerticalPaint = BarPaint<nvVScroll>;
using HorizontalPaint = BarPaint<nvHScroll>;
TYPED_TEST_SUITE(BarPaint, BothBars);

TEST_F(VerticalPaint, ATrackPressDarkensTheSideOfThePress) {
  const std::string track = "Cls\nStretchDIBits 17x1 (0, 0)-(17, 200) #F3F1EC..#FDFDFA\n";
  EXPECT_EQ(picture(), track);
  press(150);
  // The thumb has taken its first step.
  EXPECT_EQ(picture(), track + "StretchDIBits 17x1 (0, 84)-(17, 200) #E3DED3..#FCFCF9\n");
  EXPECT_EQ(bar.state().PageDirection, 2);
  release();
  EXPECT_EQ(picture(), track);
  bar.Value(100);
  press(30);
  EXPECT_EQ(picture(), track + "StretchDIBits 17x1 (0, 17)-(17, 116) #E3DED3..#FCFCF9\n");
  EXPECT_EQ(bar.state().PageDirection, 1);
}

TEST_F(HorizontalPaint, ATrackPressDarkensTheSideOfThePress) {
  const std::string track = "Cls\nStretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC\n";
  EXPECT_EQ(picture(), track);
  press(150);
  EXPECT_EQ(picture(), track + "StretchDIBits 4x17 (84, 0)-(200, 17) #FEFEFB..#E3DED4\n");
  EXPECT_EQ(bar.state().PageDirection, 1);
  release();
  bar.Value(100);
  press(30);
  EXPECT_EQ(picture(), track + "StretchDIBits 4x17 (17, 0)-(116, 17) #FEFEFB..#E3DED4\n");
  EXPECT_EQ(bar.state().PageDirection, 2);
}

TYPED_TEST(BarPaint, WithoutAGradientOrDisabledTheTrackIsWhite) {
  this->bar.Gradient(false);
  EXPECT_EQ(this->flatColour(this->place), colours::white);
  this->press(150);
  EXPECT_EQ(this->picture(), "Cls\n");
  this->release();
  this->bar.Gradient(true);
  const std::string track = this->picture();
  this->bar.Enabled(false);
  EXPECT_EQ(this->flatColour(this->place), colours::white);
  this->bar.Enabled(true);
  EXPECT_EQ(this->picture(), track);
  this->place.ownSurface().forget();
  this->bar.UserControl_Paint();
  EXPECT_EQ(this->picture(), track);
}

TYPED_TEST(BarPaint, DarkensByRoundedPlacesOfTheThumb) {
  // Two thirds of a pixel a unit: the first step takes the thumb from 17 to 17.67.
  this->range(0, 237);
  this->press(150);
  EXPECT_FLOAT_EQ(this->thumbAt(), 17 + 158.0F / 237);
  EXPECT_NE(this->picture().find(this->isVertical ? "(0, 26)-(17, 200)" : "(26, 0)-(200, 17)"),
            std::string::npos);
}

TEST_F(HorizontalPaint, CustomStyleIsFlatWhateverElseIsSet) {
  PropertyBag bag;
  bag.WriteProperty("ScrollBackColor", 0x123456, 0);
  bag.WriteProperty("ScrollArrows", "254", 0);
  bag.WriteProperty("ScrollButtonsHover", 0x777777, 0);
  bar.SetNewProperty(bag);
  EXPECT_NE(picture().find("StretchDIBits"), std::string::npos);
  EXPECT_EQ(shown(farButton), 1);
  bar.ColorStyle(bar.custom);
  EXPECT_EQ(flatColour(place), 0x123456);
  bar.Gradient(false);
  press(150);
  EXPECT_EQ(flatColour(place), 0x123456);
  EXPECT_EQ(heard(), "Change 1");
  release();
  moveTo(8, 8, 0);
  EXPECT_EQ(background(nearButton), 0x777777);
  moveTo(50, 8, 0);
  for (HeadlessContainer* button : {&nearButton, &farButton}) {
    EXPECT_EQ(background(*button), systemColour(15));
    const std::string chevron = button->ownSurface().image().text();
    EXPECT_EQ(chevron.substr(0, 22), "Cls\nForeColor #FE0000\n");
    EXPECT_EQ(std::count(chevron.begin(), chevron.end(), '\n'), 9);
  }
  EXPECT_NE(farButton.ownSurface().image().text().find("Line 6 (10, 9)-(6, 13) #FE0000\n"),
            std::string::npos);

  // What comes before a value that is no colour stays; an empty store gives the defaults.
  bag.WriteProperty("ScrollBackColor", 0x654321, 0);
  bag.WriteProperty("ScrollBarDown", "red", 0);
  bag.WriteProperty("ScrollArrows", 0, 1);
  bar.SetNewProperty(bag);
  EXPECT_EQ(reports(), "13 SetNewProperty");
  EXPECT_EQ(bar.BackColor(), 0x654321);
  EXPECT_EQ(lastCall(nearButton), "Line 6 (8, 9)-(11, 12) #FE0000\n");
  bar.SetNewProperty(PropertyBag());
  EXPECT_EQ(bar.BackColor(), colours::white);
  EXPECT_EQ(flatColour(thumb), systemColour(15));
  EXPECT_EQ(lastCall(nearButton), "Line 6 (8, 9)-(11, 12) #000000\n");

  bar.UserControl_WriteProperties(bag);
  EXPECT_EQ(bag.ReadProperty("BackColor", 5).toInt32(), 5);
  bar.BackColor(7);
  bar.UserControl_WriteProperties(bag);
  EXPECT_EQ(bag.properties().back().name, "BackColor");
}

}  // namespace
}  // namespace norvane
