#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QToolButton>
#include <set>

#include <examples/gallery/GalleryWindow.h>
#include <nvlist/platform/qt/NvScrollWidget.h>

namespace gallery {
namespace {

class GalleryWindowTest : public testing::Test {
 protected:
  GalleryWindowTest() {
    window.show();
    window.showPage(0);
    QCoreApplication::processEvents();
  }

  norvane::NvListWidget* listNamed(const QString& name) {
    return window.findChild<norvane::NvListWidget*>(name);
  }

  void press(QWidget* widget, QPoint at) {
    QMouseEvent event(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    QMouseEvent release(QEvent::MouseButtonRelease, at, widget->mapToGlobal(at), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
    QCoreApplication::processEvents();
  }

  void showPage(const char* name) {
    for (std::size_t i = 0; i < pages.size(); ++i)
      if (pages[i].name == QString(name)) window.showPage(static_cast<int>(i));
    QCoreApplication::processEvents();
  }

  void use(const char* tool) {
    field<QToolButton>(tool)->click();
    QCoreApplication::processEvents();
  }

  QString lastLogged() { return window.findChild<EventLog*>()->toPlainText().split('\n').last(); }

  template <class Widget>
  Widget* field(const char* name) {
    return window.findChild<Widget*>(name);
  }

  const std::vector<Page> pages = allPages({"A text", {"one", "two", "three"}});
  GalleryWindow window{pages};
};

TEST_F(GalleryWindowTest, everyPageIsChosenByItsRowAndShowsSomethingElse) {
  auto* chooser = listNamed("chooser");
  norvane::nvList& names = chooser->list();
  std::set<QString> titles;
  for (int i = 0; i < names.ItemsCount(); ++i) {
    const float y = names.IndentTop() + (static_cast<float>(i) + 0.5F) * names.MinHeight();
    press(chooser, QPoint(20, static_cast<int>(y)));
    EXPECT_EQ(names.ListIndex(), i);
    titles.insert(window.windowTitle());
  }
  EXPECT_EQ(titles.size(), static_cast<std::size_t>(names.ItemsCount()));
  EXPECT_TRUE(titles.count("A text - nvList"));
  for (const char* list : {"text", "checks", "icons", "both", "edit", "cXPBlue", "cCustom"}) {
    ASSERT_TRUE(listNamed(list)) << list;
    EXPECT_GT(listNamed(list)->list().ItemsCount(), 0) << list;
  }
}

TEST_F(GalleryWindowTest, theArrowKeysChooseAPageToo) {
  auto* chooser = listNamed("chooser");
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(chooser, &event);
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(window.windowTitle(), "Check boxes - nvList");
}

TEST_F(GalleryWindowTest, theToolsWorkOnTheListAndFollowIt) {
  norvane::nvList& list = listNamed("text")->list();
  use("Edit");
  EXPECT_TRUE(list.AllowEdit());
  EXPECT_EQ(lastLogged(), "AllowEdit = True");
  list.AllowItemMoving(true);
  list.WheelFunction(norvane::cWheelOff);
  QCoreApplication::processEvents();
  EXPECT_TRUE(field<QToolButton>("Move")->isChecked());
  EXPECT_EQ(field<QComboBox>("wheel")->currentText(), "Wheel off");

  // Sorted, the current item is still the same one.
  list.ListIndex(1);
  use("Z-A");
  EXPECT_EQ(list.ItemText(0), "two");
  EXPECT_EQ(list.ListIndex(), 0);
  use("A-Z");
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_FALSE(field<QToolButton>("\u25BC")->isEnabled());
  use("\u25B2");
  EXPECT_EQ(lastLogged(), "MoveItemUp 2, 1");
  EXPECT_EQ(list.ItemText(1), "two");
  EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(GalleryWindowTest, thePageOfTheBarsHasThemAlone) {
  showPage("bars");
  EXPECT_FALSE(field<QToolButton>("Edit")->isVisible());
  for (const char* family : {"VScroll Blue", "VScroll Silver", "VScroll Olive"})
    EXPECT_TRUE(field<norvane::NvVScrollWidget>(family)) << family;
  auto* custom = field<norvane::NvHScrollWidget>("HScroll Custom");
  ASSERT_TRUE(custom);
  EXPECT_EQ(custom->bar().ColorStyle(), norvane::nvHScroll::custom);

  const int value = custom->bar().Value();
  press(custom->childAt(custom->width() - 8, 8), QPoint(8, 8));
  EXPECT_EQ(custom->bar().Value(), value + 1);
  QStringList labels;
  for (auto* label : window.findChildren<QLabel*>()) labels << label->text();
  EXPECT_TRUE(labels.contains(QString("Value %1   Change 1   Scroll 0").arg(value + 1)));
  showPage("text");
  EXPECT_TRUE(field<QToolButton>("Edit")->isVisible());
}

TEST_F(GalleryWindowTest, theSheetsFollowTheListAndItsCurrentItem) {
  norvane::nvList& list = listNamed("text")->list();
  list.ListIndex(2);
  list.ItemBold(2, true);
  list.GridLines(true);
  QCoreApplication::processEvents();
  EXPECT_TRUE(field<QCheckBox>("ItemBold")->isChecked());
  EXPECT_TRUE(field<QCheckBox>("GridLines")->isChecked());

  // Without a current item the first selected one is shown, and with none of them nothing.
  list.ItemSelected(1, true);
  EXPECT_EQ(list.ListIndex(), -1);
  QCoreApplication::processEvents();
  field<QCheckBox>("ItemItalic")->click();
  EXPECT_TRUE(list.ItemItalic(1));
  list.ItemsClear();
  QCoreApplication::processEvents();
  EXPECT_FALSE(field<QCheckBox>("ItemItalic")->isEnabled());
}

TEST_F(GalleryWindowTest, startingOverFillsThePageAnew) {
  norvane::nvList& before = listNamed("text")->list();
  before.GridLines(true);
  before.ItemsClear();
  for (auto* button : window.findChildren<QToolButton*>())
    if (button->text() == "Start over") button->click();
  QCoreApplication::processEvents();
  norvane::nvList& after = listNamed("text")->list();
  EXPECT_EQ(after.ItemsCount(), 3);
  EXPECT_FALSE(after.GridLines());
  EXPECT_FALSE(field<QCheckBox>("GridLines")->isChecked());
}

TEST_F(GalleryWindowTest, aRestingMouseBringsTheHintOfAButton) {
  const QWidget* again = nullptr;
  for (auto* button : window.findChildren<QToolButton*>())
    if (button->text() == "Start over") again = button;
  ASSERT_TRUE(again);
  QCursor::setPos(again->mapToGlobal(again->rect().center()));
  QString hint;
  const QDeadlineTimer patience(5000);
  while (hint.isEmpty() && !patience.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (widget->windowType() == Qt::ToolTip && widget->isVisible())
        hint = widget->accessibleName();
  }
  EXPECT_TRUE(hint.startsWith("Fill the page anew")) << qPrintable(hint);
}

}  // namespace
}  // namespace gallery
