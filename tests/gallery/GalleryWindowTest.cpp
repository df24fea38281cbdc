#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <set>

#include <examples/gallery/GalleryWindow.h>

namespace gallery {
namespace {

class GalleryWindowTest : public testing::Test {
 protected:
  GalleryWindowTest() {
    window.show();
    window.showPage(0);
    QCoreApplication::processEvents();
  }

  norvane::NvListWidget* listNamed(const char* name) {
    return window.findChild<norvane::NvListWidget*>(name);
  }
  /// A tool or a check box.
  QAbstractButton* button(const char* name) { return window.findChild<QAbstractButton*>(name); }
  void use(const char* name) {
    button(name)->click();
    QCoreApplication::processEvents();
  }

  QString lastLogged() { return window.findChild<EventLog*>()->toPlainText().split('\n').last(); }

  GalleryWindow window{allPages({"A text", {"one", "two", "three"}})};
};

TEST_F(GalleryWindowTest, everyPageIsChosenByItsRowAndShowsSomethingElse) {
  auto* chooser = listNamed("chooser");
  norvane::nvList& names = chooser->list();
  std::set<QString> titles;
  for (int i = 0; i < names.ItemsCount(); ++i) {
    const float y = names.IndentTop() + (static_cast<float>(i) + 0.5F) * names.MinHeight();
    QTest::mouseClick(chooser, Qt::LeftButton, {}, QPoint(20, static_cast<int>(y)));
    EXPECT_EQ(names.ListIndex(), i);
    titles.insert(window.windowTitle());
  }
  EXPECT_EQ(titles.size(), static_cast<std::size_t>(names.ItemsCount()));
  EXPECT_TRUE(titles.count("A text - nvList"));
}

TEST_F(GalleryWindowTest, theToolsWorkOnTheListAndFollowIt) {
  norvane::nvList& list = listNamed("text")->list();
  use("Edit");
  EXPECT_TRUE(list.AllowEdit());
  EXPECT_EQ(lastLogged(), "AllowEdit = True");
  list.AllowItemMoving(true);
  QCoreApplication::processEvents();
  EXPECT_TRUE(button("Move")->isChecked());

  // After sorting, the current item is still the same one.
  list.ListIndex(1);
  use("Z-A");
  EXPECT_EQ(list.ItemText(0), "two");
  EXPECT_EQ(list.ListIndex(), 0);
  use("A-Z");
  EXPECT_EQ(list.ListIndex(), 2);
  use("\u25B2");
  EXPECT_EQ(list.ItemText(1), "two");
  EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(GalleryWindowTest, theSheetsFollowTheListAndItsCurrentItem) {
  norvane::nvList& list = listNamed("text")->list();
  list.ListIndex(2);
  list.ItemBold(2, true);
  QCoreApplication::processEvents();
  EXPECT_TRUE(button("ItemBold")->isChecked());

  // Without a current item the first selected one is shown; without a selection, nothing.
  list.ItemSelected(1, true);
  EXPECT_EQ(list.ListIndex(), -1);
  QCoreApplication::processEvents();
  button("ItemItalic")->click();
  EXPECT_TRUE(list.ItemItalic(1));
  list.ItemsClear();
  QCoreApplication::processEvents();
  EXPECT_FALSE(button("ItemItalic")->isEnabled());
}

}  // namespace
}  // namespace gallery
