#include <nvlist/platform/qt/QtWindow.h>

#include <QHash>

namespace norvane {
namespace {

struct Handles {
  QHash<const QObject*, std::int32_t> ofWidgets;
  QHash<std::int32_t, QPointer<QWidget>> widgets;
  std::int32_t last = 0;
};

/// Never destroyed, since a widget may outlive everything else.
Handles& handles() {
  static Handles& handles = *new Handles;
  return handles;
}

}  // namespace

std::int32_t newHandle() { return ++handles().last; }

std::int32_t handleOf(QWidget& widget) {
  const auto found = handles().ofWidgets.constFind(&widget);
  // If a widget's signals were disconnected, its end went unnoticed, and another widget may have
  // its address now.
  if (found != handles().ofWidgets.cend() && widgetOf(*found) == &widget) return *found;
  const std::int32_t handle = newHandle();
  handles().ofWidgets.insert(&widget, handle);
  handles().widgets.insert(handle, &widget);
  QObject::connect(&widget, &QObject::destroyed, [handle](QObject* gone) {
    handles().ofWidgets.remove(gone);
    handles().widgets.remove(handle);
  });
  return handle;
}

QWidget* widgetOf(std::int32_t handle) { return handles().widgets.value(handle); }

Variant QtWindow::of(QWidget& widget) { return Variant(makeRef<QtWindow>(widget)); }

QWidget& QtWindow::widget() const {
  if (!widget_) throw Failure::objectNotSet();
  return *widget_;
}

Ref<HostWindow> QtWindow::Container() {
  QWidget* parent = widget().parentWidget();
  if (!parent || isForm()) throw Failure::noSuchMember();
  return makeRef<QtWindow>(*parent);
}

}  // namespace norvane
