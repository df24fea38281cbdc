#include "GalleryWindow.h"

#include <QKeyEvent>
#include <QStatusBar>
#include <QVBoxLayout>
#include <QWheelEvent>

using norvane::nvList;

GalleryWindow::GalleryWindow() : list_(new norvane::NvListWidget) {
  auto* frame = new QWidget;
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(list_);
  list_->setObjectName("gallery");
  list_->installEventFilter(this);
  list_->list().MinHeight(static_cast<float>(QFontMetrics(list_->font()).height() + 2));
  setCentralWidget(frame);
  list_->setFocus();
  resize(460, 520);
}

void GalleryWindow::show(const QStringList& lines, const QString& title) {
  setWindowTitle(title);
  nvList& list = list_->list();
  list.AutoRedraw(false);
  list.ItemsClear();
  for (const QString& line : lines) list.ItemsAdd(line.toStdString());
  list.AutoRedraw(true);
  updateStatus();
}

bool GalleryWindow::eventFilter(QObject* watched, QEvent* event) {
  nvList& list = list_->list();
  if (event->type() == QEvent::Wheel) {
    scrollBy(-3 * static_cast<QWheelEvent*>(event)->angleDelta().y() / 120);
    return true;
  }
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show) updateStatus();
  if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
      scrollBy(-1);
      return true;
    case Qt::Key_Down:
      scrollBy(1);
      return true;
    case Qt::Key_PageUp:
      scrollBy(-list.VisibleItems());
      return true;
    case Qt::Key_PageDown:
      scrollBy(list.VisibleItems());
      return true;
    case Qt::Key_Home:
      scrollBy(-list.ItemsCount());
      return true;
    case Qt::Key_End:
      scrollBy(list.ItemsCount());
      return true;
    default:
      return QMainWindow::eventFilter(watched, event);
  }
}

void GalleryWindow::scrollBy(int rows) {
  nvList& list = list_->list();
  if (list.ItemsCount() <= list.VisibleItems()) return;
  list.TopIndex(list.TopIndex() + rows);
  updateStatus();
}

void GalleryWindow::updateStatus() {
  nvList& list = list_->list();
  const int top = qMax(0, list.TopIndex());
  const int last = qMin(list.ItemsCount(), top + list.VisibleItems());
  statusBar()->showMessage(
      list.ItemsCount() == 0
          ? QString("Nothing to show")
          : QString("Rows %1 to %2 of %3").arg(top + 1).arg(last).arg(list.ItemsCount()));
}
