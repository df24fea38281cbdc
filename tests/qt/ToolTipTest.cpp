#include <nvlist/objects/QI.h>
#include <nvlist/objects/nvToolTip.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtWindow.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <memory>

namespace norvane {
namespace {

/// A form with two labels side by side, over which the test moves the mouse. Times are long enough
/// for a busy machine: no test expects an immediate reaction.
class QtToolTipTest : public testing::Test {
 protected:
  QtToolTipTest() {
    form->setGeometry(100, 100, 300, 100);
    one->setGeometry(20, 20, 100, 40);
    two->setGeometry(140, 20, 100, 40);
    inner->setGeometry(10, 10, 40, 20);
    form->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(form.get()));
    QCursor::setPos(0, 0);
    QCoreApplication::processEvents();
  }

  void moveTo(const QWidget& widget, QPoint offset = {}) {
    QCursor::setPos(widget.mapToGlobal(widget.rect().center()) + offset);
    QCoreApplication::processEvents();
  }
  /// Gives a control a tip without delay.
  void give(QWidget& control, const std::string& text) {
    tips.Create(QtWindow::of(*form));
    tips.DelayTime(0, 20);
    tips.AddTool(QtWindow::of(control), text);
  }
  void moveAway() { moveTo(*form, {0, 40}); }
  void showTipOf(const QWidget& widget, QPoint offset = {}) {
    moveTo(widget, offset);
    ASSERT_TRUE(QTest::qWaitFor([] { return tip() != nullptr; }, 5000));
  }

  /// The visible tip, or nullptr.
  static QWidget* tip() {
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (widget->windowType() == Qt::ToolTip && widget->isVisible()) return widget;
    return nullptr;
  }
  static QString shown() { return tip() ? tip()->accessibleName() : QString("nothing"); }

