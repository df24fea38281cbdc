#pragma once

#include <QAccessible>
#include <QPointer>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// A row or scroll bar of a list, as screen readers see it. It has no children.
class AccessiblePart : public QAccessibleInterface {
 public:
  QObject* object() const override { return nullptr; }
  QWindow* window() const override {
    const QAccessibleInterface* const around = parent();
    return around ? around->window() : nullptr;
  }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(widget_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

 protected:
  explicit AccessiblePart(NvListWidget& widget) : widget_(&widget) {}

  const QPointer<NvListWidget> widget_;  ///< null after the end of the list
};

}  // namespace norvane
