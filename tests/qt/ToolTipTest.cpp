#include <QElapsedTimer>
#include <QPushButton>

#include <nvlist/objects/nvToolTip.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtWindow.h>

#include "WidgetTest.h"

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
    // Other tests may have left it pressed.
    QTest::mouseRelease(&form, Qt::LeftButton);
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
  void give(QWidget& control, const char* text) { tips.AddTool(QtWindow::of(control), text); }
  void show(QWidget& control, const char* text) {
    give(control, text);
    moveOver(control);
    expect(text);
  }

  QtDesktop desktop;
  QPushButton* button = new QPushButton(widget);
  nvToolTip tips;
};

TEST_F(ToolTips, AreShownWhileTheMouseRestsForTheirTime) {
  const Variant line = QtWindow::of(lineAfter);
  EXPECT_FALSE(nvToolTip().Create(line));
  tips.DelayTime(3, 150);
  tips.DelayTime(2, 300);
  give(lineAfter, "Grüße & <b>Küsse</b>");
  moveOver(lineAfter);
  EXPECT_EQ(shown(), "-") << "not yet";
  expect("Grüße & <b>Küsse</b>");
  QElapsedTimer clock;
  clock.start();
  expect("-");
  EXPECT_GE(clock.elapsed(), 200);
  // It appears again only when the mouse has left the control and entered it again.
  moveTo(QCursor::pos() + QPoint(3, 3));
  QTest::qWait(500);
  EXPECT_EQ(shown(), "-");

  tips.DelayTime(2, 60'000);
  for (const char* text : {"first", "second"}) {
    tips.ToolText(line, text);
    moveAway();
    moveOver(lineAfter);
    expect(text);
    tips.ToolText(line, "");
    EXPECT_EQ(shown(), "-");
  }
  show(*widget, "list");
  tips.RemoveTool(QtWindow::of(*widget));
  EXPECT_EQ(shown(), "-");
}

TEST_F(ToolTips, AreOfTheInnermostControlUntilItIsPressed) {
  give(*widget, "list");
  show(lineAfter, "line");
  tips.DelayTime(3, 60'000);
  moveOver(*widget);
  EXPECT_EQ(shown(), "-");
  expect("list");  // soon, since another one was shown
  moveOver(*button);
  expect("list");
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(shown(), "-");
  tips.DelayTime(3, 20);
  show(*button, "button");
  moveOver(*widget);
  expect("list");
  moveOver(*button);
  expect("button");
  delete button;
  EXPECT_EQ(shown(), "-");
  tips.BackColor(0);
  EXPECT_EQ(tips.ToolCount(), 3);
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

TEST_F(ToolTips, OutliveTheirForm) {
  auto window = std::make_unique<QWidget>();
  auto& inside = *new QWidget(window.get());
  window->setGeometry(500, 100, 100, 100);
  window->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  nvToolTip ofWindow;
  ofWindow.Create(QtWindow::of(*window));
  ofWindow.AddTool(QtWindow::of(inside), "inside");
  moveOver(inside);
  expect("inside");
  window.reset();
  EXPECT_EQ(shown(), "-");
  ofWindow.ForeColor(0);
}

TEST_F(ToolTips, StayOnTheirScreenAndBreakLinesAtTheirWidth) {
  const QRect screen = form.screen()->availableGeometry();
  form.move(screen.right() - 100, screen.bottom() - 30);
  QCoreApplication::processEvents();
  const char* const text = "some words that take more room than a line of a narrow tip can give";
  show(lineAfter, text);
  EXPECT_TRUE(screen.contains(tip()->geometry()));
  EXPECT_EQ(tip()->geometry().bottom() + 1, QCursor::pos().y());
  EXPECT_GE(tip()->width(), tip()->fontMetrics().horizontalAdvance(text));
  tips.MaxTipWidth(120);
  const QSize narrow = tip()->size();
  EXPECT_LE(narrow.width(), 130);
  EXPECT_GT(narrow.height(), 2 * tip()->fontMetrics().height());
  tips.BackColor(0x0000FF);
  EXPECT_EQ(tip()->grab().toImage().pixel(1, 1), qRgb(255, 0, 0));
  tips.Margin(0, 7);
  tips.Margin(3, 5);
  tips.Margin(1, std::numeric_limits<std::int32_t>::max());
  tips.Margin(1, -5);
  EXPECT_EQ(tip()->size(), narrow + QSize(7, 5));
  form.hide();
  EXPECT_EQ(shown(), "-");
}

}  // namespace
}  // namespace norvane