  QtApplication application;
  std::unique_ptr<QWidget> form = std::make_unique<QWidget>();
  QLabel* one = new QLabel("one", form.get());
  QLabel* two = new QLabel("two", form.get());
  QLabel* inner = new QLabel("inner", two);
  nvToolTip tips;
};

/// Milliseconds until a condition is true, or -1.
template <class Condition>
qint64 timeUntil(Condition&& condition) {
  QElapsedTimer clock;
  clock.start();
  return QTest::qWaitFor(condition, 5000) ? clock.elapsed() : -1;
}

TEST_F(QtToolTipTest, ShowsATextWhileTheMouseRests) {
  EXPECT_FALSE(tips.Create(QtWindow::of(*one)));
  ASSERT_TRUE(tips.Create(QtWindow::of(*form)));
  tips.DelayTime(3, 150);
  ASSERT_TRUE(tips.AddTool(QtWindow::of(*one), "Grüße & <b>Küsse</b>"));
  moveTo(*one);
  EXPECT_EQ(shown(), "nothing");
  EXPECT_GE(timeUntil([] { return tip() != nullptr; }), 100);
  EXPECT_EQ(shown(), "Grüße & <b>Küsse</b>");
  EXPECT_GT(tip()->y(), QCursor::pos().y());
  EXPECT_EQ(QApplication::activeWindow(), form.get());
  tips.ToolText(QtWindow::of(*one), "");
  EXPECT_EQ(shown(), "nothing");
  tips.ToolText(QtWindow::of(*one), "back");
  moveAway();

  showTipOf(*one);
  tips.RemoveTool(QtWindow::of(*one));
  EXPECT_EQ(shown(), "nothing");
  moveAway();
  moveTo(*one);
  QTest::qWait(300);
  EXPECT_EQ(shown(), "nothing");
}

TEST_F(QtToolTipTest, StaysAsLongAsItsTimeSays) {
  auto quick = std::make_unique<QI>();
  quick->Create(QtWindow::of(*form), QtWindow::of(*one), "one", 300, 0);
  showTipOf(*one);
  const qint64 time = timeUntil([] { return tip() == nullptr; });
  EXPECT_GE(time, 200);
  EXPECT_LT(time, 2000);
  // It has had its time until the mouse comes anew.
  moveTo(*one, {3, 3});
  QTest::qWait(700);
  EXPECT_EQ(shown(), "nothing");
  moveAway();
  showTipOf(*one);
  quick.reset();
  EXPECT_EQ(shown(), "nothing");
}

TEST_F(QtToolTipTest, GoesWithAPress) {
  give(*one, "one");
  tips.AddTool(QtWindow::of(*two), "two");
  // Handles the press itself.
  auto* button = new QPushButton(two);
  button->show();
  for (QWidget* const pressed : {static_cast<QWidget*>(one), static_cast<QWidget*>(button)}) {
    showTipOf(*pressed);
    QTest::mouseClick(pressed, Qt::LeftButton);
    EXPECT_EQ(shown(), "nothing");
  }
}

TEST_F(QtToolTipTest, StaysOnItsScreen) {
  const QRect screen = form->screen()->availableGeometry();
  form->move(screen.right() - 200, screen.bottom() - 50);
  QCoreApplication::processEvents();
  give(*two, "a text that is longer than the rest of the screen");
  showTipOf(*two);
  EXPECT_TRUE(screen.contains(tip()->geometry()));
  EXPECT_EQ(tip()->geometry().bottom() + 1, QCursor::pos().y());
  form->hide();
  EXPECT_EQ(shown(), "nothing");
}

TEST_F(QtToolTipTest, BreaksLinesAtItsWidth) {
  const QString text = "some words that take more room than a line of a narrow tip can give";
  give(*one, text.toStdString());
  showTipOf(*one);
  const QSize line = tip()->size();
  EXPECT_GE(line.width(), tip()->fontMetrics().horizontalAdvance(text));
  tips.MaxTipWidth(120);
  const QSize narrow = tip()->size();
  EXPECT_LE(narrow.width(), 130);
  tips.BackColor(0x0000FF);
  EXPECT_EQ(tip()->grab().toImage().pixel(1, 1), qRgb(255, 0, 0));
  EXPECT_GT(narrow.height(), 2 * tip()->fontMetrics().height());
  tips.Margin(0, 7);
  tips.Margin(3, 5);
  EXPECT_EQ(tip()->size(), narrow + QSize(7, 5));
  tips.Margin(1, std::numeric_limits<std::int32_t>::max());
  tips.Margin(1, -5);
  EXPECT_EQ(tip()->size(), narrow + QSize(7, 5));
}

TEST_F(QtToolTipTest, MovesOnToTheNextControlSooner) {
  give(*one, "one");
  tips.AddTool(QtWindow::of(*two), "two");
  showTipOf(*one);
  tips.DelayTime(3, 3000);
  moveTo(*two, {30, 0});
  EXPECT_EQ(shown(), "nothing");
  EXPECT_LT(timeUntil([] { return tip() != nullptr; }), 2000);
  EXPECT_EQ(shown(), "two");
}

TEST_F(QtToolTipTest, AControlInsideAnother) {
  give(*two, "outer");
  tips.AddTool(QtWindow::of(*inner), "inner");
  for (const auto& [widget, text] :
       {std::pair<QWidget*, const char*>(two, "outer"), {inner, "inner"}}) {
    moveTo(*widget, {widget == two ? 30 : 0, 0});
    EXPECT_TRUE(QTest::qWaitFor([&, shows = text] { return shown() == shows; }, 5000)) << text;
  }
  QTest::mouseClick(inner, Qt::LeftButton);
  QTest::qWait(100);
  EXPECT_EQ(shown(), "nothing");
}

TEST_F(QtToolTipTest, OutlivesItsControlsAndItsForm) {
  give(*one, "one");
  tips.AddTool(QtWindow::of(*two), "two");
  showTipOf(*one);
  delete one;
  EXPECT_EQ(shown(), "nothing");
  tips.BackColor(0);
  EXPECT_EQ(tips.ToolCount(), 2);
  showTipOf(*two, {30, 0});
  EXPECT_EQ(shown(), "two");
  form.reset();
  EXPECT_EQ(shown(), "nothing");
  tips.ForeColor(0);
  tips.MaxTipWidth(10);
}

}  // namespace
}  // namespace norvane
