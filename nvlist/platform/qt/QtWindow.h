#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>

#include <nvlist/platform/HostWindow.h>

namespace norvane {

/// A number for something with a window: never 0, and never given twice.
std::int32_t newHandle();
/// The number of a widget, which stays the same as long as the widget lives.
std::int32_t handleOf(QWidget& widget);
/// The widget of that number, or nullptr where there is none any more.
QWidget* widgetOf(std::int32_t handle);

/// A widget as tool tips ask it. It is a form where it is a window of its own, and stands in its
/// parent widget otherwise. Asking one whose widget is gone throws Failure 91.
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
