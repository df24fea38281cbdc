#include "WidgetTest.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include <nvlist/objects/QI.h>
#include <nvlist/objects/nvToolTip.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtWindow.h>

namespace norvane {
namespace {

/// A line edit, and a list with a button in it, over which the test moves the mouse. Times are long
/// enough for a busy machine: no test expects an immediate reaction.
class ToolTips : public WidgetTest {
 protected:
  ToolTips() {
    form.move(100, 100);
    button->setGeometry(10, 10, 40, 20);
    button->show();
    moveAway();
    tips.Create(QtWindow::of(form));
    tips.DelayTime(0, 20);
  }
  ~ToolTips() override { moveAway(); }

  static void moveTo(QPoint point) {
    QCursor::setPos(point);
    QCoreApplication::processEvents();
  }
  static void moveOver(const QWidget& control) {
    moveTo(control.mapToGlobal(control.rect().center()));
  }
  static void moveAway() { moveTo({0, 0}); }
  void give(QWidget& control, const char* text) { tips.AddTool(QtWindow::of(control), text); }

  /// The visible tip, or nullptr.
  static QWidget* tip() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->windowType() == Qt::ToolTip && window->isVisible()) return window;
    return nullptr;
  }
  static std::string shown() { return tip() ? tip()->accessibleName().toStdString() : "-"; }
  /// Waits for a text, or for the end of the tip.
  static void expect(const std::string& text) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == text; })) << shown() << ", not " << text;
  }
  void show(QWidget& control, const char* text) {
    give(control, text);
    moveOver(control);
    expect(text);
  }

  QtDesktop desktop;
  QPushButton* button = new QPushButton(widget);
  nvToolTip tips;
};

TEST_F(ToolTips, AreShownWhileTheMouseRests) {
  EXPECT_FALSE(nvToolTip().Create(QtWindow::of(lineAfter)));
  tips.DelayTime(3, 150);
  give(lineAfter, "Grüße & <b>Küsse</b>");
  moveOver(lineAfter);
  EXPECT_EQ(shown(), "-") << "not yet";
  expect("Grüße & <b>Küsse</b>");
  EXPECT_GT(tip()->y(), QCursor::pos().y());
  EXPECT_EQ(QApplication::activeWindow(), &form);
  tips.ToolText(QtWindow::of(lineAfter), "");
  EXPECT_EQ(shown(), "-");
  tips.ToolText(QtWindow::of(lineAfter), "back");
  moveAway();
  moveOver(lineAfter);
  expect("back");
  tips.RemoveTool(QtWindow::of(lineAfter));
  EXPECT_EQ(shown(), "-");
  moveAway();
  moveOver(lineAfter);
  QTest::qWait(300);
  EXPECT_EQ(shown(), "-");
}

TEST_F(ToolTips, StayAsLongAsTheirTimeSays) {
  auto quick = std::make_unique<QI>();
  quick->Create(QtWindow::of(form), QtWindow::of(lineAfter), "quick", 300, 0);
  moveOver(lineAfter);
  expect("quick");
  QElapsedTimer clock;
  clock.start();
  expect("-");
  EXPECT_GE(clock.elapsed(), 200);
  EXPECT_LT(clock.elapsed(), 2000);
  // It appears again only when the mouse has left the control and entered it again.
  moveTo(QCursor::pos() + QPoint(3, 3));
  QTest::qWait(700);
  EXPECT_EQ(shown(), "-");
  moveAway();
  moveOver(lineAfter);
  expect("quick");
  quick.reset();
  EXPECT_EQ(shown(), "-");
}

TEST_F(ToolTips, GoWithAPressAlsoOnAChildThatHandlesIt) {
  show(lineAfter, "line");
  QTest::mouseClick(&lineAfter, Qt::LeftButton);
  EXPECT_EQ(shown(), "-");
  give(*widget, "list");
  moveOver(*button);
  expect("list");
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(shown(), "-");
}

/// The widget's own tip of a cut text does not appear beside one of the host's.
TEST_F(ToolTips, ReplaceThoseOfCutTexts) {
  add(std::string(60, 'w'));
  QHelpEvent help(QEvent::ToolTip, row(0), widget->mapToGlobal(row(0)));
  give(*widget, "list");
  QCoreApplication::sendEvent(widget, &help);
  EXPECT_EQ(QToolTip::text(), "");
  tips.RemoveTool(QtWindow::of(*widget));
  QCoreApplication::sendEvent(widget, &help);
  EXPECT_NE(QToolTip::text(), "");
  QToolTip::hideText();
}

TEST_F(ToolTips, MoveOnToTheNextControlSooner) {
  give(*widget, "list");
  show(lineAfter, "line");
  tips.DelayTime(3, 60'000);
  moveOver(*widget);
  EXPECT_EQ(shown(), "-");
  expect("list");
}

TEST_F(ToolTips, MayBeOfAControlInsideAnother) {
  show(*widget, "outer");
  show(*button, "inner");
  moveOver(*widget);
  expect("outer");
  moveOver(*button);
  expect("inner");
  QTest::mouseClick(button, Qt::LeftButton);
  QTest::qWait(100);
  EXPECT_EQ(shown(), "-");
}

TEST_F(ToolTips, OutliveTheirControlsAndTheirForm) {
  show(*button, "button");
  delete button;
  EXPECT_EQ(shown(), "-");
  tips.BackColor(0);
  EXPECT_EQ(tips.ToolCount(), 1);
  nvToolTip ofWindow;
  {
    QWidget window;
    QLabel label("label", &window);
    window.setGeometry(500, 100, 100, 100);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    ofWindow.Create(QtWindow::of(window));
    ofWindow.AddTool(QtWindow::of(label), "label");
    moveOver(label);
    expect("label");
  }
  EXPECT_EQ(shown(), "-");
  ofWindow.ForeColor(0);
  ofWindow.MaxTipWidth(10);
}

TEST_F(ToolTips, StayOnTheirScreen) {
  const QRect screen = form.screen()->availableGeometry();
  form.move(screen.right() - 100, screen.bottom() - 30);
  QCoreApplication::processEvents();
  show(lineAfter, "a text that is longer than the rest of the screen");
  EXPECT_TRUE(screen.contains(tip()->geometry()));
  EXPECT_EQ(tip()->geometry().bottom() + 1, QCursor::pos().y());
  form.hide();
  EXPECT_EQ(shown(), "-");
}

TEST_F(ToolTips, BreakLinesAtTheirWidth) {
  const char* const text = "some words that take more room than a line of a narrow tip can give";
  show(lineAfter, text);
  EXPECT_GE(tip()->width(), tip()->fontMetrics().horizontalAdvance(text));
  tips.MaxTipWidth(120);
  const QSize narrow = tip()->size();
  EXPECT_LE(narrow.width(), 130);
  EXPECT_GT(narrow.height(), 2 * tip()->fontMetrics().height());
  tips.BackColor(0x0000FF);
  EXPECT_EQ(tip()->grab().toImage().pixel(1, 1), qRgb(255, 0, 0));
  tips.Margin(0, 7);
  tips.Margin(3, 5);
  EXPECT_EQ(tip()->size(), narrow + QSize(7, 5));
  tips.Margin(1, std::numeric_limits<std::int32_t>::max());
  tips.Margin(1, -5);
  EXPECT_EQ(tip()->size(), narrow + QSize(7, 5));
}

}  // namespace
}  // namespace norvane
