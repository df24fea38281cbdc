#include "StandInInput.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace gallery {

void StandInInput::serve(norvane::NvListWidget& widget) { new StandInInput(widget); }

StandInInput::StandInInput(norvane::NvListWidget& widget) : QObject(&widget), list_(widget.list()) {
  widget.installEventFilter(this);
}

void StandInInput::click(double y) {
  const double row = std::floor((y - list_.IndentTop()) / list_.state().ItemHeightValue);
  const double index = row + std::max(list_.TopIndex(), 0);
  if (row >= 0 && index < list_.ItemsCount()) list_.ListIndex(static_cast<std::int32_t>(index));
}

void StandInInput::scrollBy(int rows) {
  if (list_.ItemsCount() > list_.VisibleItems()) list_.TopIndex(list_.TopIndex() + rows);
}

bool StandInInput::key(int key) {
  switch (key) {
    case Qt::Key_Up:
      return scrollBy(-1), true;
    case Qt::Key_Down:
      return scrollBy(1), true;
    case Qt::Key_PageUp:
      return scrollBy(-list_.VisibleItems()), true;
    case Qt::Key_PageDown:
      return scrollBy(list_.VisibleItems()), true;
    case Qt::Key_Home:
      return scrollBy(-list_.ItemsCount()), true;
    case Qt::Key_End:
      return scrollBy(list_.ItemsCount()), true;
    default:
      return false;
  }
}

bool StandInInput::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    click(static_cast<QMouseEvent*>(event)->position().y());
  } else if (event->type() == QEvent::Wheel) {
    scrollBy(-3 * static_cast<QWheelEvent*>(event)->angleDelta().y() / 120);
    return true;
  } else if (event->type() == QEvent::KeyPress) {
    if (key(static_cast<QKeyEvent*>(event)->key())) return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace gallery
