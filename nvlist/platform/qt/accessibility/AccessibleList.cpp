#include <nvlist/platform/qt/accessibility/AccessibleList.h>

#include <algorithm>

#include <nvlist/platform/qt/accessibility/AccessibleBar.h>
#include <nvlist/platform/qt/accessibility/AccessibleRow.h>
#include <nvlist/platform/qt/accessibility/AccessibleWatch.h>
#include <nvlist/platform/qt/widget/QtRows.h>

namespace norvane {

AccessibleList::AccessibleList(NvListWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::List), edit_(widget.editBox()) {
  new AccessibleWatch(widget);
}

AccessibleList::~AccessibleList() {
  forgetRows(0);
  for (const QAccessible::Id id : std::as_const(bars_)) QAccessible::deleteAccessibleInterface(id);
}

NvListWidget& AccessibleList::widgetOfList() const { return static_cast<NvListWidget&>(*widget()); }

// ---- the tree ----

QAccessibleInterface* AccessibleList::row(int index) const {
  if (const auto found = rows_.constFind(index); found != rows_.cend())
    return QAccessible::accessibleInterface(*found);
  if (made_.size() >= mostRows) {
    QAccessible::deleteAccessibleInterface(rows_.take(made_.front()));
    made_.pop_front();
  }
  auto* const made = new AccessibleRow(widgetOfList(), index);
  rows_.insert(index, QAccessible::registerAccessibleInterface(made));
  made_.push_back(index);
  return made;
}

void AccessibleList::forgetRows(int from) {
  for (const int index : std::exchange(made_, {}))
    if (index < from)
      made_.push_back(index);
    else
      QAccessible::deleteAccessibleInterface(rows_.take(index));
}

QAccessibleInterface* AccessibleList::bar(Qt::Orientation orientation) const {
  if (const auto found = bars_.constFind(orientation); found != bars_.cend())
    return QAccessible::accessibleInterface(*found);
  auto* const made = new AccessibleBar(widgetOfList(), orientation);
  bars_.insert(orientation, QAccessible::registerAccessibleInterface(made));
  return made;
}

QList<QAccessibleInterface*> AccessibleList::parts() const {
  QList<QAccessibleInterface*> result;
  if (list().verticalBar().Visible()) result << bar(Qt::Vertical);
  if (list().horizontalBar().Visible()) result << bar(Qt::Horizontal);
  if (edit_ && !edit_->isHidden()) result << QAccessible::queryAccessibleInterface(edit_);
  return result;
}

int AccessibleList::childCount() const { return rowCount() + static_cast<int>(parts().size()); }

QAccessibleInterface* AccessibleList::child(int index) const {
  if (index < 0) return nullptr;
  return index < rowCount() ? row(index) : parts().value(index - rowCount());
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const {
  if (const auto* const known = dynamic_cast<const AccessibleRow*>(child)) return known->index();
  const auto part = parts().indexOf(const_cast<QAccessibleInterface*>(child));
  return part < 0 ? -1 : rowCount() + static_cast<int>(part);
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const {
  const QList<QAccessibleInterface*> front = parts();
  for (auto part = front.rbegin(); part != front.rend(); ++part)
    if ((*part)->rect().contains(x, y)) return *part;
  const QPoint at = widgetOfList().mapFromGlobal(QPoint(x, y));
  if (!areaOfRows(widgetOfList()).contains(at)) return nullptr;
  return cellAt(rowPaintedAt(list(), at.y()), 0);
}

QAccessibleInterface* AccessibleList::focusChild() const {
  if (edit_ && edit_->hasFocus()) return QAccessible::queryAccessibleInterface(edit_);
  if (!widgetOfList().hasFocus()) return nullptr;
  return cellAt(list().ListIndex(), 0);
}

QAccessible::State AccessibleList::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiSelectable = static_cast<bool>(list().MultiSelect());
  return state;
}

void* AccessibleList::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

// ---- the table ----

QAccessibleInterface* AccessibleList::cellAt(int index, int column) const {
  return index >= 0 && index < rowCount() && column == 0 ? row(index) : nullptr;
}

QList<int> AccessibleList::selectedRows() const {
  QList<int> result;
  for (int i = 0; i < rowCount(); ++i)
    if (isRowSelected(i)) result << i;
  return result;
}

int AccessibleList::selectedRowCount() const { return static_cast<int>(selectedRows().size()); }

/// Half of the rows that may exist, so that none of these is replaced by another.
QList<QAccessibleInterface*> AccessibleList::selectedCells() const {
  QList<QAccessibleInterface*> result;
  for (const int index : selectedRows().mid(0, mostRows / 2)) result << row(index);
  return result;
}

bool AccessibleList::isRowSelected(int index) const {
  return index >= 0 && index < rowCount() && list().ItemSelected(index);
}

bool AccessibleList::selectRow(int index) {
  if (index < 0 || index >= rowCount() || !list().ItemEnabled(index)) return false;
  if (!list().MultiSelect())
    list().ListIndex(index);
  else if (!isRowSelected(index))
    list().userToggles(index);
  return true;
}

bool AccessibleList::unselectRow(int index) {
  if (!isRowSelected(index) || !list().ItemEnabled(index)) return false;
  list().userToggles(index);
  return true;
}

}  // namespace norvane
