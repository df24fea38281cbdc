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

TEST(QtListFileTest, bringsPicturesBack) {
  QtApplication application;
  QTemporaryDir folder;
  const std::string path = folder.filePath("list.nvl").toStdString();
  NvListWidget widget;
  nvList& list = widget.list();
  for (const char* format : {"PNG", "ICO"}) {
    QByteArray bytes;
    QBuffer file(&bytes);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(painted().save(&file, format)) << format;
    const Picture picture = QtPicture::fromBytes(bytes);
    ASSERT_TRUE(picture) << format;
    list.ItemsClear();
    list.ItemsAdd({.aText = format, .aIcon = picture, .aIconSelected = picture});
    list.ListSave(path, true);
    list.ListInput(path, true);
    ASSERT_EQ(list.ItemsCount(), 1);
    const Picture back = list.ItemIcon(0);
    ASSERT_TRUE(back) << format;
    EXPECT_EQ(back->fileBytes(), picture->fileBytes()) << format;
    EXPECT_EQ(static_cast<const QtPicture&>(*back).image(),
              static_cast<const QtPicture&>(*picture).image())
        << format;
  }

  // A picture that was not loaded from a file.
  const Picture drawn = QtPicture::fromImage(painted());
  list.ItemIconSelected(0, drawn);
  list.ListSave(path, true);
  list.ListInput(path, true);
  ASSERT_TRUE(list.ItemIcon(0));
  EXPECT_THROW(application.loadPicture(std::vector<std::byte>(100)), Failure);
  EXPECT_EQ(static_cast<const QtPicture&>(*list.ItemIcon(0)).image(),
            static_cast<const QtPicture&>(*drawn).image());
}

/// Few bytes that decode to many pixels: 4096 by 4096, one bit per pixel.
QByteArray largePicture() {
  QImage image(4096, 4096, QImage::Format_Mono);
  image.fill(1);
  QByteArray bytes;
  QBuffer file(&bytes);
  file.open(QIODevice::WriteOnly);
  image.save(&file, "PNG");
  return bytes;
}

long residentMegabytes() {
  QFile statistics("/proc/self/statm");
  if (!statistics.open(QIODevice::ReadOnly)) return 0;
  return statistics.readAll().split(' ').value(1).toLong() * 4096 / 1'000'000;
}

TEST(QtListFileTest, keepsNoMorePixelsThanTheBudget) {
  QtApplication application;
  QTemporaryDir folder;
  const std::string path = folder.filePath("large.nvl").toStdString();
  const qsizetype budget = QtPicture::pixelBudget();
  EXPECT_EQ(budget, 64'000'000);
  const QByteArray bytes = largePicture();
  QtPicture::pixelBudget(20'000'000);
  NvListWidget widget;
  widget.resize(200, 300);
  nvList& list = widget.list();
  list.Style(cIcons);
  const long before = residentMegabytes();
  for (int i = 0; i < 8; ++i) {
    // Each is a separate picture.
    list.ItemsAdd({.aText = "a", .aIconSelected = QtPicture::fromBytes(bytes)});
  }
  list.ListSave(path, true);
  list.ListInput(path, true);
  ASSERT_TRUE(list.ItemIcon(7));
  EXPECT_FALSE(widget.grab().isNull());
  // All eight decoded would take 537 MB. The address sanitizer keeps some freed ones.
  EXPECT_LT(residentMegabytes() - before, 400);

  // A picture with more pixels than the budget is invalid.
  QtPicture::pixelBudget(4096 * 4096 - 1);
  EXPECT_FALSE(QtPicture::fromBytes(bytes));
  EXPECT_TRUE(static_cast<const QtPicture&>(*list.ItemIcon(7)).image().isNull());
  widget.grab();
  QtPicture::pixelBudget(budget);
}

}  // namespace
}  // namespace norvane
