#pragma once

#include <nvlist/platform/qt/accessibility/AccessiblePart.h>

namespace norvane {

/// A scroll bar of a list, as screen readers see it. A bar that is hidden is not valid.
class AccessibleBar final : public AccessiblePart, public QAccessibleValueInterface {
 public:
  AccessibleBar(NvListWidget& widget, Qt::Orientation orientation)
      : AccessiblePart(widget), orientation_(orientation) {}

  Qt::Orientation orientation() const { return orientation_; }

  bool isValid() const override { return widget_ && bar().Visible(); }
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

  const Qt::Orientation orientation_;
};

}  // namespace norvane
