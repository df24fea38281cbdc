#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <examples/gallery/EventLog.h>
#include <examples/gallery/Settings.h>
#include <nvlist/platform/qt/NvListWidget.h>

namespace gallery {
namespace {

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() {
    widget.resize(200, 100);
    for (int i = 0; i < 20; ++i)
      list.ItemsAdd({.aText = i, .aChecked = i % 2 == 0, .aAllowEdit = true, .aKey = "key"});
    list.MinHeight(10);
    widget.show();
  }

  QString write(const char* text) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return path;
  }

  QTemporaryDir folder;
  const QString path = folder.filePath("list.txt");
  EventLog log;
  norvane::NvListWidget widget;
  norvane::nvList& list = widget.list();
};

TEST_F(SettingsTest, comeBackFromAFileAndTheItemsStay) {
  list.Style(norvane::cCheckBoxes);
  list.ListIndex(12);
  const std::int32_t top = list.TopIndex();
  ASSERT_GT(top, 0);
  saveSettings(list, path);
  list.Style(norvane::cDefault);
  EXPECT_EQ(loadSettings(list, path), QStringList());
  EXPECT_EQ(list.Style(), norvane::cCheckBoxes);

  EXPECT_EQ(list.ItemsCount(), 20);
  EXPECT_TRUE(list.ItemChecked(12));
  EXPECT_EQ(list.ItemKey(12).toText(), "key");
  EXPECT_EQ(list.ListIndex(), 12);
  EXPECT_TRUE(list.ItemSelected(12));
  EXPECT_EQ(list.TopIndex(), top);
}

TEST_F(SettingsTest, aRefusedValueLeavesAllAsItWas) {
  list.ItemSelected(3, true);
  list.ItemSelected(5, true);
  const QStringList remarks =
      loadSettings(list, write("Style = 1\nMinHeight = \"tall\"\nGridLines = True\n"));
  EXPECT_EQ(remarks, QStringList("MinHeight refused its value: all settings stay as they were"));
  EXPECT_EQ(list.Style(), norvane::cDefault);
  EXPECT_EQ(list.MinHeight(), 10);
  EXPECT_EQ(list.ItemsSelectCount(), 2);
  EXPECT_FALSE(list.state().SuppressRedraw);

  EXPECT_EQ(loadSettings(list, write("GridLine = True\nStyle = 1\n")),
            QStringList("No property is called GridLine"));

  try {
    loadSettings(list, write("# a comment\nStyle = 2\nGridLines\n"));
    ADD_FAILURE() << "a line that is no property";
  } catch (const QString& message) {
    EXPECT_EQ(message, QString("Cannot read %1: Invalid file format in line 3").arg(path));
  }
  EXPECT_THROW(loadSettings(list, folder.filePath("missing")), QString);
}

}  // namespace
}  // namespace gallery
