#include <nvlist/platform/qt/NvListWidget.h>

#include <gtest/gtest.h>

#include <QDrag>
#include <QDropEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <memory>
#include <string>

#include <nvlist/objects/QI.h>
#include <nvlist/platform/qt/NvListDrop.h>
#include <nvlist/platform/qt/QtWindow.h>

namespace norvane {
namespace {

/// A list that is a hundred pixels wide, with rows of 16 pixels.
class ComfortTest : public testing::Test {
 protected:
  ComfortTest() {
    widget.setParent(&form);
    widget.resize(100, 100);
    list.MinHeight(16);
    form.resize(100, 100);
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }
  ~ComfortTest() override { QToolTip::hideText(); }

  void add(const std::string& text) { list.ItemsAdd({.aText = text, .aAllowEdit = true}); }

  /// The tip of a row without its markup.
  std::string tipAt(int row) {
    const QPoint at(50, 11 + 16 * row);
    // A hidden tip keeps its text for a while.
    QToolTip::showText(widget.mapToGlobal(at), "none", &widget);
    QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &help);
    return QToolTip::text()
        .remove("none")
        .remove("<p style='white-space:pre-wrap'>")
        .remove("</p>")
        .toStdString();
  }

  QWidget form;
  NvListWidget widget;
  nvList& list = widget.list();
};

TEST_F(ComfortTest, showsTheTextsThatAreCutOff) {
  const std::string longText = "A text with <b>& more than fits into a row";
  for (const std::string& text : {std::string("short"), longText, longText + "|right=9",
                                  std::string("left column|right=right column"), std::string("")})
    add(text);
  const std::string whole = "A text with &lt;b&gt; more than fits into a row";
  EXPECT_EQ(tipAt(0), "");
  EXPECT_EQ(tipAt(1), whole);
  EXPECT_EQ(tipAt(2), whole + "\t9");
  EXPECT_EQ(tipAt(3), "left column\tright column");
  EXPECT_EQ(tipAt(4), "");
  EXPECT_EQ(tipAt(5), "") << "below the last row";
  widget.resize(600, 100);
  EXPECT_EQ(tipAt(1) + tipAt(3), "");
  widget.resize(100, 100);

  widget.setShowsCutTexts(false);
  EXPECT_EQ(tipAt(1), "");
  widget.setShowsCutTexts(true);
  widget.setToolTip("the host's");
  EXPECT_EQ(tipAt(1), "the host's");
  widget.setToolTip({});
  QI tips;
  tips.Create(QtWindow::of(form), QtWindow::of(widget), "QI's", 5000, 300);
  EXPECT_EQ(tipAt(1), "");
}

TEST_F(ComfortTest, theEditBoxComposesUndoesAndScrolls) {
  list.AllowEdit(true);
  add("text");
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {50, 12});
  list.SetEdit(0);
  QLineEdit& edit = *widget.editBox();
  ASSERT_TRUE(edit.hasFocus());
  const QImage before = edit.grab().toImage();
  QInputMethodEvent composing("ni hao", {});
  QCoreApplication::sendEvent(&edit, &composing);
  EXPECT_NE(edit.grab().toImage(), before) << "what is composed is seen";
  EXPECT_EQ(edit.text(), "") << "in place of the selection";
  QInputMethodEvent composed;
  composed.setCommitString(QString::fromUtf8("你好"));
  QCoreApplication::sendEvent(&edit, &composed);
  EXPECT_EQ(edit.text(), QString::fromUtf8("你好"));
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), "text");
  QTest::keyClick(&edit, Qt::Key_End);
  QTest::keyClicks(&edit, " that is far too long for the box and goes on");
  // Painting scrolls it.
  edit.grab();
  EXPECT_LE(edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().left(), edit.width())
      << "the cursor stays in view";
  QTest::keyClick(&edit, Qt::Key_Home);
  edit.grab();
  EXPECT_GE(edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().left(), -4);
}

TEST_F(ComfortTest, takesDropsOfFilesAndTexts) {
  for (const char* text : {"one", "two", "three"}) add(text);
  auto* const drop = new NvListDrop(widget);
  std::string heard;
  QObject::connect(drop, &NvListDrop::dropped, &widget, [&](const QMimeData* data, int index) {
    heard += data->text().toStdString() + " at " + std::to_string(index) + " ";
  });
  const auto send = [&](auto&& event) {
    event.ignore();
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
  };
  QMimeData text, colour;
  text.setText("text");
  colour.setColorData(QColor(Qt::red));
  const auto actions = Qt::CopyAction | Qt::MoveAction;
  const QPoint second(50, 24);
  EXPECT_FALSE(send(QDragEnterEvent(second, actions, &colour, Qt::LeftButton, {})));
  EXPECT_TRUE(send(QDragEnterEvent(second, actions, &text, Qt::LeftButton, {})));
  const auto rowsWithMark = [&] {
    const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    std::string result;
    for (int y = 0; y < image.height() - 1; ++y)
      if (image.pixel(95, y) == qRgb(0, 0, 0)) result += std::to_string(y) + " ";
    return result;
  };
  EXPECT_EQ(rowsWithMark(), "19 20 ");
  send(QDragLeaveEvent());
  EXPECT_EQ(rowsWithMark(), "");
  for (const QPoint& point : {second, QPoint(50, 90), QPoint(50, 1)}) {
    EXPECT_TRUE(send(QDragEnterEvent(point, actions, &text, Qt::LeftButton, {})));
    EXPECT_TRUE(send(QDragMoveEvent(point, actions, &text, Qt::LeftButton, {})));
    EXPECT_TRUE(send(QDropEvent(point, actions, &text, Qt::LeftButton, {})));
  }
  EXPECT_EQ(heard, "text at 1 text at 3 text at 0 ");
  EXPECT_EQ(rowsWithMark(), "");
}

TEST_F(ComfortTest, dragsTheSelectedRowsOut) {
  for (const char* text : {"one", "two", "three"}) add(text);
  list.MultiSelect(true);
  auto* const drop = new NvListDrop(widget);
  drop->setDragsRows(true);
  list.userSelects(1, 2, 2);
  const QPoint second(50, 28);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, second);
  EXPECT_EQ(widget.selectedIndexes(), QList<int>{1}) << "a mere click";

  list.userSelects(1, 2, 2);
  QTest::mousePress(&widget, Qt::LeftButton, {}, second);
  EXPECT_EQ(widget.selectedIndexes(), (QList<int>{1, 2}));
  QString dragged;
  // The drag deletes itself later.
  const auto look = [&] {
    if (const auto* const drag = widget.findChild<QDrag*>()) dragged = drag->mimeData()->text();
  };
  QTimer::singleShot(0, &widget, [&] {
    look();
    QDrag::cancel();
  });
  QMouseEvent move(QEvent::MouseMove, second + QPoint(0, 30),
                   widget.mapToGlobal(second + QPoint(0, 30)), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&widget, &move);
  if (dragged.isEmpty()) look();
  EXPECT_EQ(dragged, "two\nthree");
  EXPECT_FALSE(widget.place().mouse().pressed());
}

}  // namespace
}  // namespace norvane
