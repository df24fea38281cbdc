#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>

#include <nvlist/platform/HostWindow.h>

namespace norvane {

/// A new window handle: never 0, and never used twice.
std::int32_t newHandle();
/// The handle of a widget, which stays the same as long as the widget lives.
std::int32_t handleOf(QWidget& widget);
/// The widget with that handle, or nullptr if it is destroyed.
QWidget* widgetOf(std::int32_t handle);

/// A widget for tool tips. A top-level window is a form; the container of any other widget is its
/// parent. Every call throws Failure 91 once the widget is destroyed.
class QtWindow final : public HostWindow {
 public:
  explicit QtWindow(QWidget& widget) : widget_(&widget) {}
  static Variant of(QWidget& widget);

  bool isForm() const override { return widget_ && widget_->isWindow(); }
  std::int32_t hwnd() override { return handleOf(widget()); }
  Ref<HostWindow> Container() override;

 private:
  QWidget& widget() const;

  QPointer<QWidget> widget_;
};

}  // namespace norvane
