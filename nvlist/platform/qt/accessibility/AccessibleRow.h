#pragma once

#include <nvlist/platform/qt/accessibility/AccessiblePart.h>

namespace norvane {

/// A row of a list, as screen readers see it. It is known by its index: after a removal it is the
/// row that has the index then, and not valid if none has.
class AccessibleRow final : public AccessiblePart,
                            public QAccessibleActionInterface,
                            public QAccessibleTableCellInterface {
 public:
  AccessibleRow(NvListWidget& widget, int index) : AccessiblePart(widget), index_(index) {}

  int index() const { return index_; }

  bool isValid() const override;
  QString text(QAccessible::Text which) const override;
  /// The name of a row that the user may edit.
  void setText(QAccessible::Text which, const QString& text) override;
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  /// A press makes the row the current one and raises Click; toggling flips its check mark, unless
  /// ItemCheck refuses.
  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

  bool isSelected() const override;
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return 0; }
  int rowIndex() const override { return index_; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

 private:
  nvList& list() const { return widget_->list(); }
  bool hasCheckBox() const;
  bool isEditable() const;

  const int index_;
};

}  // namespace norvane
