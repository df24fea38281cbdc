#include "WidgetTest.h"

#include <QCursor>
#include <QWindow>

namespace norvane {
namespace {

/// A child place of a control, by order of creation.
QtPlace& childOf(const Place& place, std::size_t index) {
  return static_cast<QtPlace&>(*place.places().at(index));
}

constexpr std::size_t thumb = 0;
constexpr std::size_t nearButton = 1;
constexpr std::size_t farButton = 2;

/// A list of 200 by 150 pixels with a hundred long texts and both bars.
class ScrollBarsTest : public WidgetTest {
 protected:
  ScrollBarsTest() {
    form.resize(300, 250);
    form.move(100, 100);
    widget->setGeometry(20, 20, 200, 150);
    list().ScrollBars(vbBoth);
    list().AutoRedraw(false);
    for (int i = 0; i < 100; ++i) add(std::string(40, 'm') + std::to_string(i));
    list().AutoRedraw(true);
    list().CheckScroll();
    hearEvents();
    onEvent = [this](const std::string& name) { scrolls += name == "Scroll"; };
    moveTo(form, {280, 240});
  }
  ~ScrollBarsTest() override { moveTo(form, {-500, -500}); }

  /// Mouse events as the system reports them: while the button is down, all go to the window.
  void moveTo(const QWidget& over, QPoint point) {
    mouse = over.mapTo(&form, point);
    if (isDown)
      QTest::mouseMove(form.windowHandle(), mouse);
    else
      QCursor::setPos(form.mapToGlobal(mouse));
    QCoreApplication::processEvents();
  }
  void moveTo(const QtPlace& over, QPoint point) {
    moveTo(*widget, over.geometry().topLeft() + point);
  }
  template <class Over>
  void press(const Over& over, QPoint point) {
    moveTo(over, point);
    isDown = true;
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, mouse);
  }
  void release() {
    isDown = false;
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, mouse);
    moveTo(form, mouse);
  }

  QImage picture(const QRect& of) {
    return widget->grab(of).toImage().convertToFormat(QImage::Format_RGB32);
  }
  QImage picture() { return picture(widget->rect()); }
  QImage picture(const QtPlace& of) { return picture(of.geometry()); }

  /// Runs events until the list has scrolled the given number of times. Returns false on a timeout.
  bool waitForScrolls(int count) {
    return QTest::qWaitFor([&] { return scrolls >= count; }, 10'000);
  }

  /// Not even after three repeats' time.
  void expectNoScroll() {
    const int before = scrolls;
    QTest::qWait(350);
    EXPECT_EQ(scrolls, before);
  }

  QtPlace& vertical = childOf(widget->place(), 0);
  QtPlace& horizontal = childOf(widget->place(), 1);
  QPoint mouse;
  bool isDown = false;
  int scrolls = 0;
};

TEST_F(ScrollBarsTest, AHoverShowsAndEndsWhereverThePointerLeaves) {
  for (QtPlace* bar : {&vertical, &horizontal})
    for (const std::size_t index : {thumb, nearButton, farButton}) {
      QtPlace& part = childOf(*bar, index);
      const QImage rest = picture(part);
      const QPoint middle(part.geometry().width() / 2, part.geometry().height() / 2);
      // The pixel behind the far edge counts as the part's own; the last point is off the window.
      for (const QPoint outside :
           {QPoint(-1, middle.y()), QPoint(middle.x(), part.geometry().height() + 1),
            QPoint(-900, -900)}) {
        moveTo(part, middle);
        EXPECT_NE(picture(part), rest) << index;
        moveTo(part, outside);
        EXPECT_EQ(picture(part), rest) << index << " at " << outside.x() << ", " << outside.y();
      }
    }
}

TEST_F(ScrollBarsTest, AHoverEndsWhereTheEditBoxBegins) {
  QtPlace& part = childOf(vertical, thumb);
  const QImage rest = picture(part);
  moveTo(part, {4, 4});
  EXPECT_NE(picture(part), rest);
  QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
  QCoreApplication::sendEvent(&edit(), &enter);
  EXPECT_EQ(picture(part), rest);
}

TEST_F(ScrollBarsTest, AHeldButtonPausesOutsideAndEndsWithTheReleaseThere) {
  QtPlace& button = childOf(vertical, farButton);
  const QImage rest = picture(button);
  press(button, {8, 8});
  const QImage pressed = picture(button);
  EXPECT_NE(pressed, rest);
  ASSERT_TRUE(waitForScrolls(2));
  // Some systems report that the pointer has left while a button is down; moves are more reliable.
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(widget, &leave);
  EXPECT_EQ(picture(button), pressed);

  moveTo(form, {-300, 240});
  EXPECT_EQ(picture(button), rest);
  expectNoScroll();
  moveTo(button, {8, 8});
  EXPECT_EQ(picture(button), pressed);
  ASSERT_TRUE(waitForScrolls(scrolls + 2));

  moveTo(form, {-300, 240});
  release();
  moveTo(button, {8, 8});
  expectNoScroll();
}

TEST_F(ScrollBarsTest, BarsAndFrameFollowTheSizePixelByPixel) {
  widget->resize(201, 81);
  EXPECT_EQ(vertical.geometry(), QRect(183, 1, 17, 62));
  EXPECT_EQ(horizontal.geometry(), QRect(1, 63, 182, 17));
  const QImage shown = picture();
  for (const QPoint edge : {QPoint(0, 0), QPoint(200, 9), QPoint(9, 80), QPoint(200, 80)})
    EXPECT_EQ(shown.pixel(edge), qRgb(0x7F, 0x9D, 0xB9)) << edge.x() << ", " << edge.y();
  // The square between the bars is the list's own, and the track reaches the far button.
  EXPECT_EQ(shown.pixel(183, 63), qRgb(255, 255, 255));
  EXPECT_EQ(shown.pixel(183, 45), qRgb(0xF3, 0xF1, 0xEC));
}

}  // namespace
}  // namespace norvane
