#include <nvlist/platform/qt/NvListWidget.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <functional>
#include <string>
#include <vector>

#include <nvlist/platform/headless/HeadlessApplication.h>

namespace norvane {
namespace {

/// A control inside another one, by the order of their making.
QWidget* childOf(const QWidget& widget, int index) {
  return widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).at(index);
}

constexpr int thumb = 0;
constexpr int nearButton = 1;
constexpr int farButton = 2;

/// The mouse of one window, as its system tells of it: while the button is down all goes to the
/// window.
class Mouse {
 public:
  explicit Mouse(QWidget& window) : window_(window) {}

  void moveTo(const QWidget& widget, QPoint point) {
    place_ = widget.mapToGlobal(point);
    if (isDown_)
      QTest::mouseMove(window_.windowHandle(), window_.mapFromGlobal(place_));
    else
      QCursor::setPos(place_);
    QCoreApplication::processEvents();
  }
  void press(const QWidget& widget, QPoint point) {
    moveTo(widget, point);
    isDown_ = true;
    QTest::mousePress(window_.windowHandle(), Qt::LeftButton, {}, window_.mapFromGlobal(place_));
  }
  void release() {
    isDown_ = false;
    QTest::mouseRelease(window_.windowHandle(), Qt::LeftButton, {}, window_.mapFromGlobal(place_));
    QCursor::setPos(place_);
    QCoreApplication::processEvents();
  }

 private:
  QWidget& window_;
  QPoint place_;
  bool isDown_ = false;
};

/// A list of 200 by 150 on a form, with a hundred long texts and both bars.
class ScrollBarsTest : public testing::Test, protected __nvList {
 protected:
  ScrollBarsTest() {
    form.resize(300, 250);
    form.move(100, 100);
    widget.setGeometry(20, 20, 200, 150);
    list.ScrollBars(vbBoth);
    list.AutoRedraw(false);
    for (int i = 0; i < 100; ++i) list.ItemsAdd(std::string(40, 'm') + std::to_string(i));
    list.AutoRedraw(true);
    list.CheckScroll();
    list.addSink(*this);
    form.show();
    mouse.moveTo(form, {280, 240});
  }
  ~ScrollBarsTest() override {
    EXPECT_EQ(application.boxes.size(), 0U);
    mouse.moveTo(form, {-500, -500});
  }

  void Scroll() override {
    ++scrolls;
    onScroll();
  }

  void MouseDown(std::int16_t&, std::int16_t&, float&, float&) override { ++heardPresses; }

  static QImage picture(QWidget& of) {
    return of.grab().toImage().convertToFormat(QImage::Format_RGB32);
  }

