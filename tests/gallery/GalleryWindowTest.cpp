#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <set>

#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/ListFiles.h>

namespace gallery {
namespace {

/// A window that shows one of its pages, and a folder for files.
class GalleryWindowTest : public testing::Test {
 protected:
  GalleryWindowTest() {
    window.show();
    window.showPage(0);
  }

  norvane::NvListWidget* widget(const char* name) {
    return window.findChild<norvane::NvListWidget*>(name);
  }
  /// The list on the page of that name, which is then shown.
  norvane::nvList& listOn(const char* page) {
    for (int i = 0; !widget(page); ++i) window.showPage(i);
    return widget(page)->list();
  }
  /// A tool or a check box.
  QAbstractButton* button(const char* name) { return window.findChild<QAbstractButton*>(name); }
  void use(const char* name) {
    button(name)->click();
    QCoreApplication::processEvents();
  }
  bool isShown(const QString& beginning) {
    for (const QLabel* label : window.findChildren<QLabel*>())
      if (label->text().startsWith(beginning)) return true;
    return false;
  }
  QString logged() {
    QCoreApplication::processEvents();
    return log->toPlainText();
  }
  QString write(const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  QTemporaryDir folder;
  QString path = folder.filePath("a list.nvl");
  GalleryWindow window{allPages({"A text", {"one", "two", "three"}})};
  EventLog* log = window.findChild<EventLog*>();
};

TEST_F(GalleryWindowTest, everyPageIsChosenByItsRowAndShowsSomethingElse) {
  auto* chooser = widget("chooser");
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
  norvane::nvList& list = listOn("text");
  use("Edit");
  EXPECT_TRUE(list.AllowEdit());
  EXPECT_TRUE(logged().endsWith("AllowEdit = True"));
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
  norvane::nvList& list = listOn("text");
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

TEST_F(GalleryWindowTest, theLogKeepsTheLastMoveCountsRepetitionsAndHearsFailures) {
  norvane::nvList& list = listOn("text");
  log->write("start");
  for (const float x : {10.0F, 20.0F, 30.0F}) list.UserControl_MouseMove(0, 0, x, 5);
  for (int i = 0; i < 3; ++i) list.ListIndex(7);
  list.ItemText("Graz");
  const QStringList lines = logged().split('\n');
  ASSERT_GE(lines.size(), 4);
  EXPECT_EQ(lines[lines.size() - 4], "start");
  EXPECT_TRUE(lines[lines.size() - 3].endsWith("X = 30, Y = 5"));
  EXPECT_EQ(lines[lines.size() - 2], "ErrorWrongIndex   Index = 7   (3 times)");
  EXPECT_TRUE(lines.last().startsWith("Failure 13 in nvList.ItemText, line "));
}

TEST_F(GalleryWindowTest, AListComesBackFromItsFileAndTheProgressIsShown) {
  norvane::nvList& files = listOn("files");
  const int count = files.ItemsCount();
  files.ItemBold(1, true);
  files.ListIndex(3);
  saveListFile(files, path, Properties::kept);
  EXPECT_TRUE(isShown("Saving item "));
  log->write("saved");
  EXPECT_TRUE(logged().contains(QString("ListSaving   Index = %1\nsaved").arg(count - 1)));
  files.ItemsClear();
  openListFile(files, path, Properties::kept);
  ASSERT_EQ(files.ItemsCount(), count);
  EXPECT_TRUE(files.ItemBold(1));
  EXPECT_EQ(files.ListIndex(), 3) << "the selected item is the current one";
  files.ListIndex(7);
  EXPECT_EQ(files.ItemsSelectCount(), 1);

  openListFile(files, folder.filePath("missing"), Properties::kept);
  EXPECT_TRUE(logged().endsWith("ErrorListInput"));
  EXPECT_EQ(files.ItemsCount(), count);
  // A truncated file leaves the list empty and the tools disabled.
  ASSERT_TRUE(QFile::resize(path, 100));
  openListFile(files, path, Properties::kept);
  EXPECT_EQ(files.ItemsCount(), 0);
  EXPECT_TRUE(logged().endsWith("ErrorListInput   (2 times)"));
  for (const char* tool : {"A-Z", "\u25B2", "\u25BC"})
    EXPECT_FALSE(button(tool)->isEnabled()) << tool;
}

TEST_F(GalleryWindowTest, AnOlderFileBringsTheTextsAndItsReadingIsShown) {
  norvane::nvList& files = listOn("files");
  const int count = files.ItemsCount();
  files.ItemText(1, "\u00c4 \u20ac");
  EXPECT_EQ(saveOlderFile(files, path), "");
  files.ItemsClear();
  openListFile(files, path, Properties::kept);
  EXPECT_TRUE(isShown(QString("Reading item 0 of %1").arg(count)));
  ASSERT_EQ(files.ItemsCount(), count);
  EXPECT_EQ(files.ItemText(1), "\u00c4 \u20ac");
}

TEST_F(GalleryWindowTest, AQueryFillsTheListAndABadOneIsLogged) {
  norvane::nvList& rows = listOn("database");
  auto* query = window.findChild<QComboBox*>("query");
  if (!query) GTEST_SKIP() << "no database here";
  EXPECT_EQ(rows.ItemsCount(), 200);
  const auto fillFrom = [&](const char* statement) {
    query->setCurrentText(statement);
    for (auto* tool : window.findChildren<QAbstractButton*>())
      if (tool->text() == "Fill") tool->click();
    return rows.ItemsCount();
  };
  EXPECT_EQ(fillFrom("SELECT name FROM places WHERE country LIKE 'Congo, The %'"), 26);
  EXPECT_EQ(fillFrom("DROP TABLE places"), 26);
  EXPECT_EQ(fillFrom("SELECT name FROM nowhere"), 26);
  EXPECT_TRUE(logged().contains("Automation error: no such table: nowhere"))
      << qPrintable(logged());
  EXPECT_EQ(fillFrom("SELECT 'a' UNION ALL SELECT NULL UNION ALL SELECT 'b'"), 1);
  EXPECT_TRUE(rows.AutoRedraw());
}

TEST_F(GalleryWindowTest, AnyFileIsOpenedByItsContentsOrRefused) {
  const struct {
    const char* name;
    QByteArray bytes;
    const char* shown;  ///< the first item, or the beginning of the message
    int count;          ///< 0: refused
  } cases[] = {
      {"a text", "one\r\ntwo", "one", 2},
      {"JSON Lines", " {\"Text\":\"eins\"}\n{\"x\":1}\n{", "eins", 2},
      {"a list file", QByteArray("\0\0\0\0\0\x11\x01\2\0\0\0ab", 13), "ab", 1},
      {"a program", QByteArray("MZ\x90\0\3\0\0\0", 8), "is neither a list nor a text", 0},
      {"a picture", QByteArray("\x89PNG\r\n\x1A\n\0", 9), "is neither a list nor a text", 0}};
  norvane::nvList& files = listOn("files");
  for (const auto& [name, bytes, shown, count] : cases) {
    const QString file = write(name, bytes);
    window.openFile(file);
    if (count > 0) {
      EXPECT_EQ(files.ItemsCount(), count) << name;
      EXPECT_EQ(files.ItemText(0), shown) << name;
    } else {
      EXPECT_TRUE(logged().contains(file + " " + shown)) << name;
    }
  }
  EXPECT_TRUE(logged().contains("No field is called x"));
  EXPECT_TRUE(logged().contains("Line 3: invalid JSON"));
  window.openFile(folder.path());
  EXPECT_TRUE(logged().contains("is a folder"));
}

TEST_F(GalleryWindowTest, ALongTextIsStoppedWhenAsked) {
  norvane::nvList& files = listOn("files");
  openAnyFile(files, write("text", QByteArray("line\n").repeated(50000)), Properties::kept,
              [](int percent) { return percent < 50; });
  EXPECT_GE(files.ItemsCount(), 25000);
  EXPECT_LT(files.ItemsCount(), 50000);
}

}  // namespace
}  // namespace gallery
