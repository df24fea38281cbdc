#include <nvlist/platform/qt/accessibility/AccessibleWatch.h>

#include <QEvent>
#include <algorithm>
#include <utility>

#include <nvlist/platform/qt/accessibility/AccessibleList.h>
#include <nvlist/platform/qt/widget/QtRows.h>

namespace norvane {
namespace {

AccessibleList* accessibleOf(NvListWidget& widget) {
  return dynamic_cast<AccessibleList*>(QAccessible::queryAccessibleInterface(&widget));
}

}  // namespace

AccessibleWatch::AccessibleWatch(NvListWidget& widget) : QObject(&widget), widget_(widget) {
  before_ = take();
  widget.installEventFilter(this);
  comparing_.setSingleShot(true);
  comparing_.callOnTimeout(this, [this] { compare(); });
}

bool AccessibleWatch::eventFilter(QObject*, QEvent* event) {
  const QEvent::Type type = event->type();
  // Later, when the list is not in the middle of something.
  if (type == QEvent::Paint || type == QEvent::FocusIn || type == QEvent::FocusOut)
    comparing_.start(0);
  return false;
}

AccessibleWatch::Shown AccessibleWatch::take() const {
  nvList& list = widget_.list();
  Shown shown;
  shown.count = list.ItemsCount();
  shown.current = list.ListIndex();
  shown.top = std::max(list.TopIndex(), 0);
  shown.hasFocus = widget_.hasFocus();
  shown.vertical = list.verticalBar().Value();
  shown.horizontal = list.horizontalBar().Value();
  const int end = std::min(rowPaintedAt(list, widget_.height()) + 1, shown.count);
  for (int i = shown.top; i < end; ++i) {
    const ListItem item = list.state().Items.at(i);
    shown.rows.push_back({readableText(item.Text), static_cast<bool>(item.Enabled),
                          static_cast<bool>(item.Checked), static_cast<bool>(item.Selected)});
  }
  return shown;
}

void AccessibleWatch::compare() {
  const Shown before = std::exchange(before_, take());
  const Shown& now = before_;
  AccessibleList* const list = accessibleOf(widget_);
  if (!list) return;
  if (now.count != before.count) {
    // Rows are known by their indexes: those at the end have come or gone. No ObjectReorder: on
    // D-Bus, Qt sends it as one message for each child.
    const bool isMore = now.count > before.count;
    list->forgetRows(now.count);
    using Change = QAccessibleTableModelChangeEvent;
    Change change(&widget_, isMore ? Change::RowsInserted : Change::RowsRemoved);
    change.setFirstRow(std::min(now.count, before.count));
    change.setLastRow(std::max(now.count, before.count) - 1);
    send(change);
  }
  if (now.vertical != before.vertical) reportBar(*list, Qt::Vertical);
  if (now.horizontal != before.horizontal) reportBar(*list, Qt::Horizontal);
  const int end = std::min(now.top + static_cast<int>(now.rows.size()),
                           before.top + static_cast<int>(before.rows.size()));
  for (int i = std::max(now.top, before.top); i < end; ++i)
    report(i, before.rows[static_cast<std::size_t>(i - before.top)],
           now.rows[static_cast<std::size_t>(i - now.top)]);
  if ((now.current != before.current || now.hasFocus != before.hasFocus) && now.hasFocus &&
      now.current >= 0 && now.current < now.count)
    reportRow(now.current, QAccessible::Focus);
}

void AccessibleWatch::report(int index, const ShownRow& before, const ShownRow& now) {
  if (now.text != before.text) reportRow(index, QAccessible::NameChanged);
  if (now.isSelected != before.isSelected)
    reportRow(index, now.isSelected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
  // An event for each, as Qt passes on one state of an event alone.
  const auto reportState = [&](bool hasChanged, void (*mark)(QAccessible::State&)) {
    if (!hasChanged) return;
    QAccessible::State changed;
    mark(changed);
    QAccessibleStateChangeEvent event(&widget_, changed);
    event.setChild(index);
    send(event);
  };
  using State = QAccessible::State;
  reportState(now.isChecked != before.isChecked, [](State& state) { state.checked = true; });
  reportState(now.isEnabled != before.isEnabled, [](State& state) { state.disabled = true; });
  reportState(now.isSelected != before.isSelected, [](State& state) { state.selected = true; });
}

void AccessibleWatch::reportRow(int index, QAccessible::Event type) {
  QAccessibleEvent event(&widget_, type);
  event.setChild(index);
  send(event);
}

void AccessibleWatch::reportBar(const AccessibleList& list, Qt::Orientation orientation) {
  QAccessibleInterface* const bar = list.bar(orientation);
  QAccessibleValueChangeEvent event(bar, bar->valueInterface()->currentValue());
  send(event);
}

void AccessibleWatch::send(QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); }

}  // namespace norvane
