#include "Bars.h"

#include <limits>
#include <random>
#include <tuple>

namespace norvane {
namespace {

constexpr auto highest = std::numeric_limits<std::int32_t>::max();

template <class Bar>
class ScrollModel : public BarTest<Bar> {};
TYPED_TEST_SUITE(ScrollModel, BothBars);

TYPED_TEST(ScrollModel, TheThumbIsShorterByAPixelForEachUnitOfTheMaximum) {
  for (const auto& [min, max, length] :
       {std::tuple(-30, -10, 176), {100, 150, 16}, {0, 159, 8}, {0, highest, 8}}) {
    this->range(min, max);
    EXPECT_EQ(this->thumbLength(), length) << max;
  }
  // The length is taken anew when the bar is shown, not when it is resized.
  this->range(0, 100);
  this->length(300);
  EXPECT_EQ(this->thumbLength(), 66);
  this->showAnew();
  EXPECT_EQ(this->thumbLength(), 166);
}

TYPED_TEST(ScrollModel, TheThumbStandsByTheValueAndAtTheEndsExactly) {
  this->range(0, 301);
  const float unit = 158.0F / 301;
  for (const auto& [value, at] :
       {std::pair(0, 17.0F), {301, 175}, {1, 17 + unit}, {1000, 17 + 1000 * unit}}) {
    this->bar.Value(value);
    EXPECT_FLOAT_EQ(this->thumbAt(), at);
  }
  this->bar.Value(-2);
  this->click(20);
  EXPECT_EQ(this->heard(), "Scroll 0, Change 0");
  this->bar.Value(1000);
  this->click(190);
  this->click(10);
  EXPECT_EQ(this->heard(), "Change 1000, Change 999");
}

TYPED_TEST(ScrollModel, StepsGoByOneAndAreToldAtTheEndsToo) {
  this->bar.SmallChange(10);
  this->bar.LargeChange(20);
  this->bar.Value(99);
  for (const float at : {190.0F, 190.0F, 5.0F}) this->click(at);
  this->bar.Value(1);
  for (const float at : {5.0F, 5.0F, 190.0F}) this->click(at);
  EXPECT_EQ(this->heard(), "Change 100, Change 100, Change 99, Change 0, Change 0, Change 1");
}

TYPED_TEST(ScrollModel, ADragRoundsHalvesToEvenAndStopsAtTheButtons) {
  this->range(50, 100);
  this->drag(5);
  this->moveTo(27);
  this->moveTo(27.25F);
  EXPECT_EQ(this->heard(), "Scroll 52, Scroll 54");
  this->moveTo(500);
  EXPECT_EQ(this->thumbAt(), 117);
  this->moveTo(-500);
  EXPECT_EQ(this->thumbAt(), 17);
  EXPECT_EQ(this->heard(), "Scroll 100, Scroll 50");

  // Held where it was taken, to the nearest pixel, and let go on a place that fits the value.
  this->moveTo(23);
  EXPECT_EQ(this->thumbAt(), 20);
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 52, Change 52");
  this->press(24.5F);
  this->moveTo(27);
  EXPECT_EQ(this->thumbAt(), 23);
  this->release();
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
  EXPECT_EQ(this->heard(), "");
  this->release();
  EXPECT_EQ(this->heard(), "Scroll 40, Change 40");
  // Setting it in the middle of a drag leaves the thumb where the mouse has it.
  this->drag(10);
  this->bar.Value(7);
  EXPECT_EQ(this->thumbAt(), 67);
}

TYPED_TEST(ScrollModel, ADragNeedsTheLeftButtonAloneAndTheNeighbourhoodOfTheBar) {
  this->drag(10);
  this->moveTo(60, 8, 3);
  // The thumb begins one pixel inside the bar and is 16 across.
  this->moveTo(60, -129);
  this->moveTo(60, 147);
  EXPECT_EQ(this->thumbAt(), 27);
  this->moveTo(40, -128.5F);
  this->moveTo(45, 146.5F);
  EXPECT_EQ(this->heard(), "Scroll 10, Scroll 20, Scroll 25");
}

TYPED_TEST(ScrollModel, ARangeOfOneValueKeepsTheThumbAtTheNearEnd) {
  this->range(0, 100);
  this->bar.Value(100);
  this->bar.Min(100);
  EXPECT_EQ(this->thumbAt(), 17);
  // Here the thumb fills the track and its place means nothing.
  this->bar.Min(0);
  this->bar.Max(0);
  this->bar.Value(3);
  this->click(100);
  EXPECT_EQ(this->reports(), "11 ÜberprüfeValue");
}

TYPED_TEST(ScrollModel, ABarWithoutRoomPaintsNoThumbAndReportsNothing) {
  for (const float length : {45.0F, 0.0F}) {
    this->length(length);
    this->showAnew();
    EXPECT_FALSE(this->thumb.isShown());
    this->bar.Value(50);
    this->bar.UserControl_Paint();
  }
  EXPECT_EQ(this->reports(), "");
  this->length(46);
  EXPECT_TRUE(this->thumb.isShown());
}

TYPED_TEST(ScrollModel, BoundsThatCrossAreRefusedWithABox) {
  this->bar.Min(100);
  this->bar.Min(101);
  this->bar.Max(99);
  EXPECT_EQ(this->bar.Min() + this->bar.Max(), 200);
  ASSERT_EQ(this->application.boxes.size(), 2U);
  EXPECT_EQ(this->application.boxes[1].text, "Max darf nicht kleiner sein als Min!");
}

TYPED_TEST(ScrollModel, ARangeBeyondTheNumbersIsReportedAndKept) {
  this->bar.Max(highest);
  this->bar.Min(0);
  this->bar.Min(-2);
  EXPECT_EQ(this->reports(), "6 GetIMX");
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
}

TYPED_TEST(ScrollModel, AValueSetToWhatItIsPutsThingsRightAllTheSame) {
  this->range(0, 100);
  this->bar.Value(100);
  this->length(300);
  this->showAnew();
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
    this->release();
  }
  // Beside the thumb a press does nothing, nor does one right at its end.
  this->press(this->thumbAt(), 0);
  this->press(this->thumbAt() + this->thumbLength());
  this->wait(1000);
  EXPECT_EQ(this->heardAt(), "");
}

TYPED_TEST(ScrollModel, AStepBeyondThePressGoesBack) {
  this->range(149, 150);
  this->press(100);
  EXPECT_EQ(this->heard(), "Change 150, Change 149");
  this->wait(1000);
  EXPECT_EQ(this->heard(), "");
}

TYPED_TEST(ScrollModel, ATrackPressStopsAtOnceWhereThePointerHasLeftTheButton) {
  this->moveTo(190, 8, 0);
  this->moveTo(150, 8, 0);
  this->press(150);
  this->wait(2000);
  EXPECT_EQ(this->heard(), "Change 1");
}

TYPED_TEST(ScrollModel, ADisabledBarHasNoThumbAndHearsNoMouse) {
  this->bar.Enabled(false);
  EXPECT_FALSE(this->thumb.isShown());
  for (const float at : {50.0F, 150.0F, 190.0F}) this->click(at);
  EXPECT_EQ(this->heard(), "");
  this->bar.Enabled(true);
  EXPECT_TRUE(this->thumb.isShown());
  EXPECT_EQ(this->shown(this->farButton), 1);
}

TYPED_TEST(ScrollModel, KeepsItsPropertiesInAStore) {
  PropertyBag bag;
  const auto stored = [&] {
    std::string text;
    this->bar.UserControl_WriteProperties(bag);
    for (const auto& [name, value] : bag.properties()) text += name + "=" + value.toText() + " ";
    return text;
  };
  this->range(-5, 7);
  this->bar.Value(3);
  this->bar.Gradient(false);
  this->bar.ColorStyle(cXPScrollOlive);
  this->bar.ActiveScrolling(false);
  this->bar.SmallChange(2);
  this->bar.LargeChange(3);
  this->bar.Enabled(false);
  const std::string values = stored();
  EXPECT_EQ(values,
            "Min=-5 Max=7 Value=3 Gradient=False ColorStyle=2 ActiveScrolling=False LargeChange=3 "
            "SmallChange=2 Enabled=False ");
  const PropertyBag kept = bag;
  this->bar.UserControl_ReadProperties(PropertyBag());
  EXPECT_EQ(stored(), "");
  this->bar.UserControl_ReadProperties(kept);
  EXPECT_EQ(stored(), values);
  // A minimum is held against the maximum that is not read yet.
  bag.WriteProperty("Min", 8, 0);
  bag.WriteProperty("Max", 20, 0);
  this->bar.UserControl_ReadProperties(bag);
  EXPECT_EQ(this->bar.Max() - this->bar.Min(), 25);
  EXPECT_EQ(this->application.boxes.size(), 1U);
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
    const auto middle = [&] {
      return std::clamp(this->thumbAt() + this->thumbLength() / 2, 17.5F, length - 17.5F);
    };
    this->click(middle());
    if (this->bar.state().UnitPixels >= 1) {
      ASSERT_EQ(this->bar.Value(), value) << min << " " << max << " " << length;
      ++readBack;
    }
    this->press(middle());
    this->moveTo(static_cast<float>(between(-50, 750)) / 4);
    this->moveTo(static_cast<float>(between(-50, 750)) / 3);
    this->release();
    ASSERT_TRUE(this->bar.Value() >= min && this->bar.Value() <= max);
  }
  EXPECT_GT(readBack, 500);
}

}  // namespace
}  // namespace norvane
