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
  release();
  EXPECT_EQ(picture(), track);
  bar.Value(100);
  press(30);
  EXPECT_EQ(picture(), track + "StretchDIBits 17x1 (0, 17)-(17, 116) #E3DED3..#FCFCF9\n");
}

TEST_F(HorizontalPaint, ATrackPressDarkensTheSideOfThePress) {
  const std::string track = "Cls\nStretchDIBits 4x17 (0, 0)-(200, 17) #FEFEFB..#F3F1EC\n";
  EXPECT_EQ(picture(), track);
  press(150);
  EXPECT_EQ(picture(), track + "StretchDIBits 4x17 (84, 0)-(200, 17) #FEFEFB..#E3DED4\n");
  release();
  bar.Value(100);
  press(30);
  EXPECT_EQ(picture(), track + "StretchDIBits 4x17 (17, 0)-(116, 17) #FEFEFB..#E3DED4\n");
}

TYPED_TEST(BarPaint, WithoutAGradientOrDisabledTheTrackIsWhite) {
  this->bar.Gradient(false);
  this->press(150);
  EXPECT_EQ(this->picture(), "Cls\n");
  this->release();
  this->bar.Gradient(true);
  const std::string track = this->picture();
  this->bar.Enabled(false);
  EXPECT_EQ(this->flatColour(this->place), colours::white);
  this->bar.Enabled(true);
  this->place.ownSurface().forget();
  this->bar.UserControl_Paint();
  EXPECT_EQ(this->picture(), track);
}

TEST_F(HorizontalPaint, CustomStyleIsFlatWhateverElseIsSet) {
  PropertyBag bag;
  for (const auto& [name, colour] : {std::pair("ScrollBackColor", 0x123456),
                                     {"ScrollBar", 0x111111},
                                     {"ScrollBarHover", 0x222222},
                                     {"ScrollBarDown", 0x333333}})
    bag.WriteProperty(name, colour, 0);
  bar.SetNewProperty(bag);
  bar.ColorStyle(bar.custom);
  press(150);
  EXPECT_EQ(flatColour(place), 0x123456);
  release();
  EXPECT_EQ(flatColour(thumb), 0x111111);
  moveTo(50, 8, 0);
  EXPECT_EQ(flatColour(thumb), 0x222222);
  press(50);
  EXPECT_EQ(flatColour(thumb), 0x333333);
  release();
  // What comes before a value that is no colour stays; an empty store gives the defaults.
  bag.WriteProperty("ScrollBackColor", 0x654321, 0);
  bag.WriteProperty("ScrollBarDown", "red", 0);
  bar.SetNewProperty(bag);
  EXPECT_EQ(reports(), "13 SetNewProperty");
  EXPECT_EQ(bar.BackColor(), 0x654321);
  bar.SetNewProperty(PropertyBag());
  EXPECT_EQ(bar.BackColor(), colours::white);
  EXPECT_EQ(flatColour(thumb), systemColour(15));
}

}  // namespace
}  // namespace norvane
