#include <nvlist/platform/qt/NvScrollWidget.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <string>
#include <utility>

namespace norvane {
namespace {

/// A bar of 200 pixels in a form. Positions are along the bar, so that one test serves both
/// orientations.
class NvScrollWidgetTest : public testing::TestWithParam<Qt::Orientation> {
 protected:
  NvScrollWidgetTest() {
    if (isVertical)
      widget = new NvVScrollWidget;
    else
      widget = new NvHScrollWidget;
    auto* const layout = new QHBoxLayout(&form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    QObject::connect(widget, &NvScrollWidget::changed,
                     [this](int value) { hear("Change", value); });
    QObject::connect(widget, &NvScrollWidget::scrolled,
                     [this](int value) { hear("Scroll", value); });
    length(200);
    form.show();
    QCoreApplication::processEvents();
  }

  void hear(const std::string& event, int value) {
    told += (told.empty() ? "" : ", ") + event + " " + std::to_string(value);
    const auto act = event == "Change" ? onChange : onScroll;
    if (act) act();
  }
  std::string heard() { return std::exchange(told, {}); }

  void length(int pixels) {
    form.resize(isVertical ? QSize(17, pixels) : QSize(pixels, 17));
    QCoreApplication::processEvents();
  }
  QPoint at(int along) const { return isVertical ? QPoint(8, along) : QPoint(along, 8); }
  void press(int along) { QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, at(along)); }
  void moveTo(int along) { QTest::mouseMove(form.windowHandle(), at(along)); }
  void release(int along) {
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, at(along));
  }
  /// The first pixel of the thumb, and the first one behind it.
  std::pair<int, int> thumb() {
    const QRect area = static_cast<QtPlace&>(*widget->place().places()[0]->places()[0]).geometry();
    return isVertical ? std::pair(area.top(), area.bottom() + 1)
                      : std::pair(area.left(), area.right() + 1);
  }

  const bool isVertical = GetParam() == Qt::Vertical;
  QWidget form;
  QPointer<NvScrollWidget> widget;
  std::string told;
  std::function<void()> onChange, onScroll;
};

TEST_P(NvScrollWidgetTest, IsSteppedAndDragged) {
  press(195), release(195);
  EXPECT_EQ(heard(), "Change 1");
  press(50), moveTo(60), moveTo(199), release(199);
  EXPECT_EQ(heard(), "Scroll 11, Scroll 100, Change 100");
}

TEST_P(NvScrollWidgetTest, TheThumbIsAtItsValueAtEachNewLength) {
  widget->setValue(100);
  for (const int pixels : {300, 150}) {
    length(pixels);
    EXPECT_EQ(thumb(), std::pair(17 + 100, pixels - 17));
  }
}

TEST_P(NvScrollWidgetTest, APressEndsWhereAHandlerTakesTheMouseAway) {
  const auto openDialog = [] {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QTest::qWait(5);
  };
  const std::function<void()> deeds[] = {openDialog, [&] { widget->bar().Enabled(false); },
                                         [&] { form.hide(); }};
  constexpr int button = 195, track = 130;
  for (const int pressed : {button, track})
    for (const auto& deed : deeds) {
      SCOPED_TRACE(std::to_string(pressed) + " " + std::to_string(&deed - deeds));
      widget->setValue(0);
      onChange = deed;
      press(pressed);
      // A hidden window may not receive it.
      const bool isHidden = !form.isVisible();
      if (!isHidden) release(pressed);
      EXPECT_EQ(heard(), "Change 1");
      QTest::qWait(700);
      EXPECT_EQ(heard(), "") << "repeated";
      widget->bar().Enabled(true);
      form.show();
      if (isHidden) release(pressed);
    }
  onChange = nullptr;
  onScroll = openDialog;
  press(50), moveTo(60), release(60);
  QTest::qWait(10);
  widget->setValue(0);
  EXPECT_EQ(thumb().first, 17) << "the thumb is not left where the mouse has had it";
}

TEST_P(NvScrollWidgetTest, MayEndInAHandlerOfItsOwn) {
  onScroll = [&] { delete widget; };
  press(50), moveTo(60);
  EXPECT_FALSE(widget);
  release(60);
  // The bar itself ends later.
  QTest::qWait(20);
}

INSTANTIATE_TEST_SUITE_P(Bars, NvScrollWidgetTest, testing::Values(Qt::Vertical, Qt::Horizontal),
                         [](const auto& bar) {
                           return bar.param == Qt::Vertical ? "Vertical" : "Horizontal";
                         });

}  // namespace
}  // namespace norvane
