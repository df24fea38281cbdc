#include <nvlist/platform/qt/NvScrollWidget.h>

#include <QBoxLayout>
#include <QCursor>
#include <QDialog>
#include <QWindow>

#include "WidgetTest.h"

namespace norvane {
namespace {

/// By order of creation: the bars of a list, and the thumb and the buttons of a bar.
QtPlace& childOf(const Place& place, std::size_t index) {
  return static_cast<QtPlace&>(*place.places().at(index));
}

/// Mouse events as the system reports them: while the button is down, all go to the window.
struct Mouse {
  void moveTo(QPoint point) {
    at = point;
    if (isDown)
      QTest::mouseMove(form.windowHandle(), at);
    else
      QCursor::setPos(form.mapToGlobal(at));
    QCoreApplication::processEvents();
  }
  void press() {
    isDown = true;
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, at);
  }
  void release() {
    isDown = false;
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, at);
  }

  QWidget& form;
  QPoint at{};
  bool isDown = false;
};

/// A list of 200 by 150 pixels with a hundred long texts and both bars.
class BarsOfAList : public WidgetTest {
 protected:
  BarsOfAList() {
    form.resize(300, 250);
    form.move(100, 100);
    widget->setGeometry(20, 20, 200, 150);
    list().ScrollBars(vbBoth);
    for (int i = 0; i < 100; ++i) add(std::string(40, 'm') + std::to_string(i));
    list().CheckScroll();
    list().addSink(*this);
    onEvent = [this](const std::string& name) { scrolls += name == "Scroll"; };
    mouse.moveTo({280, 240});
  }
  ~BarsOfAList() override { mouse.moveTo({-500, -500}); }

  void moveTo(const QtPlace& over, QPoint point) {
    mouse.moveTo(widget->mapToParent(over.geometry().topLeft() + point));
  }
  QImage picture(const QtPlace& of) { return widget->grab(of.geometry()).toImage(); }

  void expectScrolls() {
    const int before = scrolls;
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrolls >= before + 2; }, 10'000));
  }
  /// Not even after three repeats' time.
  void expectNoScroll() {
    const int before = scrolls;
    QTest::qWait(350);
    EXPECT_EQ(scrolls, before);
  }

  Mouse mouse{form};
  QtPlace& vertical = childOf(widget->place(), 0);
  QtPlace& horizontal = childOf(widget->place(), 1);
  int scrolls = 0;
};

TEST_F(BarsOfAList, ShowAHoverThatEndsWhereverThePointerLeaves) {
  for (QtPlace* bar : {&vertical, &horizontal})
    for (std::size_t index = 0; index < 3; ++index) {
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
      moveTo(part, middle);
      // The edit box, which covers the bar.
      QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
      QCoreApplication::sendEvent(&edit(), &enter);
      EXPECT_EQ(picture(part), rest) << index;
    }
}

TEST_F(BarsOfAList, PauseWhileAHeldButtonIsLeftAndEndWithTheReleaseThere) {
  QtPlace& button = childOf(vertical, 2);
  const QImage rest = picture(button);
  moveTo(button, {8, 8});
  mouse.press();
  const QImage pressed = picture(button);
  EXPECT_NE(pressed, rest);
  expectScrolls();
  // Some systems report that the pointer has left while a button is down; moves are more reliable.
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(widget, &leave);
  EXPECT_EQ(picture(button), pressed);

  mouse.moveTo({-300, 240});
  EXPECT_EQ(picture(button), rest);
  expectNoScroll();
  moveTo(button, {8, 8});
  EXPECT_EQ(picture(button), pressed);
  expectScrolls();

  mouse.moveTo({-300, 240});
  mouse.release();
  moveTo(button, {8, 8});
  expectNoScroll();
}

