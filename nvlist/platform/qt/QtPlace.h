#pragma once

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <nvlist/platform/Container.h>
#include <nvlist/platform/qt/QtSurface.h>

namespace norvane {

/// The place of a control is a widget: the control draws its image and hears its events.
///
/// The widget gives every event of its own to `event` and shows `paint` when it is painted.
class QtPlace : public Container {
 public:
  /// `around` is the place of the control around it, or nullptr for a control on a form.
  QtPlace(QWidget& widget, QtPlace* around);
  ~QtPlace() override;

  bool isDesignMode = false;
  /// Told after each change of a property of the control, if set.
  std::function<void(std::string_view name)> onPropertyChanged;

  /// What the widget was told and the control has to hear. True where it is the control's alone,
  /// and where a handler of the host has ended the widget: it must not be touched then.
  bool event(QEvent* event);
  void paint();
  /// The image takes the widget's size; what was drawn is lost where that is another one.
  void resize();
  /// The widget is about to end before the control: what is drawn from now on is seen nowhere.
  void detach();
  /// Lets go of a control with its place when no procedure of the library runs any more: a handler
  /// of the host may end the widget around it.
  static void endLater(std::shared_ptr<void> control);

  void attach(UserControl* control) override { control_ = control; }
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view name) override;
  Boolean UserMode() override;
  norvane::Font AmbientFont() override;
  std::string Name() override;
  bool EventsWaiting() override;
  void DoEvents() override;
  void move(const Bounds& bounds) override;
  void show(bool isVisible) override;
  void enable(bool isEnabled) override;
  void SetCapture() override { hasCapture_ = true; }
  void ReleaseCapture() override { hasCapture_ = false; }
  /// The widget's number (QtWindow.h); 0 once it is gone.
  std::int32_t hwnd() override;
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override;
  void paintLater() override;
  std::unique_ptr<Container> addChild() override;
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override;
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override;

 private:
  bool hear(QEvent* event);
  bool mouseEvent(QEvent* event);
  bool keyEvent(QEvent* event);
  bool wheelEvent(QEvent* event);
  enum class FocusOf { control, editBox };
  void focusEvent(QEvent::Type type, FocusOf of);
  bool isFocusInside() const;
  void pointerLeft();
  void newImage();
  void hold(std::int16_t button);
  void letGo(std::int16_t button);
  void releaseLost();
  void renewImage();

  QWidget* widget_;
  QtPlace* around_;
  std::vector<QtPlace*> children_;
  QtSurface surface_;
  UserControl* control_ = nullptr;
  std::function<void(std::int32_t, std::int32_t)> wheelProcedure_;
  bool isPaintPending_ = false;
  bool isPainting_ = false;
  bool hasCapture_ = false;
  bool isDoubleClick_ = false;
  bool isEntered_ = false;
  /// The buttons that a control inside another one is held with, and what watches over that.
  std::int16_t held_ = 0;
  std::unique_ptr<QObject> holdWatch_;
};

}  // namespace norvane
