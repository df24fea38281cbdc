#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include "../../examples/million/MillionWindow.h"
#include "../../examples/todo/TodoWindow.h"

namespace {

template <class Window>
void show(Window& window) {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

TEST(Examples, todo) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("list");
  const QString tasks[] = {"Water the plants", "Call Mira", "Mend the bicycle", "Book the train"};
  {
    TodoWindow window(path);
    show(window);
    auto& input = *window.findChild<QLineEdit*>();
    auto& list = *window.findChild<norvane::NvListWidget*>();
    for (const QString& task : tasks) {
      QTest::keyClicks(&input, task);
      QTest::keyClick(&input, Qt::Key_Return);
    }
    ASSERT_EQ(list.count(), 4);
    list.setFocus();
    QTest::keyClicks(&list, "c");
    // Until then a blank belongs to what is typed.
    QTest::qWait(QApplication::keyboardInputInterval() + 100);
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_F2);
    QTest::keyClicks(list.editBox(), "Call Mira and Jon");
    QTest::keyClick(list.editBox(), Qt::Key_Return);
    EXPECT_EQ(list.list().ItemForeColor(1), norvane::colours::greyText);
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(window.statusBar()->currentMessage(), "1 of 3 done");
  }
  TodoWindow window(path);
  show(window);
  auto& list = *window.findChild<norvane::NvListWidget*>();
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(list.itemText(0), "Call Mira and Jon");
  EXPECT_EQ(list.list().ItemChecked(0), true);
  EXPECT_EQ(list.list().ItemAllowEdit(2), true);
}

TEST(Examples, million) {
  constexpr int rows = 50'000;
  MillionWindow window(rows);
  show(window);
  auto& search = *window.findChild<QLineEdit*>();
  auto& list = *window.findChild<norvane::NvListWidget*>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return search.isEnabled(); }, 60'000));
  ASSERT_EQ(list.count(), rows);
  QTest::keyClicks(&search, "049998");
  EXPECT_EQ(list.list().ListIndex(), 49'998);
  QTest::keyClicks(&search, "x");
  EXPECT_EQ(list.list().ListIndex(), 49'998);
  search.setText("morat");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(list.list().ListIndex(), 3) << "from the top again";
}

}  // namespace
