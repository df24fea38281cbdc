#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

#include <nvlist/platform/Container.h>
#include <nvlist/platform/qt/QtSurface.h>

namespace norvane {

/// The place of a control is a widget: the control draws its image and hears its events.
///
/// The widget gives every event of its own to `event` and shows `paint` when it is painted.
class QtPlace : public Container {
 public:
  /// The widget has to outlive the place.
  explicit QtPlace(QWidget& widget);

  bool isDesignMode = false;
  /// Told after each change of a property of the control, if set.
  std::function<void(std::string_view name)> onPropertyChanged;

  /// What the widget was told and the control has to hear. True where it is the control's alone.
  bool event(QEvent* event);
  void paint();
  /// The image takes the widget's size; what was drawn is lost where that is another one.
  void resize();

  void attach(UserControl* control) override { control_ = control; }
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view name) override;
  Boolean UserMode() override;
  norvane::Font AmbientFont() override;
  std::string Name() override;
  bool EventsWaiting() override;
  void DoEvents() override;
  void move(const Bounds& bounds) override;
  void show(bool isVisible) override { widget_.setVisible(isVisible); }
  void enable(bool isEnabled) override { widget_.setEnabled(isEnabled); }
  void SetCapture() override { hasCapture_ = true; }
  void ReleaseCapture() override { hasCapture_ = false; }
  std::unique_ptr<Container> addChild() override;
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override;

 private:
  bool mouseEvent(QEvent* event);
  void pointerLeft();
  void renewImage();

  QWidget& widget_;
  QtSurface surface_;
  UserControl* control_ = nullptr;
  bool hasCapture_ = false;
};

}  // namespace norvane
