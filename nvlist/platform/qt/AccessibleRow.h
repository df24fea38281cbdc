#pragma once

#include <QAccessible>
#include <QPointer>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// A row of a list, as screen readers see it. It is known by its index: after a removal it is the
/// row that has the index then, and not valid if none has.
class AccessibleRow final : public QAccessibleInterface,
                            public QAccessibleActionInterface,
                            public QAccessibleTableCellInterface {
 public:
  AccessibleRow(NvListWidget& widget, int index) : widget_(&widget), index_(index) {}

  int index() const { return index_; }

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
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

  QPointer<NvListWidget> widget_;
  const int index_;
};

}  // namespace norvane