/// A bar of 200 pixels in a form. Positions are along the bar, so that one test serves both
/// orientations.
class BarsOfTheirOwn : public testing::TestWithParam<Qt::Orientation> {
 protected:
  BarsOfTheirOwn() {
    if (isVertical)
      widget = new NvVScrollWidget;
    else
      widget = new NvHScrollWidget;
    auto* const layout = new QHBoxLayout(&form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    const auto hear = [this](const std::string& event, int value) {
      told += (told.empty() ? "" : ", ") + event + " " + std::to_string(value);
      const auto act = onEvent;
      act(event);
    };
    QObject::connect(widget, &NvScrollWidget::changed, [=](int value) { hear("Change", value); });
    QObject::connect(widget, &NvScrollWidget::scrolled, [=](int value) { hear("Scroll", value); });
    length(200);
    form.show();
    QCoreApplication::processEvents();
  }

  std::string heard() { return std::exchange(told, {}); }
  void length(int pixels) {
    form.resize(isVertical ? QSize(17, pixels) : QSize(pixels, 17));
    QCoreApplication::processEvents();
  }
  void moveTo(int along) { mouse.moveTo(isVertical ? QPoint(8, along) : QPoint(along, 8)); }
  void press(int along) { moveTo(along), mouse.press(); }
  /// The first pixel of the thumb, and the first one behind it.
  std::pair<int, int> thumb() {
    const QRect area = childOf(childOf(widget->place(), 0), 0).geometry();
    return isVertical ? std::pair(area.top(), area.bottom() + 1)
                      : std::pair(area.left(), area.right() + 1);
  }

  const bool isVertical = GetParam() == Qt::Vertical;
  QWidget form;
  Mouse mouse{form};
  QPointer<NvScrollWidget> widget;
  std::string told;
  std::function<void(const std::string& event)> onEvent = [](const std::string&) {};
};

TEST_P(BarsOfTheirOwn, AreSteppedAndDraggedAtEachLength) {
  press(195), mouse.release();
  EXPECT_EQ(heard(), "Change 1");
  press(50), moveTo(60), moveTo(199), mouse.release();
  EXPECT_EQ(heard(), "Scroll 11, Scroll 100, Change 100");
  for (const int pixels : {300, 150}) {
    length(pixels);
    EXPECT_EQ(thumb(), std::pair(17 + 100, pixels - 17));
  }
}

TEST_P(BarsOfTheirOwn, EndAPressWhereAHandlerTakesTheMouseAway) {
  const auto openDialog = [](auto&) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QTest::qWait(5);
  };
  const decltype(onEvent) deeds[] = {openDialog, [&](auto&) { widget->bar().Enabled(false); },
                                     [&](auto&) { form.hide(); }};
  for (const auto& deed : deeds) {
    SCOPED_TRACE(&deed - deeds);
    widget->setValue(0);
    onEvent = deed;
    press(195);
    // A hidden window may not receive it.
    const bool isHidden = !form.isVisible();
    if (!isHidden) mouse.release();
    EXPECT_EQ(heard(), "Change 1");
    QTest::qWait(700);
    EXPECT_EQ(heard(), "") << "repeated";
    widget->bar().Enabled(true);
    form.show();
    if (isHidden) mouse.release();
  }
  onEvent = [&](const std::string& event) {
    if (event == "Scroll") openDialog(event);
  };
  press(50), moveTo(60), mouse.release();
  QTest::qWait(10);
  widget->setValue(0);
  EXPECT_EQ(thumb().first, 17) << "the thumb is not left where the mouse has had it";
}

TEST_P(BarsOfTheirOwn, MayEndInAHandler) {
  onEvent = [&](auto&) { delete widget; };
  press(50), moveTo(60);
  EXPECT_FALSE(widget);
  mouse.release();
  // The bar itself ends later.
  QTest::qWait(20);
}

INSTANTIATE_TEST_SUITE_P(Bars, BarsOfTheirOwn, testing::Values(Qt::Vertical, Qt::Horizontal));

}  // namespace
}  // namespace norvane
