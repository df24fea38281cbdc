#include "Bars.h"

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
}

TYPED_TEST(Buttons, ThePointerOutsidePausesTheRepeatAndKeepsItsTiming) {
  this->moveTo(8, 8, 0);
  this->press(8);
  this->wait(this->isVertical ? 510 : 260);
  this->heardAt();
  for (const auto& [along, across] : {std::pair(0.0F, 8.0F), {17, 8}, {8, 0}, {8, 17}}) {
    const auto beyond = [](float place) { return place == 0 ? -0.5F : place == 17 ? 17.5F : 8; };
    this->moveTo(beyond(along), beyond(across));
    EXPECT_EQ(this->shown(this->nearButton), 1);
    this->wait(100);
    this->moveTo(along, across);
    EXPECT_EQ(this->shown(this->nearButton), 3);
    this->wait(100);
  }
  EXPECT_EQ(this->heardAt(), "190 390 590 790");
}

TYPED_TEST(Buttons, ShowTheirStates) {
  HeadlessContainer& button = this->farButton;
  this->press(190);
  // Without a move the horizontal ones do not know of the pointer.
  EXPECT_EQ(this->shown(button), this->isVertical ? 3 : 1);
  this->moveTo(190);
  EXPECT_EQ(this->shown(button), 3);
  this->release(190);
  EXPECT_EQ(this->shown(button), this->isVertical ? 1 : 2);
  this->moveTo(190, 9, 0);
  EXPECT_EQ(this->shown(button), 2);
  EXPECT_TRUE(button.hasCapture());
  this->moveTo(170, 8, 0);
  EXPECT_EQ(this->shown(button), 1);
  EXPECT_FALSE(button.hasCapture());

  // A press of the track does not show.
  this->moveTo(190, 8, 0);
  this->press(180);
  EXPECT_EQ(this->shown(button), this->isVertical ? 1 : 3);
  this->release();
  EXPECT_EQ(this->shown(button), this->isVertical ? 1 : 2);
}

TYPED_TEST(Buttons, HaveEachTheirPicturesOfTheFamily) {
  this->bar.ColorStyle(cXPScrollSilver);
  const auto shows = [](const std::string& call, const char* name) {
    return call.find(name) != std::string::npos;
  };
  EXPECT_TRUE(shows(this->lastCall(this->nearButton), this->isVertical ? "up 5" : "left 5"));
  EXPECT_TRUE(shows(this->lastCall(this->farButton), this->isVertical ? "down 5" : "right 5"));
}

TYPED_TEST(Buttons, AreAsLargeAsTheirPictures) {
  const Bounds expected = this->isVertical ? Bounds{0, 183, 17, 17} : Bounds{183, 0, 17, 17};
  EXPECT_EQ(this->farButton.bounds(), expected);
  this->isVertical ? this->bar.Width(40) : this->bar.Height(40);
  EXPECT_EQ(this->farButton.bounds(), expected);
}

TYPED_TEST(Buttons, TheDelayBeginsWhenTheFirstStepIsDone) {
  this->moveTo(8, 8, 0);
  this->onEvent = [&] { this->wait(2000); };
  this->press(8);
  EXPECT_EQ(this->heard(), "Change 0");
}

using HorizontalButtons = Buttons<nvHScroll>;

TEST_F(HorizontalButtons, CustomStyleDrawsAChevronOnAFlatFace) {
  constexpr std::pair<const char*, Colour> colours[] = {
      {"ScrollButtons", 0x111111},      {"ScrollArrows", 0x444444},
      {"ScrollButtonsHover", 0x222222}, {"ScrollArrowsHover", 0x555555},
      {"ScrollButtonsDown", 0x333333},  {"ScrollArrowsDown", 0x666666}};
  PropertyBag bag;
  for (const auto& [name, colour] : colours) bag.WriteProperty(name, colour, 0);
  bar.SetNewProperty(bag);
  bar.ColorStyle(bar.custom);
  const auto expectShown = [&](const std::string& arrow, Colour face) {
    EXPECT_EQ(nearButton.ownSurface().image().text(),
              "Cls\nForeColor " + arrow + "\nLine 6 (9, 4)-(5, 8) " + arrow +
                  "\nLine 6 (9, 5)-(5, 9) " + arrow + "\nLine 6 (10, 5)-(5, 10) " + arrow +
                  "\nPSet (5, 8) " + arrow + "\nLine 6 (5, 8)-(11, 12) " + arrow +
                  "\nLine 6 (6, 9)-(10, 13) " + arrow + "\nLine 6 (8, 9)-(11, 12) " + arrow + "\n");
    EXPECT_EQ(background(nearButton), face);
  };
  expectShown("#444444", 0x111111);
  moveTo(3, 3, 0);
  expectShown("#555555", 0x222222);
  press(3, 3);
  expectShown("#666666", 0x333333);
  moveTo(-1, 3);
  expectShown("#444444", 0x111111);
  EXPECT_EQ(lastCall(farButton), "Line 6 (10, 9)-(6, 13) #444444\n");
}

}  // namespace
}  // namespace norvane
