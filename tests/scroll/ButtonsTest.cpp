#include "Bars.h"

#include <limits>

namespace norvane {
namespace {

template <class Bar>
class Buttons : public BarTest<Bar> {};
TYPED_TEST_SUITE(Buttons, BothBars);

TYPED_TEST(Buttons, HeldTheyStepAfterTheirDelayAndThenTenTimesASecond) {
  for (const float at : {8.0F, 190.0F}) {
    this->heardAt();
    this->press(at);
    this->wait(1000);
    EXPECT_EQ(this->heardAt(),
              this->isVertical ? "0 600 700 800 900 1000" : "0 350 450 550 650 750 850 950");
    this->release(at);
    this->wait(1000);
    EXPECT_EQ(this->heardAt(), "");
  }
  this->press(190);
  this->wait(100);
  this->release(190);
  this->wait(1000);
  EXPECT_EQ(this->heardAt(), "0");
}

TYPED_TEST(Buttons, ThePointerOutsidePausesTheRepeatAndKeepsItsTiming) {
  struct Place {
    float along, across;
  };
  constexpr Place inside[] = {{0, 8}, {17, 8}, {8, 0}, {8, 17}};
  constexpr Place outside[] = {{-0.5F, 8}, {17.5F, 8}, {8, -0.5F}, {8, 17.5F}};
  this->moveTo(8, 8, 0);
  this->press(8);
  this->wait(this->isVertical ? 510 : 260);
  this->heardAt();
  for (int i = 0; i < 4; ++i) {
    this->moveTo(outside[i].along, outside[i].across);
    EXPECT_EQ(this->shown(this->nearButton), 1);
    EXPECT_TRUE(this->nearButton.hasCapture());
    this->wait(100);
    this->moveTo(inside[i].along, inside[i].across);
    EXPECT_EQ(this->shown(this->nearButton), 3);
    this->wait(100);
  }
  EXPECT_EQ(this->heardAt(), "190 390 590 790");
}

TYPED_TEST(Buttons, ShowTheirStates) {
  for (const bool isNear : {true, false}) {
    HeadlessContainer& button = isNear ? this->nearButton : this->farButton;
    const float inside = isNear ? 8.0F : 190.0F;
    const float outside = isNear ? 30.0F : 170.0F;
    this->press(inside);
    // Without a move the horizontal ones do not know of the pointer.
    EXPECT_EQ(this->shown(button), this->isVertical ? 3 : 1);
    this->moveTo(inside);
    EXPECT_EQ(this->shown(button), 3);
    EXPECT_FALSE(button.hasCapture());
    this->release(inside);
    EXPECT_EQ(this->shown(button), this->isVertical ? 1 : 2);
    this->moveTo(inside, 9, 0);
    EXPECT_EQ(this->shown(button), 2);
    EXPECT_TRUE(button.hasCapture());
    this->moveTo(outside, 8, 0);
    EXPECT_EQ(this->shown(button), 1);
    EXPECT_FALSE(button.hasCapture());

    // A press of the track does not show.
    this->bar.Value(isNear ? 100 : 0);
    this->moveTo(inside, 8, 0);
    this->press(isNear ? 20.0F : 180.0F);
    EXPECT_EQ(this->shown(button), this->isVertical ? 1 : 3);
    this->release();
    EXPECT_EQ(this->shown(button), this->isVertical ? 1 : 2);
    this->moveTo(outside, 8, 0);
  }
}

TYPED_TEST(Buttons, HaveEachTheirPicturesOfTheFamily) {
  const std::string names[] = {this->isVertical ? "button up " : "button left ",
                               this->isVertical ? "button down " : "button right "};
  for (const auto style : {cXPScrollBlue, cXPScrollSilver, cXPScrollOlive}) {
    this->bar.ColorStyle(style);
    const std::string number = std::to_string(style * 4 + 1);
    EXPECT_EQ(this->lastCall(this->nearButton),
              "PaintPicture 17x17 \"" + names[0] + number + "\" at (0, 0)\n");
    EXPECT_EQ(this->lastCall(this->farButton),
              "PaintPicture 17x17 \"" + names[1] + number + "\" at (0, 0)\n");
  }
}

TYPED_TEST(Buttons, AreAsLargeAsTheirPictures) {
  const Bounds expected = this->isVertical ? Bounds{0, 183, 17, 17} : Bounds{183, 0, 17, 17};
  EXPECT_EQ(this->farButton.bounds(), expected);
  this->isVertical ? this->bar.Width(40) : this->bar.Height(40);
  EXPECT_EQ(this->bar.Width() + this->bar.Height(), 217);
  EXPECT_EQ(this->farButton.bounds(), expected);
}

struct Counter final : VBtnUpEvents, VBtnLeftEvents {
  void VBtnUp1_ValueUp() override { step(); }
  void VBtnLeft1_ValueUp() override { step(); }
  void step() {
    ++count;
    onStep();
  }
  int count = 0;
  std::function<void()> onStep = [] {};
};

template <class Button>
class AloneTest : public ListTest {
 protected:
  Counter counter;
  HeadlessContainer form;
  Button button{form.addChild(), counter};
  HeadlessContainer& place = *form.children()[0];
};

using BothAlone = testing::Types<VBtnUp, VBtnLeft>;
TYPED_TEST_SUITE(AloneTest, BothAlone);

TYPED_TEST(AloneTest, TheDelayBeginsWhenTheFirstStepIsDone) {
  this->button.UserControl_MouseMove(0, 0, 1, 1);
  this->counter.onStep = [&] {
    if (this->counter.count == 1) this->form.clock().advance(std::chrono::milliseconds(2000));
  };
  this->button.UserControl_MouseDown(1, 0, 1, 1);
  EXPECT_EQ(this->counter.count, 1);
}

using VerticalAlone = AloneTest<VBtnUp>;
using HorizontalAlone = AloneTest<VBtnLeft>;

TEST_F(VerticalAlone, ABadStyleReportsEachPictureAndAPressEndsThere) {
  button.C(7);
  EXPECT_NE(application.boxes.at(0).text.find("Control array element '32' doesn't exist"),
            std::string::npos);
  EXPECT_NE(application.boxes.at(0).text.find("Benutzersteuerelement VBtnUp\r\n"),
            std::string::npos);
  button.UserControl_MouseDown(1, 0, 0, 0);
  EXPECT_EQ(reports(), "340 C, 340 UserControl_MouseDown");
  EXPECT_EQ(counter.count, 0);
  button.C(std::numeric_limits<std::int32_t>::max() / 2);
  EXPECT_EQ(reports(), "6 C");
}

TEST_F(VerticalAlone, PaintsAnewWhatItShowedLast) {
  button.Height(3);
  EXPECT_EQ(button.Width() + button.Height(), 34);
  button.UserControl_InitProperties();
  button.UserControl_MouseMove(0, 0, 1, 1);
  button.UserControl_MouseDown(1, 0, 1, 1);
  for (const char* number : {"3", "1"}) {
    const std::string expected =
        std::string("PaintPicture 17x17 \"button up ") + number + "\" at (0, 0)\n";
    place.ownSurface().forget();
    button.UserControl_Paint();
    EXPECT_EQ(place.ownSurface().image().text(), expected);
    button.UserControl_MouseUp(1, 0, 1, 1);
  }
}

TEST_F(HorizontalAlone, ABadStyleReportsEachPictureAndStepsAllTheSame) {
  button.C(7);
  button.UserControl_MouseDown(1, 0, 0, 0);
  EXPECT_EQ(reports(), "340 PaintState, 340 PaintState");
  EXPECT_EQ(counter.count, 1);
}

TEST_F(HorizontalAlone, CustomStyleDrawsAChevronOnAFlatFace) {
  button.C(99);
  button.En(false);
  button.Button(0x111111);
  button.ButtonHover(0x222222);
  button.ButtonDown(0x333333);
  button.Arrow(0x444444);
  button.ArrowHover(0x555555);
  button.ArrowDown(0x666666);
  const auto picture = [&](const std::string& arrow) {
    return "Cls\nForeColor " + arrow + "\nLine 6 (9, 4)-(5, 8) " + arrow +
           "\nLine 6 (9, 5)-(5, 9) " + arrow + "\nLine 6 (10, 5)-(5, 10) " + arrow +
           "\nPSet (5, 8) " + arrow + "\nLine 6 (5, 8)-(11, 12) " + arrow +
           "\nLine 6 (6, 9)-(10, 13) " + arrow + "\nLine 6 (8, 9)-(11, 12) " + arrow + "\n";
  };
  const auto expectShown = [&](const std::string& arrow, Colour face) {
    EXPECT_EQ(place.ownSurface().image().text(), picture(arrow));
    EXPECT_EQ(background(place), face);
  };
  expectShown("#444444", 0x111111);
  button.UserControl_MouseMove(0, 0, 3, 3);
  expectShown("#555555", 0x222222);
  button.UserControl_MouseDown(1, 0, 3, 3);
  expectShown("#666666", 0x333333);
  button.UserControl_MouseMove(1, 0, -1, 3);
  expectShown("#444444", 0x111111);
}

}  // namespace
}  // namespace norvane
