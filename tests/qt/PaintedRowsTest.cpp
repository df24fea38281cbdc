#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/render/art.h>

namespace norvane {
namespace {

/// Rows of 20 pixels, the first at 3, on a widget of 200 by 150.
class PaintedRows : public testing::Test {
 protected:
  PaintedRows() {
    widget.resize(200, 150);
    list.MinHeight(20);
    list.BorderVisible(false);
    QImage red(8, 8, QImage::Format_RGB32);
    red.fill(Qt::red);
    icon = QtPicture::fromImage(red);
  }

  QImage shown() { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  /// The smallest rectangle with all pixels of a colour.
  static QRect extent(const QImage& image, QRgb colour) {
    QRect found;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixel(x, y) == colour) found |= QRect(x, y, 1, 1);
    return found;
  }

  NvListWidget widget;
  nvList& list = widget.list();
  Picture icon;
};

TEST_F(PaintedRows, PicturesStandInTheirColumn) {
  list.Style(cCheckBoxesIcons);
  list.ItemsAdd({.aText = "", .aIcon = icon, .aChecked = true});
  list.ItemsAdd({.aText = "", .aIcon = icon, .aEnabled = false});
  const QImage image = shown();
  // Told to stand at 6.5 and 26.5: halves go to the even pixel.
  const auto expectBox = [&](const Picture& picture, int top) {
    const std::vector<std::byte> bytes = picture->fileBytes();
    QImage box;
    box.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    EXPECT_EQ(image.copy(3, top, 13, 13), box.convertToFormat(QImage::Format_RGB32)) << top;
  };
  expectBox(art::checkBox(true, true), 6);
  expectBox(art::checkBox(false, false), 26);
  EXPECT_EQ(extent(image.copy(0, 0, 200, 23), qRgb(255, 0, 0)), QRect(19, 5, 16, 16));
}

TEST_F(PaintedRows, TheSelectionFillsItsRowInEachFamily) {
  list.ItemsAdd("");
  list.ItemsAdd("");
  list.ItemSelected(1, true);
  const QRect row(0, 23, 200, 21);
  EXPECT_EQ(extent(shown(), qRgb(0x31, 0x6A, 0xC5)), row);
  list.ColorStyle(cXPSilver);
  EXPECT_EQ(extent(shown(), qRgb(0xB2, 0xB4, 0xBF)), row);
  list.ColorStyle(cXPOlive);
  EXPECT_EQ(extent(shown(), qRgb(0x93, 0xA0, 0x70)), row);
  list.ValueColor(systemColour(13));
  list.ColorStyle(cCustom);
  EXPECT_EQ(extent(shown(), widget.palette().color(QPalette::Highlight).rgb()), row);
}

TEST_F(PaintedRows, GridLinesAndFocusAreOnePixelThin) {
  for (int i = 0; i < 3; ++i) list.ItemsAdd("");
  list.GridLines(true);
  list.GridLineColor(0x0000FF);
  QImage image = shown();
  for (const int y : {23, 43}) {
    EXPECT_EQ(extent(image.copy(0, y, 200, 1), qRgb(255, 0, 0)), QRect(0, 0, 200, 1)) << y;
    EXPECT_TRUE(extent(image.copy(0, y + 1, 200, 1), qRgb(255, 0, 0)).isNull()) << y;
  }
  list.GridLines(false);
  list.ShowFocusRect(true);
  list.ItemSelected(0, true);
  const QImage without = shown();
  list.UserControl_GotFocus();
  image = shown();
  int dots = 0;
  QRect changed;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != without.pixel(x, y)) {
        ++dots;
        changed |= QRect(x, y, 1, 1);
      }
  EXPECT_EQ(changed, QRect(0, 3, 200, 20));
  EXPECT_EQ(dots, 200 + 18);
}

}  // namespace
}  // namespace norvane
