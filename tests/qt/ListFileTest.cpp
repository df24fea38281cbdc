#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>

#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

QImage painted() {
  QImage image(3, 2, QImage::Format_ARGB32);
  image.fill(Qt::green);
  image.setPixelColor(2, 1, QColor(10, 20, 30, 40));
  return image;
}

QImage imageOf(const Picture& picture) { return static_cast<const QtPicture&>(*picture).image(); }

QByteArray fileOf(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer file(&bytes);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_TRUE(image.save(&file, format)) << format;
  return bytes;
}

TEST(QtListFileTest, BringsPicturesBack) {
  QtApplication application;
  QTemporaryDir folder;
  const std::string path = folder.filePath("list.nvl").toStdString();
  NvListWidget widget;
  nvList& list = widget.list();
  const std::pair<const char*, Picture> pictures[] = {
      {"PNG", QtPicture::fromBytes(fileOf(painted(), "PNG"))},
      {"ICO", QtPicture::fromBytes(fileOf(painted(), "ICO"))},
      {"not loaded from a file", QtPicture::fromImage(painted())}};
  for (const auto& [name, picture] : pictures) {
    ASSERT_TRUE(picture) << name;
    list.ItemsClear();
    list.ItemsAdd({.aText = name, .aIcon = picture, .aIconSelected = picture});
    list.ListSave(path, true);
    list.ListInput(path, true);
    ASSERT_EQ(list.ItemsCount(), 1);
    ASSERT_TRUE(list.ItemIcon(0)) << name;
    EXPECT_EQ(list.ItemIcon(0)->fileBytes(), picture->fileBytes()) << name;
    EXPECT_EQ(imageOf(list.ItemIcon(0)), imageOf(picture)) << name;
  }
  EXPECT_THROW(application.loadPicture(std::vector<std::byte>(100)), Failure);
}

long residentMegabytes() {
  QFile statistics("/proc/self/statm");
  if (!statistics.open(QIODevice::ReadOnly)) return 0;
  return statistics.readAll().split(' ').value(1).toLong() * 4096 / 1'000'000;
}

TEST(QtListFileTest, KeepsNoMorePixelsThanTheBudget) {
  QtApplication application;
  QTemporaryDir folder;
  const std::string path = folder.filePath("large.nvl").toStdString();
  const qsizetype budget = QtPicture::pixelBudget();
  EXPECT_EQ(budget, 64'000'000);
  // Few bytes that decode to many pixels.
  QImage large(4096, 4096, QImage::Format_Mono);
  large.fill(1);
  const QByteArray bytes = fileOf(large, "PNG");
  QtPicture::pixelBudget(20'000'000);
  NvListWidget widget;
  widget.resize(200, 300);
  nvList& list = widget.list();
  list.Style(cIcons);
  const long before = residentMegabytes();
  for (int i = 0; i < 8; ++i)
    list.ItemsAdd({.aText = "a", .aIconSelected = QtPicture::fromBytes(bytes)});
  list.ListSave(path, true);
  list.ListInput(path, true);
  ASSERT_TRUE(list.ItemIcon(7));
  EXPECT_FALSE(widget.grab().isNull());
  // All eight decoded would take 537 MB. The address sanitizer keeps some freed ones.
  EXPECT_LT(residentMegabytes() - before, 400);

  // A picture with more pixels than the budget is invalid.
  QtPicture::pixelBudget(4096 * 4096 - 1);
  EXPECT_FALSE(QtPicture::fromBytes(bytes));
  EXPECT_TRUE(imageOf(list.ItemIcon(7)).isNull());
  widget.grab();
  QtPicture::pixelBudget(budget);
}

}  // namespace
}  // namespace norvane
