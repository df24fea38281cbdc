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

  // A picture that came from no file.
  const Picture drawn = QtPicture::fromImage(painted());
  list.ItemIconSelected(0, drawn);
  list.ListSave(path, true);
  list.ListInput(path, true);
  ASSERT_TRUE(list.ItemIcon(0));
  EXPECT_THROW(application.loadPicture(std::vector<std::byte>(100)), Failure);
  EXPECT_EQ(static_cast<const QtPicture&>(*list.ItemIcon(0)).image(),
            static_cast<const QtPicture&>(*drawn).image());
}

}  // namespace
}  // namespace norvane
