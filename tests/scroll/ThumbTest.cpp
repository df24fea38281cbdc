#include "Bars.h"

namespace norvane {
namespace {

class VerticalThumb : public BarTest<nvVScroll> {
 protected:
  std::string picture() { return thumb.ownSurface().image().text(); }
};

class HorizontalThumb : public BarTest<nvHScroll> {
 protected:
  std::string picture() { return thumb.ownSurface().image().text(); }
};

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

template <class Bar>
class Thumb : public BarTest<Bar> {
 protected:
  /// The number of the body's picture.
  int body() {
    const std::string calls = this->thumb.ownSurface().image().text();
    return std::stoi(calls.substr(calls.find("thumb ") + 6));
  }
  bool hasGrip() {
    return this->thumb.ownSurface().image().text().find("PaintPicture", 20) != std::string::npos;
  }
};
TYPED_TEST_SUITE(Thumb, BothBars);

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
  EXPECT_TRUE(this->thumb.hasCapture());
  this->press(50);
  EXPECT_EQ(this->body(), 1);
  const int frames = this->thumb.ownSurface().frames();
  this->moveTo(50, 60);
  EXPECT_EQ(this->thumb.ownSurface().frames(), frames);
  EXPECT_TRUE(this->thumb.hasCapture());
  this->release();
  EXPECT_EQ(this->body(), 3);
  this->moveTo(50, 8, 0);
  this->press(50);
  this->release();
  EXPECT_EQ(this->body(), 2);
  this->moveTo(50, 17, 0);
  EXPECT_EQ(this->body(), 2);
  this->moveTo(50, 17.5F, 0);
  EXPECT_EQ(this->body(), 3);
  EXPECT_FALSE(this->thumb.hasCapture());
  // No move, no hover.
  this->press(50);
  this->release();
  EXPECT_EQ(this->body(), 3);
}

TYPED_TEST(Thumb, AStyleWithoutPicturesLeavesItUnpainted) {
  this->bar.ColorStyle(static_cast<cScrollColorStyle>(7));
  EXPECT_NE(this->application.boxes.at(0).text.find("element '45' doesn't exist"),
            std::string::npos);
  EXPECT_EQ(this->reports(), this->isVertical ? "340 RedrawScroll, 340 C, 340 C"
                                              : "340 RedrawScroll, 340 PaintState, 340 PaintState");
  EXPECT_EQ(this->thumb.ownSurface().image().text(), "Cls\n");
  this->bar.ColorStyle(static_cast<cScrollColorStyle>(10000));
  EXPECT_EQ(this->reports().substr(0, 14), "6 RedrawScroll");
  this->bar.ColorStyle(static_cast<cScrollColorStyle>(99));
  EXPECT_EQ(this->reports(), this->isVertical ? "340 RedrawScroll, 340 C, 340 C" : "");
}

TEST_F(HorizontalThumb, CustomStyleIsOneColour) {
  PropertyBag bag;
  bag.WriteProperty("ScrollBar", 0x111111, 0);
  bag.WriteProperty("ScrollBarHover", 0x222222, 0);
  bag.WriteProperty("ScrollBarDown", 0x333333, 0);
  bar.SetNewProperty(bag);
  bar.ColorStyle(bar.custom);
  EXPECT_EQ(flatColour(thumb), 0x111111);
  press(50);
  EXPECT_EQ(flatColour(thumb), 0x111111);
  release();
  moveTo(50, 8, 0);
  EXPECT_EQ(flatColour(thumb), 0x222222);
  press(50);
  EXPECT_EQ(flatColour(thumb), 0x333333);
  moveTo(50, 60);
  EXPECT_EQ(flatColour(thumb), 0x333333);
}

}  // namespace
}  // namespace norvane
