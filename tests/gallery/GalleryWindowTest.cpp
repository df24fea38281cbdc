#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <set>

#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/ListFiles.h>
#include <examples/gallery/Settings.h>

namespace gallery {
namespace {

/// A window that shows one of its pages, and a folder for files.
class GalleryWindowTest : public testing::Test {
 protected:
  GalleryWindowTest() {
    window.show();
    window.showPage(0);
  }

  /// The list on the page of that name, which is then shown.
  norvane::nvList& listOn(const char* page) {
    for (int i = 0;; ++i) {
      if (auto* widget = window.findChild<norvane::NvListWidget*>(page)) return widget->list();
      window.showPage(i);
    }
  }
  /// A tool or a check box, when the window has followed the list.
  QAbstractButton& button(const char* name) {
    QCoreApplication::processEvents();
    return *window.findChild<QAbstractButton*>(name);
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
  const QString path = folder.filePath("a list.nvl");
  GalleryWindow window{allPages({"A text", {"one", "two", "three"}})};
  EventLog* log = window.findChild<EventLog*>();
};

TEST_F(GalleryWindowTest, everyPageIsChosenByItsRowAndShowsSomethingElse) {
  norvane::nvList& names = listOn("chooser");
  auto* const chooser = window.findChild<QWidget*>("chooser");
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

TEST_F(GalleryWindowTest, theToolsAndSheetsWorkOnTheListAndFollowIt) {
  norvane::nvList& list = listOn("text");
  button("Edit").click();
  EXPECT_TRUE(list.AllowEdit());
  EXPECT_TRUE(logged().endsWith("AllowEdit = True"));
  list.AllowItemMoving(true);
  EXPECT_TRUE(button("Move").isChecked());

  // After sorting, the current item is still the same one.
  list.ListIndex(1);
  const std::pair<const char*, int> tools[] = {{"Z-A", 0}, {"A-Z", 2}, {"\u25B2", 1}};
  for (const auto& [tool, index] : tools) {
    button(tool).click();
    EXPECT_EQ(list.ItemText(index), "two") << tool;
    EXPECT_EQ(list.ListIndex(), index) << tool;
  }

  list.ItemBold(1, true);
  EXPECT_TRUE(button("ItemBold").isChecked());
  // Without a current item the first selected one is shown; without a selection, nothing.
  list.ItemSelected(0, true);
  EXPECT_EQ(list.ListIndex(), -1);
  button("ItemItalic").click();
  EXPECT_TRUE(list.ItemItalic(0));
  list.ItemsClear();
  for (const char* disabled : {"ItemItalic", "A-Z", "\u25B2", "\u25BC"})
    EXPECT_FALSE(button(disabled).isEnabled()) << disabled;
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

TEST_F(GalleryWindowTest, AListComesBackFromItsFile) {
  norvane::nvList& files = listOn("files");
  const int count = files.ItemsCount();
  files.ItemBold(1, true);
  files.ListIndex(3);
  saveListFile(files, path, Properties::kept);
  log->write("saved");
  EXPECT_TRUE(logged().contains(QString("ListSaving   Index = %1\nsaved").arg(count - 1)));
  files.ItemsClear();
  openListFile(files, path, Properties::kept);
  ASSERT_EQ(files.ItemsCount(), count);
  EXPECT_TRUE(files.ItemBold(1));
  EXPECT_EQ(files.ListIndex(), 3) << "the selected item is the current one";

  openListFile(files, folder.filePath("missing"), Properties::kept);
  EXPECT_EQ(files.ItemsCount(), count);
  ASSERT_TRUE(QFile::resize(path, 100));
  openListFile(files, path, Properties::kept);
  EXPECT_EQ(files.ItemsCount(), 0);
  EXPECT_TRUE(logged().endsWith("ErrorListInput   (2 times)"));

  files.ItemsAdd("\u00c4 \u20ac");
  EXPECT_EQ(saveOlderFile(files, path), "");
  openListFile(files, path, Properties::kept);
  EXPECT_EQ(files.ItemText(0), "\u00c4 \u20ac");
}

TEST_F(GalleryWindowTest, AQueryFillsTheListAndABadOneIsLogged) {
  norvane::nvList& rows = listOn("database");
  auto* query = window.findChild<QComboBox*>("query");
  if (!query) GTEST_SKIP() << "no database here";
  const std::pair<const char*, int> statements[] = {
      {"SELECT name FROM places WHERE country LIKE 'Congo, The %'", 26},
      {"SELECT name FROM nowhere", 26},
      {"SELECT 'a' UNION ALL SELECT NULL", 1}};
  for (const auto& [statement, count] : statements) {
    query->setCurrentText(statement);
    QTest::keyClick(query, Qt::Key_Return);
    EXPECT_EQ(rows.ItemsCount(), count) << statement;
  }
  EXPECT_TRUE(logged().contains("Automation error: no such table: nowhere"));
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
    EXPECT_EQ(count > 0 ? files.ItemsCount() : 0, count) << name;
    EXPECT_TRUE(count > 0 ? files.ItemText(0) == shown : logged().contains(file + " " + shown))
        << name;
  }
  EXPECT_TRUE(logged().contains("No field is called x"));
  EXPECT_TRUE(logged().contains("Line 3: invalid JSON"));
  window.openFile(folder.path());
  EXPECT_TRUE(logged().contains("is a folder"));
  // A long text is stopped when asked.
  openAnyFile(files, write("text", QByteArray("line\n").repeated(50000)), Properties::kept,
              [](int percent) { return percent < 50; });
  EXPECT_TRUE(files.ItemsCount() >= 25000 && files.ItemsCount() < 50000);
}

TEST_F(GalleryWindowTest, SettingsComeBackFromAFileAndTheItemsStay) {
  norvane::nvList& list = listOn("text");
  for (int i = 0; i < 100; ++i) list.ItemsAdd({.aText = i, .aChecked = true, .aKey = "key"});
  list.Style(norvane::cCheckBoxes);
  list.ListIndex(90);
  const std::int32_t top = list.TopIndex();
  saveSettings(list, path);
  list.Style(norvane::cDefault);
  EXPECT_EQ(loadSettings(list, path), QStringList());
  EXPECT_EQ(list.Style(), norvane::cCheckBoxes);
  EXPECT_EQ(list.ItemsCount(), 103);
  EXPECT_TRUE(list.ItemChecked(90) && list.ItemSelected(90));
  EXPECT_EQ(list.ItemKey(90).toText(), "key");
  EXPECT_EQ(list.TopIndex(), top);
}

TEST_F(GalleryWindowTest, ARefusedSettingLeavesAllAsItWas) {
  norvane::nvList& list = listOn("text");
  list.ItemSelected(0, true);
  list.ItemSelected(2, true);
  EXPECT_EQ(
      loadSettings(list, write("list.txt", "Style = 3\nMinHeight = \"tall\"\nGridLines = True\n")),
      QStringList("MinHeight refused its value: all settings stay as they were"));
  EXPECT_NE(list.Style(), norvane::cCheckBoxesIcons);
  EXPECT_EQ(list.ItemsSelectCount(), 2);
  EXPECT_FALSE(list.state().SuppressRedraw);
  EXPECT_EQ(loadSettings(list, write("list.txt", "GridLine = True\nStyle = 1\n")),
            QStringList("No property is called GridLine"));

  EXPECT_THROW(loadSettings(list, write("list.txt", "Style = 2\nGridLines\n")), QString);
  EXPECT_THROW(loadSettings(list, folder.filePath("missing")), QString);
}

}  // namespace
}  // namespace gallery
