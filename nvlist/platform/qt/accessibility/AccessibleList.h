#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QLineEdit>
#include <QPointer>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// A list as screen readers see it. Its children are the rows, then the scroll bars that are shown,
/// then the edit box while it is open. Qt's platforms read the selection and the position of a row
/// from a table of one column.
///
/// Only rows that are asked for are made, and at most `mostRows` exist at a time.
class AccessibleList final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  static constexpr int mostRows = 1000;

  explicit AccessibleList(NvListWidget& widget);
  ~AccessibleList() override;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int index, int column) const override;
  int selectedCellCount() const override { return selectedRowCount(); }
  /// Of a large selection, the first rows.
  QList<QAccessibleInterface*> selectedCells() const override;
  QString columnDescription(int) const override { return {}; }
  QString rowDescription(int) const override { return {}; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override;
  int columnCount() const override { return 1; }
  int rowCount() const override { return list().ItemsCount(); }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override;
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int index) const override;
  bool selectRow(int index) override;
  bool selectColumn(int) override { return false; }
  bool unselectRow(int index) override;
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

  /// Not valid while the bar is hidden.
  QAccessibleInterface* bar(Qt::Orientation orientation) const;
  /// Forgets the rows from an index on.
  void forgetRows(int from);

 private:
  NvListWidget& widgetOfList() const;
  nvList& list() const { return widgetOfList().list(); }
  QAccessibleInterface* row(int index) const;
  /// The children after the rows.
  QList<QAccessibleInterface*> parts() const;

  QPointer<QLineEdit> edit_;
  // Made on demand.
  mutable QHash<int, QAccessible::Id> rows_;
  mutable QList<int> made_;  ///< the rows, the oldest first
  mutable QHash<int, QAccessible::Id> bars_;
};

}  // namespace norvane
