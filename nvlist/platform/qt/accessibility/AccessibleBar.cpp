#include <nvlist/platform/qt/accessibility/AccessibleBar.h>

#include <QCoreApplication>
#include <algorithm>

namespace norvane {

const scroll::Bar& AccessibleBar::bar() const {
  const nvList& list = widget_->list();
  if (orientation_ == Qt::Vertical) return list.verticalBar();
  return list.horizontalBar();
}

QString AccessibleBar::text(QAccessible::Text which) const {
  if (which != QAccessible::Name) return {};
  return orientation_ == Qt::Vertical ? QCoreApplication::translate("NvListWidget", "Vertical")
                                      : QCoreApplication::translate("NvListWidget", "Horizontal");
}

QRect AccessibleBar::rect() const {
  if (!isValid()) return {};
  const QRectF area(bar().Left(), bar().Top(), bar().Width(), bar().Height());
  const QRect shown = widget_->place().shown(area.toRect());
  return {widget_->mapToGlobal(shown.topLeft()), shown.size()};
}

QAccessible::State AccessibleBar::state() const {
  QAccessible::State state;
  state.invisible = !isValid() || !widget_->isVisible();
  state.disabled = !isValid() || !widget_->isEnabled();
  return state;
}

void* AccessibleBar::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                             : nullptr;
}

QVariant AccessibleBar::currentValue() const { return isValid() ? bar().Value() : 0; }
QVariant AccessibleBar::maximumValue() const { return isValid() ? bar().Max() : 0; }
QVariant AccessibleBar::minimumValue() const { return isValid() ? bar().Min() : 0; }

void AccessibleBar::setCurrentValue(const QVariant& value) {
  if (!isValid()) return;
  const int inside = std::clamp(value.toInt(), bar().Min(), std::max(bar().Min(), bar().Max()));
  if (orientation_ == Qt::Vertical)
    widget_->list().TopIndex(inside);
  else
    widget_->list().userScrollsTo(inside);
}

}  // namespace norvane
