#include <nvlist/platform/qt/accessibility/AccessibleRow.h>

#include <nvlist/platform/qt/widget/QtRows.h>

namespace norvane {

bool AccessibleRow::isValid() const { return widget_ && index_ < list().ItemsCount(); }

QString AccessibleRow::text(QAccessible::Text which) const {
  if (!isValid() || which != QAccessible::Name) return {};
  return readableText(list().ItemText(index_)).replace('\t', ", ");
}

void AccessibleRow::setText(QAccessible::Text which, const QString& text) {
  if (isValid() && which == QAccessible::Name && isEditable())
    list().ItemText(index_, text.toStdString());
}

QRect AccessibleRow::rect() const {
  if (!isValid()) return {};
  const QRect row = paintedRow(*widget_, index_);
  return {widget_->mapToGlobal(row.topLeft()), row.size()};
}

QAccessible::State AccessibleRow::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const ListItem item = list().state().Items.at(index_);
  const bool isEnabled = item.Enabled && widget_->isEnabled();
  state.disabled = !isEnabled;
  state.focusable = state.selectable = isEnabled;
  state.multiSelectable = isEnabled && list().MultiSelect();
  state.selected = static_cast<bool>(item.Selected);
  state.focused = widget_->hasFocus() && list().ListIndex() == index_;
  state.checkable = hasCheckBox();
  state.checked = hasCheckBox() && item.Checked;
  state.editable = isEditable();
  state.offscreen = !areaOfRows(*widget_).intersects(paintedRow(*widget_, index_));
  state.invisible = state.offscreen || !widget_->isVisible();
  return state;
}

void* AccessibleRow::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  if (type == QAccessible::TableCellInterface)
    return static_cast<QAccessibleTableCellInterface*>(this);
  return nullptr;
}

bool AccessibleRow::hasCheckBox() const {
  return list().Style() == cCheckBoxes || list().Style() == cCheckBoxesIcons;
}

bool AccessibleRow::isEditable() const {
  return list().AllowEdit() && list().ItemAllowEdit(index_) && list().ItemEnabled(index_);
}

QStringList AccessibleRow::actionNames() const {
  if (!isValid() || !list().ItemEnabled(index_) || !widget_->isEnabled()) return {};
  QStringList names{pressAction(), setFocusAction()};
  if (hasCheckBox()) names.prepend(toggleAction());
  return names;
}

/// A handler of the host may destroy the widget, and this with it.
void AccessibleRow::doAction(const QString& name) {
  if (!actionNames().contains(name)) return;
  const QPointer<NvListWidget> widget = widget_;
  if (name == setFocusAction()) widget->setFocus();
  if (widget) widget->list().ListIndex(index_);
  if (widget && name == toggleAction()) widget->list().userChecks();
  if (widget && name == pressAction()) widget->list().UserControl_Click();
}

bool AccessibleRow::isSelected() const { return isValid() && list().ItemSelected(index_); }

}  // namespace norvane
