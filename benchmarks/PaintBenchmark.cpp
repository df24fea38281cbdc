#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <string>

#include <nvlist/platform/qt/QtPicture.h>

#include "Measure.h"
#include "Subjects.h"

namespace {

std::unique_ptr<norvane::NvListWidget> shownNvList(int count) {
  auto widget = makeNvList(true);
  fill(widget->list(), count);
  QApplication::processEvents();
  return widget;
}

std::unique_ptr<QListWidget> shownListWidget(int count) {
  auto widget = makeListWidget(true);
  fill(*widget, count);
  QApplication::processEvents();
  return widget;
}

/// Scrolls by one row, back and forth: a frame that looks the same is not drawn again.
void scroll(norvane::nvList& list) { list.TopIndex(1 - list.TopIndex()); }
void scroll(QListWidget& list) {
  QScrollBar& bar = *list.verticalScrollBar();
  bar.setValue(1 - bar.value());
}

/// The minimum of one repaint: the visible rows, each with a background and a text.
void paintRows(QImage& image) {
  QPainter painter(&image);
  const QFontMetrics metrics = painter.fontMetrics();
  const int height = metrics.height();
  int row = 0;
  for (int top = 3; top + height <= image.height(); top += height, ++row) {
    painter.fillRect(0, top, image.width(), height, Qt::white);
    painter.drawText(3, top + metrics.ascent(), qtTexts(1'000)[static_cast<std::size_t>(row)]);
  }
}

void addImage(int count) {
  const std::string work = "Redraw/" + std::to_string(count);
  addShared(
      work, subject::nvList, false, [count] { return shownNvList(count); },
      [](auto& widget) {
        static QImage image(400, 300, QImage::Format_RGB32);
        scroll(widget->list());
        widget->render(&image);
      });
  addShared(
      work, subject::listWidget, false, [count] { return shownListWidget(count); },
      [](auto& widget) {
        static QImage image(400, 300, QImage::Format_RGB32);
        scroll(*widget);
        widget->render(&image);
      });
  addShared(
      work, subject::floor, false, [] { return QImage(400, 300, QImage::Format_RGB32); },
      [](QImage& image) {
        image.fill(Qt::white);
        paintRows(image);
      });
}

void addWindow(int count) {
  const std::string work = "Redraw to the window/" + std::to_string(count);
  addShared(
      work, subject::nvList, false, [count] { return shownNvList(count); },
      [](auto& widget) {
        scroll(widget->list());
        widget->repaint();
      });
  addShared(
      work, subject::listWidget, false, [count] { return shownListWidget(count); },
      [](auto& widget) {
        scroll(*widget);
        widget->viewport()->repaint();
      });
}

/// One repaint with check boxes, icons and a selection: 400 by 300 pixels, a thousand items.
void addFrame() {
  const std::string work = "Frame with pictures/1000";
  static QImage iconImage(16, 16, QImage::Format_ARGB32_Premultiplied);
  iconImage.fill(Qt::darkCyan);
  addShared(
      work, subject::nvList, false,
      [] {
        auto widget = makeNvList(true);
        norvane::nvList& list = widget->list();
        list.Style(norvane::cCheckBoxesIcons);
        const norvane::Picture icon = norvane::QtPicture::fromImage(iconImage);
        for (int i = 0; i < 1'000; ++i)
          list.ItemsAdd({.aText = texts(1'000)[static_cast<std::size_t>(i)],
                         .aIcon = icon,
                         .aChecked = i % 2 == 0});
        list.ListIndex(3);
        QApplication::processEvents();
        return widget;
      },
      [](auto& widget) {
        static QImage image(400, 300, QImage::Format_RGB32);
        scroll(widget->list());
        widget->render(&image);
      });
  addShared(
      work, subject::listWidget, false,
      [] {
        auto widget = makeListWidget(true);
        const QIcon icon(QPixmap::fromImage(iconImage));
        for (int i = 0; i < 1'000; ++i) {
          auto* item =
              new QListWidgetItem(icon, qtTexts(1'000)[static_cast<std::size_t>(i)], widget.get());
          item->setCheckState(i % 2 == 0 ? Qt::Checked : Qt::Unchecked);
        }
        widget->setCurrentRow(3);
        QApplication::processEvents();
        return widget;
      },
      [](auto& widget) {
        static QImage image(400, 300, QImage::Format_RGB32);
        scroll(*widget);
        widget->render(&image);
      });
  static QImage box(13, 13, QImage::Format_RGB32);
  box.fill(Qt::gray);
  addShared(
      work, subject::floor, false, [] { return QImage(400, 300, QImage::Format_RGB32); },
      [](QImage& image) {
        image.fill(Qt::white);
        QPainter painter(&image);
        const QFontMetrics metrics = painter.fontMetrics();
        const int height = metrics.height();
        int row = 0;
        for (int top = 3; top + height <= image.height(); top += height, ++row) {
          painter.fillRect(0, top, image.width(), height, row == 3 ? Qt::blue : Qt::white);
          painter.drawImage(3, top + (height - 13) / 2, box);
          painter.drawImage(19, top + (height - 16) / 2, iconImage);
          painter.drawText(37, top + metrics.ascent(),
                           qtTexts(1'000)[static_cast<std::size_t>(row)]);
        }
      });
}

}  // namespace

void addPaintBenchmarks() {
  addFrame();
  for (const int count : {1'000, 1'000'000}) {
    addImage(count);
    addWindow(count);
  }
}
