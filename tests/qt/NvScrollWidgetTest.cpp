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
#include <type_traits>
#include <utility>

namespace norvane {
namespace {

/// A bar of 200 pixels in a form. Positions are along the bar, so that one test serves both
/// orientations.
template <class Widget>
class NvScrollWidgetTest : public testing::Test {
 protected:
  static constexpr bool isVertical = std::is_same_v<Widget, NvVScrollWidget>;

  NvScrollWidgetTest() {
    auto* layout = new QBoxLayout(isVertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    form.setLayout(layout);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    QObject::connect(widget, &NvScrollWidget::changed, &form, [this] {
      tell("Change");
      if (onChange) onChange();
    });
    QObject::connect(widget, &NvScrollWidget::scrolled, &form, [this] {
      tell("Scroll");
      if (onScroll) onScroll();
    });
    length(200);
    form.show();
    QCoreApplication::processEvents();
  }

  void tell(const char* event) {
    told += (told.empty() ? "" : ", ") + std::string(event) + " " + std::to_string(widget->value());
  }
  std::string heard() { return std::exchange(told, {}); }

  void length(int pixels) {
    form.resize(isVertical ? QSize(17, pixels) : QSize(pixels, 17));
    QCoreApplication::processEvents();
  }

  QPoint at(int along) { return isVertical ? QPoint(8, along) : QPoint(along, 8); }
  void press(int along) { QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, at(along)); }
  void moveTo(int along) { QTest::mouseMove(form.windowHandle(), at(along)); }
  void release(int along) {
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, at(along));
  }

  QRect thumb() {
    return static_cast<QtPlace&>(*widget->place().places()[0]->places()[0]).geometry();
  }

  QWidget form;
  QPointer<Widget> widget{new Widget};
  std::string told;
  std::function<void()> onChange, onScroll;
};

using BothWidgets = testing::Types<NvVScrollWidget, NvHScrollWidget>;
TYPED_TEST_SUITE(NvScrollWidgetTest, BothWidgets);

TYPED_TEST(NvScrollWidgetTest, isSteppedDraggedAndTells) {
  this->press(195);
  this->release(195);
  EXPECT_EQ(this->heard(), "Change 1");
  this->press(50);
  this->moveTo(60);
  this->moveTo(199);
  this->release(199);
  EXPECT_EQ(this->heard(), "Scroll 11, Scroll 100, Change 100");
}

TYPED_TEST(NvScrollWidgetTest, theThumbStandsByItsValueAtEachNewLength) {
  this->widget->bar().Value(100);
  for (const int length : {300, 150}) {
    this->length(length);
    const QRect thumb = this->thumb();
    EXPECT_EQ(TestFixture::isVertical ? thumb.bottom() : thumb.right(), length - 18);
    EXPECT_EQ(TestFixture::isVertical ? thumb.height() : thumb.width(), length - 34 - 100);
  }
}

TYPED_TEST(NvScrollWidgetTest, aPressEndsAlsoWhereAHandlerTakesTheMouseAway) {
  const auto openDialog = [] {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QTest::qWait(5);
  };
  const std::function<void()> deeds[] = {openDialog, [this] { this->widget->bar().Enabled(false); },
                                         [this] { this->form.hide(); }};
  // The far button and the track.
  for (const int place : {195, 130})
    for (const auto& deed : deeds) {
      this->widget->bar().Value(0);
      this->onChange = deed;
      this->press(place);
      // A hidden window may not receive it.
      const bool isHidden = !this->form.isVisible();
      if (!isHidden) this->release(place);
      EXPECT_EQ(this->heard(), "Change 1");
      QTest::qWait(700);
      EXPECT_EQ(this->heard(), "");
      this->widget->bar().Enabled(true);
      this->form.show();
      if (isHidden) this->release(place);
    }
  // The thumb is not left hanging where the mouse has had it.
  this->onChange = nullptr;
  this->onScroll = openDialog;
  this->press(50);
  this->moveTo(60);
  this->release(60);
  QTest::qWait(10);
  this->widget->bar().Value(0);
  const QPoint thumb = this->thumb().topLeft();
  EXPECT_EQ(TestFixture::isVertical ? thumb.y() : thumb.x(), 17);
}

TYPED_TEST(NvScrollWidgetTest, mayEndInAHandlerOfItsOwn) {
  this->onScroll = [this] { delete this->widget; };
  this->press(50);
  this->moveTo(60);
  EXPECT_FALSE(this->widget);
  this->release(60);
  QTimer::singleShot(20, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
}

}  // namespace
}  // namespace norvane
