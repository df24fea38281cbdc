#include <nvlist/platform/qt/NvListDrop.h>

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPalette>
#include <QStringList>
#include <algorithm>
#include <utility>

#include <nvlist/platform/qt/widget/QtRows.h>

namespace norvane {
namespace {

/// As high as the bar that shows where an item moves.
constexpr int markHeight = 2;

/// In pixels and milliseconds a row.
constexpr int scrollMargin = 16;
constexpr int scrollInterval = 80;

}  // namespace

NvListDrop::NvListDrop(NvListWidget& widget)
    : QObject(&widget), widget_(widget), mark_(new QWidget(&widget)) {
  widget_.setAcceptDrops(true);
  widget_.installEventFilter(this);
  mark_->setAutoFillBackground(true);
  mark_->setPalette(QPalette(Qt::black));
  mark_->setAttribute(Qt::WA_TransparentForMouseEvents);
  mark_->hide();
  scrolling_.setInterval(scrollInterval);
  scrolling_.callOnTimeout(this, [this] { scroll(); });
}

bool NvListDrop::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
      return over(*static_cast<QDropEvent*>(event));
    case QEvent::DragLeave:
      leave();
      return false;
    case QEvent::Drop: {
      auto& drop = *static_cast<QDropEvent*>(event);
      if (!over(drop)) return false;
      leave();
      // The slot may destroy the widget.
      emit dropped(drop.mimeData(), indexAt(drop.position().toPoint()));
      return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return dragsRows_ && mouse(*static_cast<QMouseEvent*>(event));
    default:
      return false;
  }
}

/// Accepts files and texts, and leaves everything else to the parent.
bool NvListDrop::over(QDropEvent& event) {
  const QMimeData& data = *event.mimeData();
  if (!widget_.isEnabled() || !(data.hasUrls() || data.hasText())) return false;
  event.acceptProposedAction();
  heldAt_ = event.position().toPoint();
  mark(indexAt(heldAt_));
  if (directionAt(heldAt_) == 0)
    scrolling_.stop();
  else if (!scrolling_.isActive())
    scrolling_.start();
  return true;
}

void NvListDrop::leave() {
  mark(-1);
  scrolling_.stop();
}

/// -1 at the upper edge, 1 at the lower one, 0 elsewhere.
int NvListDrop::directionAt(const QPoint& point) const {
  const QRect area = areaOfRows(widget_);
  if (point.y() < area.top() + scrollMargin) return -1;
  return point.y() > area.bottom() - scrollMargin ? 1 : 0;
}

void NvListDrop::scroll() {
  nvList& list = widget_.list();
  const int last = std::max(widget_.count() - list.VisibleItems(), 0);
  const int before = std::max(list.TopIndex(), 0);
  const int top = std::clamp(before + directionAt(heldAt_), 0, last);
  // A handler of the host may destroy the widget.
  const QPointer<NvListDrop> guard(this);
  if (top != before) list.TopIndex(top);
  if (guard) mark(indexAt(heldAt_));
}

int NvListDrop::indexAt(const QPoint& point) const {
  return std::clamp(rowPaintedAt(widget_.list(), point.y()), 0, widget_.count());
}

/// -1 hides the bar.
void NvListDrop::mark(int index) {
  if (!mark_) return;
  const QRect area = areaOfRows(widget_);
  const QRect row = paintedRow(widget_, index);
  mark_->setVisible(index >= 0);
  mark_->setGeometry(area.left(), std::min(row.top(), area.bottom() + 1 - markHeight), area.width(),
                     markHeight);
}

/// Keeps the moves after a press on a row from the list, and begins a drag when they have gone far
/// enough. A press on one of several selected rows would select that one alone: it waits for the
/// release.
bool NvListDrop::mouse(QMouseEvent& event) {
  if (isReplaying_) return false;
  if (event.type() == QEvent::MouseButtonPress) {
    const int index = widget_.indexAt(event.pos());
    isPressed_ = event.button() == Qt::LeftButton && index >= 0;
    isHeldBack_ = isPressed_ && event.modifiers() == Qt::NoModifier &&
                  widget_.list().ItemSelected(index) && widget_.selectedIndexes().size() > 1;
    pressedAt_ = event.pos();
    return isHeldBack_;
  }
  if (event.type() == QEvent::MouseButtonRelease) {
    isPressed_ = false;
    if (std::exchange(isHeldBack_, false)) replayPress();
    return false;
  }
  if (!isPressed_) return false;
  const int distance = (event.pos() - pressedAt_).manhattanLength();
  if (distance >= QApplication::startDragDistance()) drag();
  return true;
}

void NvListDrop::replayPress() {
  const QPointer<NvListDrop> guard(this);
  isReplaying_ = true;
  QMouseEvent press(QEvent::MouseButtonPress, pressedAt_, widget_.mapToGlobal(pressedAt_),
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget_, &press);
  if (guard) isReplaying_ = false;
}

void NvListDrop::drag() {
  isPressed_ = isHeldBack_ = false;
  QStringList lines;
  for (const int index : widget_.selectedIndexes())
    lines << readableText(widget_.list().ItemText(index));
  // The drag takes the release of the mouse.
  widget_.place().mouse().holdLost();
  if (lines.isEmpty()) return;
  // The drag deletes itself.
  auto* const drag = new QDrag(&widget_);
  auto* const data = new QMimeData;
  data->setText(lines.join('\n'));
  drag->setMimeData(data);
  drag->exec(Qt::CopyAction);
}

}  // namespace norvane
