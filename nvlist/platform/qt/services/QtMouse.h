#pragma once

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <cstdint>

namespace norvane {

/// Which mouse buttons are down, and which were pressed over a window of the program since the last
/// query.
class QtMouse final : public QObject {
 public:
  explicit QtMouse(QCoreApplication& program) : QObject(&program) {
    program.installEventFilter(this);
  }

  /// As Desktop::asyncKeyState. Qt uses the same numbers for the three buttons.
  std::int16_t asyncKeyState(std::int32_t key) {
    if (key != Qt::LeftButton && key != Qt::RightButton && key != Qt::MiddleButton) return 0;
    const auto button = static_cast<Qt::MouseButton>(key);
    const bool isDown = QGuiApplication::mouseButtons() & button;
    const bool wasPressed = pressed_ & button;
    pressed_ &= ~button;
    return static_cast<std::int16_t>((isDown ? -0x8000 : 0) | (wasPressed ? 1 : 0));
  }

 protected:
  /// Counts the presses of windows only, since several widgets may get the same press in turn.
  /// Windows get the second press of a double click as a press, too.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress && watched->isWindowType())
      pressed_ |= static_cast<QMouseEvent*>(event)->button();
    return false;
  }

 private:
  Qt::MouseButtons pressed_;
};

}  // namespace norvane
