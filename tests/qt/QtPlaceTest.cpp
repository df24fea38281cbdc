#include <nvlist/platform/qt/place/QtPlace.h>

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <functional>

#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/qt/place/QtKeys.h>
#include <nvlist/platform/qt/place/QtTextBox.h>
#include <nvlist/platform/qt/place/QtTimer.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

TEST(QtPlaceTest, PacksAMessageOfTheWheel) {
  struct Control : UserControl {
    explicit Control(Container& place) : UserControl(place) {}
  };
  QWidget widget;
  QtPlace place(widget);
  Control control(place);
  std::uint32_t first = 0;
  std::uint32_t second = 0;
  place.hookWheel([&](std::int32_t wParam, std::int32_t lParam) {
    first = static_cast<std::uint32_t>(wParam);
    second = static_cast<std::uint32_t>(lParam);
  });
  const auto turn = [&](int delta, int sideways = 0, Qt::KeyboardModifier key = {}) {
    QWheelEvent event({1, 2}, {258, -2}, {}, {sideways, delta}, Qt::MiddleButton | Qt::RightButton,
                      Qt::ControlModifier | key, Qt::NoScrollPhase, false);
    return place.event(&event);
  };
  EXPECT_TRUE(turn(-120));
  EXPECT_EQ(first, 0xFF88001A);  // 2 right, 8 Ctrl, 16 middle
  EXPECT_EQ(second, 0xFFFE0102);
  EXPECT_TRUE(turn(100000));
  EXPECT_EQ(first, 0x7FFF001A);
  // Some systems turn the wheel sideways while Alt is down.
  EXPECT_TRUE(turn(0, -120, Qt::AltModifier));
  EXPECT_EQ(first, 0xFF88001A);
  EXPECT_FALSE(turn(0, -120));
  place.isDesignMode = true;
  EXPECT_FALSE(turn(-120));
}

TEST(QtPlaceTest, DeleteTypesNoCharacter) {
  EXPECT_EQ(characterOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, {}, "\x7f")), 0);
}

TEST(QtPlaceTest, YieldsAfterHandlersHaveThrown) {
  QWidget widget;
  QtPlace place(widget);
  const auto post = [&](auto handler) {
    QMetaObject::invokeMethod(&widget, handler, Qt::QueuedConnection);
  };
  // More often than event loops may be nested.
  for (int i = 0; i < 20; ++i) {
    post([] { throw 1; });
    EXPECT_THROW(place.DoEvents(), int);
  }
  int failures = 0;
  place.onYieldFailure = [&](const std::exception_ptr&) { ++failures; };
  post([] { throw 1; });
  EXPECT_NO_THROW(place.DoEvents());
  EXPECT_EQ(failures, 1);
}

TEST(QtTextBoxTest, CountsCharactersAndTakesTheFocusOnlyWhereItShows) {
  QWidget form;
  QtTextBox box(form, {[](std::int16_t&) {}, [](QEvent::Type) {}, {}});
  const QLineEdit& edit = *form.findChild<QLineEdit*>();
  box.Text("a\U0001F600b\U0001F600");
  box.select(2, INT32_MAX);
  EXPECT_EQ(edit.selectedText().toStdString(), "b\U0001F600");
  box.Visible(true);
  EXPECT_THROW(box.SetFocus(), Failure);
}

TEST(QtTimerTest, BeginsItsIntervalAnewWhenThatIsSet) {
  int ticks = 0;
  const auto hasTicked = [&] { return std::exchange(ticks, 0) > 0; };
  QtTimer timer([&] { ++ticks; });
  timer.Enabled(true);
  timer.Interval(1000000);
  timer.Interval(100);
  // Turning on a running timer lets it run on.
  EXPECT_TRUE(QTest::qWaitFor([&] { return timer.Enabled(true), hasTicked(); }));
  timer.Interval(0);
  EXPECT_FALSE(QTest::qWaitFor(hasTicked, 150));
}

}  // namespace
}  // namespace norvane
