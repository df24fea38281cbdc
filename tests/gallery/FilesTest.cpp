#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QToolButton>

#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/ListFiles.h>

namespace gallery {
namespace {

/// A window that shows one of its pages, and a folder for files.
class FilesTest : public testing::Test {
 protected:
  void showPage(const char* name) {
    QList<Page> pages = allPages({"A text", {"one"}});
    int index = 0;
    while (pages.at(index).name != std::string_view(name)) ++index;
    window = std::make_unique<GalleryWindow>(std::move(pages));
    window->showPage(index);
    log = window->findChild<EventLog*>();
  }
  norvane::nvList& list(const char* name) {
    return window->findChild<norvane::NvListWidget*>(name)->list();
  }
  bool isShown(const QString& beginning) {
    for (const QLabel* label : window->findChildren<QLabel*>())
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
  std::unique_ptr<GalleryWindow> window;
  EventLog* log = nullptr;
};

TEST_F(FilesTest, AListComesBackFromItsFileAndTheProgressIsShown) {
  showPage("files");
  norvane::nvList& files = list("files");
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
    EXPECT_FALSE(window->findChild<QToolButton*>(tool)->isEnabled()) << tool;
}

TEST_F(FilesTest, AnOlderFileBringsTheTextsAndItsReadingIsShown) {
  showPage("files");
  norvane::nvList& files = list("files");
  const int count = files.ItemsCount();
  files.ItemText(1, "\u00c4 \u20ac");
  EXPECT_EQ(saveOlderFile(files, path), "");
  files.ItemsClear();
  openListFile(files, path, Properties::kept);
  EXPECT_TRUE(isShown(QString("Reading item 0 of %1").arg(count)));
  ASSERT_EQ(files.ItemsCount(), count);
  EXPECT_EQ(files.ItemText(1), "\u00c4 \u20ac");
}

TEST_F(FilesTest, AQueryFillsTheListAndABadOneIsLogged) {
  showPage("database");
  auto* query = window->findChild<QComboBox*>("query");
  if (!query) GTEST_SKIP() << "no database here";
  norvane::nvList& rows = list("database");
  EXPECT_EQ(rows.ItemsCount(), 200);
  const auto fillFrom = [&](const char* statement) {
    query->setCurrentText(statement);
    for (auto* button : window->findChildren<QToolButton*>())
      if (button->text() == "Fill") button->click();
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

TEST_F(FilesTest, AnyFileIsOpenedByItsContentsOrRefused) {
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
  showPage("files");
  norvane::nvList& files = list("files");
  for (const auto& [name, bytes, shown, count] : cases) {
    const QString file = write(name, bytes);
    window->openFile(file);
    if (count > 0) {
      EXPECT_EQ(files.ItemsCount(), count) << name;
      EXPECT_EQ(files.ItemText(0), shown) << name;
    } else {
      EXPECT_TRUE(logged().contains(file + " " + shown)) << name;
    }
  }
  EXPECT_TRUE(logged().contains("No field is called x"));
  EXPECT_TRUE(logged().contains("Line 3: invalid JSON"));
  window->openFile(folder.path());
  EXPECT_TRUE(logged().contains("is a folder"));
}

TEST_F(FilesTest, ALongTextIsStoppedWhenAsked) {
  showPage("files");
  openAnyFile(list("files"), write("text", QByteArray("line\n").repeated(50000)), Properties::kept,
              [](int percent) { return percent < 50; });
  EXPECT_GE(list("files").ItemsCount(), 25000);
  EXPECT_LT(list("files").ItemsCount(), 50000);
}

}  // namespace
}  // namespace gallery
