#include "Bars.h"

namespace norvane {
namespace {

template <class Bar>
class Thumb : public BarTest<Bar> {
 protected:
  std::string picture() { return this->thumb.ownSurface().image().text(); }
  /// The number of the body's picture.
  int body() { return std::stoi(picture().substr(picture().find("thumb ") + 6)); }
  bool hasGrip() { return picture().find("PaintPicture", 20) != std::string::npos; }
};
using VerticalThumb = Thumb<nvVScroll>;
using HorizontalThumb = Thumb<nvHScroll>;
TYPED_TEST_SUITE(Thumb, BothBars);

TEST_F(VerticalThumb, Blue) {
  range(0, 146);
  EXPECT_EQ(picture(),
            "Cls\n"
            "PaintPicture 13x14 \"vertical thumb 3\" at (1, 0) as 14x299\n"
            "Line 22 (0, 0)-(15, 18) #FFFFFF\n"
            "Line 6 (2, 19)-(15, 19) #7C9FD3\n"
            "PSet (0, 19) #EEEDE5\n"
            "PSet (0, 18) #9AB5DC\n"
            "PSet (1, 19) #9AB5DC\n"
            "PSet (15, 19) #EEEDE5\n"
            "PSet (15, 18) #9AB5DC\n"
            "PaintPicture 7x8 \"vertical thumb 6\" at (4.5, 6)\n");
}

TEST_F(HorizontalThumb, Olive) {
  range(0, 145);
  bar.ColorStyle(cXPScrollOlive);
  EXPECT_EQ(picture(),
            "Cls\n"
            "PaintPicture 14x13 \"horizontal thumb 15\" at (1, 0) as 19x239\n"
            "Line 22 (0, 0)-(19, 14) #FFFFFF\n"
            "Line 6 (2, 15)-(20, 15) #829061\n"
            "PSet (0, 15) #EEEDE5\n"
            "PSet (0, 14) #8F9975\n"
            "PSet (1, 15) #8F9975\n"
            "PSet (20, 15) #EEEDE5\n"
            "PSet (20, 14) #8F9975\n"
            "PaintPicture 8x7 \"horizontal thumb 18\" at (6.5, 4.5)\n");
}

TEST_F(VerticalThumb, SilverHasAnOutlineThatChangesUnderThePointer) {
  range(0, 153);
  bar.ColorStyle(cXPScrollSilver);
  const std::string edges =
      "Line 22 (0, 0)-(15, 11) #FFFFFF\n"
      "Line 6 (2, 12)-(15, 12) #9D9EAC\n"
      "PSet (0, 12) #EEEDE5\n"
      "PSet (0, 11) #8B8C9A\n"
      "PSet (1, 12) #8B8C9A\n"
      "PSet (15, 12) #EEEDE5\n"
      "PSet (15, 11) #8B8C9A\n";
  EXPECT_EQ(picture(),
            "Cls\n"
            "PaintPicture 13x14 \"vertical thumb 9\" at (1, 0) as 14x194\n" +
                edges +
                "Line 6 (0, 1)-(0, 11) #9495A2\n"
                "Line 6 (15, 1)-(15, 11) #9495A2\n"
                "PSet (1, 0) #9495A2\n"
                "PSet (15, 0) #9495A2\n"
                "Line 6 (14, 2)-(14, 10) #FFFFFF\n"
                "Line 6 (1, 0)-(14, 0) #B7B7BF\n"
                "Line 6 (1, 11)-(14, 11) #D0D1DF\n");
  moveTo(20, 8, 0);
  EXPECT_EQ(picture(),
            "Cls\n"
            "PaintPicture 13x14 \"vertical thumb 8\" at (1, 0) as 14x194\n" +
                edges +
                "Line 6 (0, 1)-(0, 11) #5B6665\n"
                "Line 6 (15, 1)-(15, 11) #5B6665\n"
                "Line 6 (2, 12)-(15, 12) #5B6665\n"
                "Line 6 (1, 0)-(14, 0) #5B6665\n"
                "Line 6 (1, 11)-(14, 11) #D0D1DF\n");
}

TYPED_TEST(Thumb, AShortOneHasNoGrip) {
  this->range(0, 153);
  EXPECT_FALSE(this->hasGrip());
  this->range(0, 152);
  EXPECT_TRUE(this->hasGrip());
}

TYPED_TEST(Thumb, ShowsThePressUntilTheReleaseAndHoverByTheLastMove) {
  EXPECT_EQ(this->body(), 3);
  this->moveTo(50, 8, 0);
  EXPECT_EQ(this->body(), 2);
  this->press(50);
  EXPECT_EQ(this->body(), 1);
  const int frames = this->thumb.ownSurface().frames();
  this->moveTo(50, 60);
  EXPECT_EQ(this->thumb.ownSurface().frames(), frames);
  EXPECT_TRUE(this->thumb.hasCapture());
  this->release();
  EXPECT_EQ(this->body(), 3);
  this->moveTo(50, 8, 0);
  this->moveTo(50, 17, 0);
  EXPECT_EQ(this->body(), 2);
  this->moveTo(50, 17.5F, 0);
  EXPECT_EQ(this->body(), 3);
  EXPECT_FALSE(this->thumb.hasCapture());
}

TYPED_TEST(Thumb, AStyleWithoutPicturesLeavesItUnpainted) {
  this->bar.ColorStyle(static_cast<cScrollColorStyle>(7));
  EXPECT_EQ(this->reports(), this->isVertical ? "340 RedrawScroll, 340 C, 340 C"
                                              : "340 RedrawScroll, 340 PaintState, 340 PaintState");
  EXPECT_EQ(this->thumb.ownSurface().image().text(), "Cls\n");
  this->press(190);
  EXPECT_EQ(this->heard(), this->isVertical ? "" : "Change 1");
}

}  // namespace
}  // namespace norvane
