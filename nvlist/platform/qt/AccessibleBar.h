#pragma once

#include <QAccessible>
#include <QPointer>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// A scroll bar of a list, as screen readers see it. A bar that is hidden is not valid.
class AccessibleBar final : public QAccessibleInterface, public QAccessibleValueInterface {
 public:
  AccessibleBar(NvListWidget& widget, Qt::Orientation orientation)
      : widget_(&widget), orientation_(orientation) {}

  Qt::Orientation orientation() const { return orientation_; }

  bool isValid() const override { return widget_ && bar().Visible(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text which) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::ScrollBar; }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QVariant currentValue() const override;
  /// Scrolls. A value beyond the range scrolls to its end.
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override { return 1; }

 private:
  const scroll::Bar& bar() const;

  QPointer<NvListWidget> widget_;
  const Qt::Orientation orientation_;
};

}  // namespace norvane
