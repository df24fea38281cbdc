#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include "../../examples/million/MillionWindow.h"
#include "../../examples/todo/TodoWindow.h"

namespace {

/// Returns the list of a window that is then the active one.
norvane::NvListWidget& listOf(QWidget& window) {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  return *window.findChild<norvane::NvListWidget*>();
}

void enter(QWidget* line, const QString& text) {
  QTest::keyClicks(line, text);
  QTest::keyClick(line, Qt::Key_Return);
}

TEST(Examples, todo) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("list");
  {
    TodoWindow window(path);
    norvane::NvListWidget& list = listOf(window);
    for (const char* task : {"Water the plants", "Call Mira", "Mend the bicycle", "Book the train"})
      enter(window.findChild<QLineEdit*>(), task);
    ASSERT_EQ(list.count(), 4);
    list.setFocus();
    QTest::keyClicks(&list, "c");
    // Until then a blank belongs to what is typed.
    QTest::qWait(QApplication::keyboardInputInterval() + 100);
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_F2);
    enter(list.editBox(), "Call Mira and Jon");
    EXPECT_EQ(list.list().ItemForeColor(1), norvane::colours::greyText);
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(window.statusBar()->currentMessage(), "1 of 3 done");
  }
  TodoWindow window(path);
  norvane::NvListWidget& list = listOf(window);
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(list.itemText(0), "Call Mira and Jon");
  EXPECT_TRUE(list.list().ItemChecked(0) && list.list().ItemAllowEdit(2));
}

TEST(Examples, million) {
  constexpr int rows = 50'000;
  MillionWindow window(rows);
  norvane::NvListWidget& list = listOf(window);
  auto* search = window.findChild<QLineEdit*>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return search->isEnabled(); }, 60'000));
  ASSERT_EQ(list.count(), rows);
  QTest::keyClicks(search, "049998x");
  EXPECT_EQ(list.list().ListIndex(), 49'998);
  search->clear();
  enter(search, "morat");
  EXPECT_EQ(list.list().ListIndex(), 3) << "from the top again";
}

}  // namespace