  /// Runs events until the list has scrolled so often; false if that takes far too long.
  bool waitForScrolls(int count) {
    return QTest::qWaitFor([&] { return scrolls >= count; }, 10'000);
  }

  /// Not even after three repeats' time.
  void expectNoScroll() {
    const int before = scrolls;
    QTest::qWait(350);
    EXPECT_EQ(scrolls, before);
  }

  HeadlessApplication application;
  QWidget form;
  NvListWidget widget{&form};
  nvList& list = widget.list();
  QWidget& vertical = *childOf(widget, 0);
  QWidget& horizontal = *childOf(widget, 1);
  Mouse mouse{form};
  int scrolls = 0;
  int heardPresses = 0;
  std::function<void()> onScroll = [] {};
};

TEST_F(ScrollBarsTest, aHoverShowsAndEndsWhereverThePointerLeaves) {
  for (QWidget* bar : {&vertical, &horizontal})
    for (const int index : {thumb, nearButton, farButton}) {
      QWidget& part = *childOf(*bar, index);
      const QImage rest = picture(part);
      const QPoint middle = part.rect().center();
      // Just beside each edge, where no second move follows, and far from the window.
      for (const QPoint outside :
           {QPoint(-1, middle.y()), QPoint(part.width(), middle.y()), QPoint(middle.x(), -1),
            QPoint(middle.x(), part.height()), QPoint(-900, -900)}) {
        mouse.moveTo(part, middle);
        EXPECT_NE(picture(part), rest) << index;
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        mouse.moveTo(part, outside);
        EXPECT_EQ(picture(part), rest) << index << " at " << outside.x() << ", " << outside.y();
      }
    }
  EXPECT_EQ(scrolls, 0);
}

TEST_F(ScrollBarsTest, aHeldButtonPausesOutsideAndEndsWithTheReleaseThere) {
  struct Case {
    QWidget& bar;
    int leastDelay;
  };
  for (const Case& c : {Case{vertical, 590}, Case{horizontal, 340}}) {
    QWidget& button = *childOf(c.bar, farButton);
    const QImage rest = picture(button);
    scrolls = 0;
    QElapsedTimer time;
    time.start();
    mouse.press(button, {8, 8});
    EXPECT_EQ(scrolls, 1);
    const QImage pressed = picture(button);
    EXPECT_NE(pressed, rest);
    ASSERT_TRUE(waitForScrolls(2));
    EXPECT_GE(time.elapsed(), c.leastDelay);
    // Some systems say that the pointer has left while a button is down; the moves tell better.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    EXPECT_EQ(picture(button), pressed);

    mouse.moveTo(form, {-300, 240});
    EXPECT_EQ(picture(button), rest);
    expectNoScroll();
    mouse.moveTo(button, {8, 8});
    EXPECT_EQ(picture(button), pressed);
    ASSERT_TRUE(waitForScrolls(scrolls + 2));

    mouse.moveTo(form, {-300, 240});
    mouse.release();
    mouse.moveTo(button, {8, 8});
    expectNoScroll();
    mouse.moveTo(form, {280, 240});
    EXPECT_EQ(picture(button), rest);
  }
  EXPECT_GE(list.TopIndex(), 4);
  EXPECT_GE(list.horizontalBar().Value(), 4);
}

/// Where a widget is painted by itself, without anybody looking.
class PaintedArea : public QObject {
 public:
  explicit PaintedArea(QWidget& widget) { widget.installEventFilter(this); }
  QRegion region;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(ScrollBarsTest, aPressOnTheTrackRepeatsUpToThePointer) {
  while (list.ItemsCount() > list.VisibleItems() + 30) list.ItemsRemove(0);
  QWidget& moved = *childOf(vertical, thumb);
  const QPoint target(8, moved.geometry().bottom() + 4);
  const QPoint behind(2, vertical.height() - 20);
  const QRgb bare = picture(vertical).pixel(behind);
  PaintedArea painted(vertical);
  mouse.press(vertical, target);
  EXPECT_EQ(list.TopIndex(), 1);
  QCoreApplication::processEvents();
  EXPECT_TRUE(painted.region.contains(behind));
  EXPECT_NE(picture(vertical).pixel(behind), bare);
  EXPECT_TRUE(QTest::qWaitFor([&] { return moved.geometry().bottom() + 1 >= target.y(); }, 10'000));
  const int reached = list.TopIndex();
  EXPECT_GT(reached, 1);
  // One more step stands between the thumb's arrival and the look at it.
  QTest::qWait(350);
  EXPECT_LE(list.TopIndex(), reached + 1);
  EXPECT_EQ(picture(vertical).pixel(behind), bare);
  mouse.release();
}

TEST_F(ScrollBarsTest, theThumbIsDraggedOutOfTheWindow) {
  mouse.press(*childOf(vertical, thumb), {8, 3});
  int last = 0;
  // The last of these places lies beside the window.
  for (const QPoint place : {QPoint(8, 30), QPoint(8, 40), QPoint(8, 50), QPoint(130, 75)}) {
    mouse.moveTo(vertical, place);
    EXPECT_GT(list.TopIndex(), last);
    last = list.TopIndex();
  }
  EXPECT_EQ(scrolls, 4);
  // Too far beside it the thumb stands still, beyond the end it stops.
  mouse.moveTo(vertical, {300, 50});
  EXPECT_EQ(list.TopIndex(), last);
  mouse.moveTo(vertical, {100, 900});
  EXPECT_EQ(list.TopIndex(), 100 - list.VisibleItems());
  EXPECT_EQ(scrolls, 5);
  mouse.release();
  EXPECT_EQ(scrolls, 6);
  mouse.moveTo(vertical, {8, 40});
  EXPECT_EQ(list.TopIndex(), list.verticalBar().Max());

  mouse.press(*childOf(horizontal, thumb), {4, 8});
  mouse.moveTo(horizontal, {60, -40});
  EXPECT_GT(list.horizontalBar().Value(), 0);
  mouse.release();
  EXPECT_EQ(scrolls, 8);
}

TEST_F(ScrollBarsTest, aHandlerMayEmptyTheListDuringADrag) {
  onScroll = [&] { list.ItemsClear(); };
  mouse.press(*childOf(vertical, thumb), {8, 3});
  mouse.moveTo(vertical, {8, 60});
  EXPECT_FALSE(vertical.isVisible());
  mouse.moveTo(vertical, {8, 70});
  mouse.release();
  onScroll = [] {};
  for (int i = 0; i < 100; ++i) list.ItemsAdd(i);
  EXPECT_TRUE(vertical.isVisible());
  mouse.press(*childOf(vertical, thumb), {8, 3});
  mouse.moveTo(vertical, {8, 60});
  mouse.release();
  EXPECT_GT(list.TopIndex(), 0);
}

TEST_F(ScrollBarsTest, barsAndFrameFollowTheSizePixelByPixel) {
  for (const QSize size : {QSize(201, 151), QSize(202, 151), QSize(199, 149), QSize(120, 80)}) {
    widget.resize(size);
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    EXPECT_EQ(vertical.geometry(), QRect(right - 17, 1, 17, bottom - 18));
    EXPECT_EQ(horizontal.geometry(), QRect(1, bottom - 17, right - 18, 17));
    const QImage shown = picture(widget);
    for (const QPoint edge :
         {QPoint(0, 0), QPoint(right, 9), QPoint(9, bottom), QPoint(right, bottom)})
      EXPECT_EQ(shown.pixel(edge), qRgb(0x7F, 0x9D, 0xB9)) << edge.x() << ", " << edge.y();
    // The square between the bars is the list's own, and the track reaches the far button.
    EXPECT_EQ(shown.pixel(right - 1, bottom - 1), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(right - 17, bottom - 17), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(right - 17, bottom - 35), qRgb(0xF3, 0xF1, 0xEC));
    EXPECT_EQ(childOf(vertical, farButton)->geometry().bottom(), vertical.height() - 1);
  }
}

TEST_F(ScrollBarsTest, anotherScreenIsPaintedFor) {
  const QList<QScreen*> screens = QGuiApplication::screens();
  if (screens.size() < 2) GTEST_SKIP() << "needs a second screen of twice the resolution";
  QWidget& frame = *childOf(widget, 2);
  QWidget& up = *childOf(vertical, nearButton);
  QWidget& right = *childOf(horizontal, farButton);
  const auto pictures = [&] { return std::vector{picture(frame), picture(up), picture(right)}; };
  const std::vector<QImage> before = pictures();
  form.windowHandle()->setScreen(screens[1]);
  ASSERT_TRUE(QTest::qWaitFor([&] { return picture(frame).width() == 2 * before[0].width(); }));
  QTest::qWait(20);
  const std::vector<QImage> after = pictures();
  for (std::size_t i = 0; i < before.size(); ++i) {
    QImage expected = before[i].scaled(2 * before[i].size());
    expected.setDevicePixelRatio(2);
    EXPECT_EQ(after[i], expected) << i;
  }
  // The tracks, at their shady edge in front of the far button.
  const QImage shown = picture(widget);
  EXPECT_EQ(shown.pixel(2 * vertical.x(), 2 * vertical.height() - 36), qRgb(0xF3, 0xF1, 0xEC));
  EXPECT_EQ(shown.pixel(2 * horizontal.width() - 36, 2 * horizontal.y()), qRgb(0xF3, 0xF1, 0xEC));
}

TEST_F(ScrollBarsTest, whatADisabledBarCoversHearsNothing) {
  vertical.setEnabled(false);
  const int presses = heardPresses;
  mouse.press(*childOf(vertical, farButton), {8, 8});
  mouse.release();
  mouse.press(vertical, {8, 60});
  mouse.release();
  EXPECT_EQ(scrolls, 0);
  EXPECT_EQ(heardPresses, presses);
  mouse.press(widget, {50, 50});
  mouse.release();
  EXPECT_EQ(heardPresses, presses + 1);
}

TEST_F(ScrollBarsTest, aPlaceFarOffIsStillAPlace) {
  dynamic_cast<Container&>(vertical).move({3e11F, -3e11F, 17, 20});
  EXPECT_GT(vertical.x(), 10'000);
  EXPECT_LT(vertical.y(), -10'000);
}

}  // namespace
}  // namespace norvane
