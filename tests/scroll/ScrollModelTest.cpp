#include "Bars.h"

#include <cmath>
#include <limits>
#include <random>

namespace norvane {
namespace {

constexpr auto highest = std::numeric_limits<std::int32_t>::max();

template <class Bar>
class ScrollModel : public BarTest<Bar> {};
TYPED_TEST_SUITE(ScrollModel, BothBars);

TYPED_TEST(ScrollModel, TheThumbIsShorterByAPixelForEachUnitOfTheMaximum) {
  struct Case {
    std::int32_t min, max;
    float length;
  };
  constexpr Case cases[] = {{-30, -10, 176}, {0, 0, 166}, {0, 150, 16},   {100, 150, 16},
                            {0, 158, 8},     {0, 159, 8}, {0, highest, 8}};
  for (const Case& c : cases) {
    this->range(c.min, c.max);
    EXPECT_EQ(this->thumbLength(), c.length) << c.max;
  }
  // The length is taken anew when the bar is shown, not when it is resized.
  this->range(0, 100);
  this->length(300);
  EXPECT_EQ(this->thumbLength(), 66);
  this->showAnew();
  EXPECT_EQ(this->thumbLength(), 166);
  EXPECT_EQ(this->reports(), "");
}

/// A platform of whole pixels.
struct Rounding : HeadlessContainer {
  void move(const Bounds& bounds) override {
    HeadlessContainer::move(
        {bounds.Left, bounds.Top, std::round(bounds.Width), std::round(bounds.Height)});
  }
};

TYPED_TEST(ScrollModel, TheVerticalThumbGoesByTheLengthGivenAndTheOtherByTheOneTaken) {
  auto own = std::make_unique<Rounding>();
  const Rounding& place = *own;
  TypeParam bar(std::move(own), *this);
  bar.UserControl_InitProperties();
  this->isVertical ? bar.Height(200.25F) : bar.Width(200.25F);
  bar.Visible(true);
  EXPECT_EQ(this->lengthOf(place.children()[0]->bounds()), this->isVertical ? 66.25F : 66);
}

TYPED_TEST(ScrollModel, TheThumbStandsByTheValueAndAtTheEndsExactly) {
  this->range(0, 301);
  const float unit = 158.0F / 301;
  struct Case {
    std::int32_t value;
    float at;
  };
  for (const Case& c : {Case{0, 17},
                        {301, 175},
                        {1, 17 + unit},
                        {300, 17 + 300 * unit},
                        {1000, 17 + 1000 * unit},
                        {-2, 17 - 2 * unit}}) {
    this->bar.Value(c.value);
    EXPECT_FLOAT_EQ(this->thumbAt(), c.at);
    EXPECT_EQ(this->bar.Value(), c.value);
  }
  EXPECT_EQ(this->heard(), "");

  this->press(20);
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 0, Change 0");
  this->bar.Value(1000);
  this->press(190);
  this->release();
  EXPECT_EQ(this->heard(), "Change 1000");
  this->press(10);
  this->release();
  EXPECT_EQ(this->heard(), "Change 999");
}

TYPED_TEST(ScrollModel, StepsGoByOneAndAreToldAtTheEndsToo) {
  this->bar.SmallChange(10);
  this->bar.LargeChange(20);
  this->bar.Value(99);
  for (int i = 0; i < 2; ++i) {
    this->press(190);
    this->release();
  }
  EXPECT_EQ(this->heard(), "Change 100, Change 100");
  this->bar.Value(1);
  for (int i = 0; i < 2; ++i) {
    this->press(5);
    this->release();
  }
  EXPECT_EQ(this->heard(), "Change 0, Change 0");
  EXPECT_EQ(this->bar.SmallChange() + this->bar.LargeChange(), 30);
}

TYPED_TEST(ScrollModel, ADragRoundsHalvesToEvenAndStopsAtTheButtons) {
  this->range(50, 100);
  ASSERT_EQ(this->thumbAt(), 17);
  this->drag(5);
  EXPECT_EQ(this->thumbAt(), 22);
  EXPECT_EQ(this->heard(), "Scroll 52");
  this->moveTo(27);
  EXPECT_EQ(this->thumbAt(), 24);
  EXPECT_EQ(this->heard(), "Scroll 54");
  this->moveTo(27.25F);
  EXPECT_EQ(this->heard(), "");
  this->moveTo(500);
  EXPECT_EQ(this->thumbAt(), 117);
  this->moveTo(-500);
  EXPECT_EQ(this->thumbAt(), 17);
  EXPECT_EQ(this->heard(), "Scroll 100, Scroll 50");

  // Held where it was taken, to the nearest pixel, and let go on a place that fits the value.
  this->moveTo(23);
  EXPECT_EQ(this->thumbAt(), 20);
  this->release();
  EXPECT_EQ(this->thumbAt(), 21);
  EXPECT_EQ(this->heard(), "Scroll 52, Change 52");
  this->press(24.5F);
  this->moveTo(27);
  EXPECT_EQ(this->thumbAt(), 23);
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 53, Change 53");
  this->moveTo(90, 8, 0);
  EXPECT_EQ(this->thumbAt(), 23);

  // From beyond the far end any move brings it back, from before the near end only one that way.
  for (const std::int32_t value : {102, 49}) {
    this->bar.Value(value);
    const float before = this->thumbAt();
    this->drag(0);
    EXPECT_EQ(this->thumbAt(), value == 102 ? 117 : before);
    this->release();
  }
}

TYPED_TEST(ScrollModel, WithoutActiveScrollingTheValueWaitsForTheRelease) {
  this->bar.ActiveScrolling(false);
  this->drag(30);
  this->moveTo(60);
  EXPECT_EQ(this->thumbAt(), 57);
  EXPECT_EQ(this->heard(), "");
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 40, Change 40");
  this->press(60);
  this->release();
  EXPECT_EQ(this->heard(), "Change 40");
  // Setting it in the middle of a drag leaves the thumb where the mouse has it.
  this->drag(10);
  this->bar.Value(7);
  EXPECT_EQ(this->thumbAt(), 67);
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 50, Change 50");
}

TYPED_TEST(ScrollModel, ADragNeedsTheLeftButtonAloneAndTheNeighbourhoodOfTheBar) {
  this->drag(10);
  this->moveTo(60, 8, 3);
  this->moveTo(60, 8, 2);
  EXPECT_EQ(this->thumbAt(), 27);
  // The thumb begins one pixel inside the bar and is 16 across.
  this->moveTo(60, -129);
  this->moveTo(60, 147);
  EXPECT_EQ(this->thumbAt(), 27);
  this->moveTo(40, -128.5F);
  EXPECT_EQ(this->thumbAt(), 37);
  this->moveTo(45, 146.5F);
  EXPECT_EQ(this->thumbAt(), 42);
  EXPECT_EQ(this->heard(), "Scroll 10, Scroll 20, Scroll 25");
}

TYPED_TEST(ScrollModel, ARangeOfOneValueKeepsTheThumbAtTheNearEnd) {
  this->range(0, 100);
  this->bar.Value(100);
  this->bar.Min(100);
  EXPECT_EQ(this->thumbAt(), 17);
  this->drag(3);
  this->release();
  EXPECT_EQ(this->thumbAt(), 17);
  EXPECT_EQ(this->heard(), "Change 100");

  // Here the thumb fills the track and its place means nothing.
  this->bar.Min(0);
  this->bar.Max(0);
  this->bar.Value(3);
  this->press(100);
  this->release();
  EXPECT_EQ(this->reports(), "11 ÜberprüfeValue");
  EXPECT_EQ(this->heard(), "Change 3");
  this->silent();
  this->bar.Value(3);
  this->press(100);
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 0, Change 0");
}

TYPED_TEST(ScrollModel, ABarWithoutRoomPaintsNoThumbAndReportsNothing) {
  for (const float length : {40.0F, 45.0F, 17.0F, 0.0F}) {
    this->length(length);
    this->showAnew();
    EXPECT_FALSE(this->thumb.isShown());
    for (const std::int32_t max : {100, 0}) {
      this->bar.Max(max);
      this->bar.ColorStyle(cXPScrollSilver);
      this->bar.Value(max);
      this->bar.UserControl_Paint();
    }
  }
  EXPECT_EQ(this->reports(), "");
  this->length(46);
  EXPECT_TRUE(this->thumb.isShown());
  this->length(40);
  this->bar.Max(5);
  this->press(39);
  this->release();
  EXPECT_EQ(this->heard(), "Change 1");
}

TYPED_TEST(ScrollModel, BoundsThatCrossAreRefusedWithABox) {
  this->bar.Min(100);
  this->bar.Min(101);
  this->bar.Max(99);
  EXPECT_EQ(this->bar.Min(), 100);
  EXPECT_EQ(this->bar.Max(), 100);
  ASSERT_EQ(this->application.boxes.size(), 2U);
  EXPECT_EQ(this->application.boxes[0].text, "Min darf nicht größer sein als Max!");
  EXPECT_EQ(this->application.boxes[1].text, "Max darf nicht kleiner sein als Min!");
  EXPECT_EQ(this->application.boxes[1].style, 16);
  EXPECT_EQ(this->application.boxes[1].title, "nvList");
}

TYPED_TEST(ScrollModel, ARangeBeyondTheNumbersIsReportedAndKept) {
  this->bar.Max(highest);
  this->bar.Min(0);
  EXPECT_EQ(this->reports(), "");
  this->bar.Min(-2);
  EXPECT_EQ(this->reports(), "6 GetIMX");
  EXPECT_EQ(this->bar.Min(), -2);
  for (int i = 0; i < 2; ++i) {
    this->bar.Value(-2);
    EXPECT_EQ(this->reports(), "6 GetIMX");
  }
  for (int i = 0; i < 2; ++i) {
    this->bar.Value(highest - 1);
    EXPECT_EQ(this->reports(), "6 GetIMX, 6 Redraw");
  }
  this->press(190);
  EXPECT_EQ(this->heard(), "Change 2147483647");
  EXPECT_EQ(this->thumbAt(), 175);
}

TYPED_TEST(ScrollModel, AValueSetToWhatItIsPutsThingsRightAllTheSame) {
  this->range(0, 100);
  this->bar.Value(100);
  this->length(300);
  this->showAnew();
  EXPECT_EQ(this->thumbAt(), 300 - 17 - 66);
  this->bar.Value(100);
  EXPECT_EQ(this->thumbAt(), 300 - 17 - 166);
  // The thumb has come to a press on the track, which the next look at it ends.
  this->press(110);
  this->bar.Value(90);
  EXPECT_TRUE(this->bar.state().PageActive);
  this->bar.Value(90);
  EXPECT_FALSE(this->bar.state().PageActive);
}

TYPED_TEST(ScrollModel, TheTrackStepsUntilTheThumbReachesThePress) {
  for (const bool isFar : {true, false}) {
    this->bar.Value(isFar ? 0 : 100);
    this->heardAt();
    this->press(isFar ? 85.5F : 114.5F);
    this->wait(2000);
    // The third step of a pixel brings the thumb there, and the next one finds it there.
    EXPECT_EQ(this->heardAt(), this->isVertical ? "0 600 700 800" : "0 350 450 550");
    EXPECT_EQ(this->bar.Value(), isFar ? 4 : 96);
    EXPECT_FALSE(this->bar.state().PageActive);
    this->release();
  }
  this->bar.Value(0);
  this->press(150);
  this->wait(650);
  this->release();
  this->wait(1000);
  EXPECT_EQ(this->heardAt(), this->isVertical ? "0 600" : "0 350 450 550 650");
  // Beside the thumb a press does nothing, nor does one right at its end.
  for (const auto& [along, across] : {std::pair(0.0F, 0.0F), {this->thumbLength(), 8.0F}}) {
    this->press(this->thumbAt() + along, across);
    this->wait(1000);
    this->release();
  }
  EXPECT_EQ(this->heardAt(), "");
  EXPECT_EQ(this->bar.state().PageDirection, 0);
}

TYPED_TEST(ScrollModel, AStepBeyondThePressGoesBack) {
  this->range(149, 150);
  ASSERT_EQ(this->thumbLength(), 16);
  this->press(100);
  EXPECT_EQ(this->heard(), "Change 150, Change 149");
  EXPECT_FALSE(this->bar.state().PageActive);
  this->wait(1000);
  EXPECT_EQ(this->heard(), "");
}

TYPED_TEST(ScrollModel, ATrackPressStopsAtOnceWhereThePointerHasLeftTheButton) {
  this->moveTo(190, 8, 0);
  this->moveTo(150, 8, 0);
  this->press(150);
  this->wait(2000);
  EXPECT_EQ(this->heard(), "Change 1");
  EXPECT_TRUE(this->bar.state().PageActive);
  this->release();
  this->moveTo(190, 8, 0);
  this->press(150);
  this->wait(700);
  EXPECT_EQ(this->heard().substr(0, 18), "Change 2, Change 3");
}

TYPED_TEST(ScrollModel, ADisabledBarHasNoThumbAndHearsNoMouse) {
  this->bar.Enabled(false);
  EXPECT_FALSE(this->thumb.isShown());
  EXPECT_EQ(this->shown(this->nearButton), 4);
  EXPECT_EQ(this->shown(this->farButton), 4);
  for (const float at : {5.0F, 50.0F, 150.0F, 190.0F}) {
    this->press(at);
    this->release();
  }
  EXPECT_EQ(this->heard(), "");
  this->length(40);
  this->bar.Enabled(true);
  EXPECT_TRUE(this->thumb.isShown());
  EXPECT_EQ(this->shown(this->farButton), 1);
}

TYPED_TEST(ScrollModel, ShowsTheAboutBox) {
  this->bar.About();
  ASSERT_EQ(this->application.boxes.size(), 1U);
  EXPECT_EQ(this->application.boxes[0].title, "About nvList");
}

TYPED_TEST(ScrollModel, KeepsItsPropertiesInAStore) {
  PropertyBag bag;
  this->bar.UserControl_WriteProperties(bag);
  EXPECT_TRUE(bag.properties().empty());
  std::string names;
  this->place.onPropertyChanged = [&](std::string_view name) { names += std::string(name) + " "; };
  this->bar.Max(7);
  this->bar.Min(-5);
  this->bar.Value(3);
  this->bar.Gradient(false);
  this->bar.ColorStyle(cXPScrollOlive);
  this->bar.ActiveScrolling(false);
  this->bar.SmallChange(2);
  this->bar.LargeChange(3);
  this->bar.Enabled(false);
  EXPECT_EQ(names,
            "Max Min Value Gradient ColorStyle ActiveScrolling SmallChange LargeChange Enabled ");
  this->bar.UserControl_WriteProperties(bag);
  std::string stored;
  for (const auto& [name, value] : bag.properties()) stored += name + "=" + value.toText() + " ";
  EXPECT_EQ(stored,
            "Min=-5 Max=7 Value=3 Gradient=False ColorStyle=2 ActiveScrolling=False LargeChange=3 "
            "SmallChange=2 Enabled=False ");

  TypeParam other(this->form.addChild(), *this);
  other.UserControl_ReadProperties(bag);
  PropertyBag copy;
  other.UserControl_WriteProperties(copy);
  EXPECT_EQ(copy.properties().size(), 9U);
  EXPECT_EQ(other.Value(), 3);
  EXPECT_EQ(other.ColorStyle(), cXPScrollOlive);
  other.UserControl_ReadProperties(PropertyBag());
  other.UserControl_WriteProperties(copy);
  EXPECT_TRUE(copy.properties().empty());

  // A minimum is held against the maximum that is not read yet.
  bag.WriteProperty("Min", 5, 0);
  bag.WriteProperty("Gradient", "no", true);
  TypeParam third(this->form.addChild(), *this);
  third.UserControl_ReadProperties(bag);
  EXPECT_EQ(third.Min(), 0);
  EXPECT_EQ(third.Max(), 7);
  EXPECT_EQ(this->application.boxes.at(0).text, "Min darf nicht größer sein als Max!");
  this->application.boxes.erase(this->application.boxes.begin());
  EXPECT_EQ(this->reports(), "13 UserControl_ReadProperties");
}

TYPED_TEST(ScrollModel, AnyDragStaysInTheRangeAndAPlacedThumbGivesItsValue) {
  std::mt19937 random(5);
  const auto between = [&](std::int32_t first, std::int32_t last) {
    return std::uniform_int_distribution<std::int32_t>(first, last)(random);
  };
  int readBack = 0;
  for (int i = 0; i < 2000; ++i) {
    const std::int32_t min = between(-300, 300);
    const std::int32_t max = min + between(0, i % 3 == 0 ? 100000 : 300);
    this->range(min, max);
    const auto length = static_cast<float>(between(46, 700));
    this->length(length);
    this->showAnew();
    const std::int32_t value = between(min, max);
    this->bar.Value(value);
    ASSERT_TRUE(this->thumb.isShown());
    const auto middle = [&] {
      return std::clamp(this->thumbAt() + this->thumbLength() / 2, 17.5F, length - 17.5F);
    };
    this->press(middle());
    this->release();
    if (this->bar.state().UnitPixels >= 1) {
      ASSERT_EQ(this->bar.Value(), value) << min << " " << max << " " << length;
      ++readBack;
    }
    this->press(middle());
    this->moveTo(static_cast<float>(between(-50, 750)) / 4);
    this->moveTo(static_cast<float>(between(-50, 750)) / 3);
    ASSERT_TRUE(this->bar.Value() >= min && this->bar.Value() <= max);
    this->release();
    ASSERT_TRUE(this->bar.Value() >= min && this->bar.Value() <= max);
  }
  EXPECT_GT(readBack, 500);
}

}  // namespace
}  // namespace norvane
