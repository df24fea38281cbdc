#include "WidgetTest.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

QByteArray fileOf(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer file(&bytes);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && image.save(&file, format)) << format;
  return bytes;
}

QImage imageOf(const Picture& picture) { return static_cast<const QtPicture&>(*picture).image(); }

using Pictures = WidgetTest;

TEST_F(Pictures, ComeBackFromAListFile) {
  QImage image(3, 2, QImage::Format_ARGB32);
  image.fill(Qt::green);
  image.setPixelColor(2, 1, QColor(10, 20, 30, 40));
  const QTemporaryDir folder;
  const std::string path = folder.filePath("list.nvl").toStdString();
  const std::pair<const char*, Picture> pictures[] = {
      {"PNG", QtPicture::fromBytes(fileOf(image, "PNG"))},
      {"ICO", QtPicture::fromBytes(fileOf(image, "ICO"))},
      {"not loaded from a file", QtPicture::fromImage(image)}};
  for (const auto& [name, picture] : pictures) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(picture);
    list().ItemsClear();
    list().ItemsAdd({.aText = "", .aIcon = picture, .aIconSelected = picture});
    list().ListSave(path, true);
    list().ListInput(path, true);
    ASSERT_TRUE(list().ItemsCount() == 1 && list().ItemIcon(0));
    EXPECT_EQ(list().ItemIcon(0)->fileBytes(), picture->fileBytes());
    EXPECT_EQ(imageOf(list().ItemIcon(0)), imageOf(picture));
  }
  EXPECT_THROW(QtFiles().loadPicture(std::vector<std::byte>(100)), Failure);
}

TEST_F(Pictures, KeepNoMorePixelsThanTheBudget) {
  EXPECT_EQ(QtPicture::pixelBudget(), 64'000'000);
  QImage square(100, 100, QImage::Format_Mono);
  square.fill(1);
  const QByteArray bytes = fileOf(square, "PNG");
  const Picture one = QtPicture::fromBytes(bytes), other = QtPicture::fromBytes(bytes);
  QtPicture::pixelBudget(15'000);
  const qint64 decoded = imageOf(one).cacheKey();
  EXPECT_EQ(imageOf(one).cacheKey(), decoded) << "decoded once";
  imageOf(other);
  EXPECT_NE(imageOf(one).cacheKey(), decoded) << "dropped for the other one";

  QtPicture::pixelBudget(9'999);
  EXPECT_FALSE(QtPicture::fromBytes(bytes));
  EXPECT_TRUE(imageOf(one).isNull());
  list().Style(cIcons);
  list().ItemsAdd({.aText = "", .aIcon = one});
  EXPECT_FALSE(widget->grab().isNull());
  QtPicture::pixelBudget(64'000'000);
}

}  // namespace
}  // namespace norvane
