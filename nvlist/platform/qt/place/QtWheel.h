#pragma once

#include <cstdint>
#include <functional>

class QWheelEvent;

namespace norvane {

/// Converts turns of the mouse wheel over a widget: forward and back into wheel messages for its
/// control, to the side into pixels.
class QtWheel {
 public:
  /// Receives the messages (Container::hookWheel).
  using Procedure = std::function<void(std::int32_t wParam, std::int32_t lParam)>;

  /// Whether each turn reaches the control as it comes. Otherwise parts of a notch, as touchpads
  /// and fine wheels send them, are added up, and the control gets whole notches. Default: false.
  bool passesParts = false;
  /// Called with the pixels to scroll to the right (negative: to the left) when a wheel is turned
  /// to the side. Default: none; the turn is then left to the form.
  std::function<void(int pixels)> onSideways;

  /// Passes a turn on. Returns true if the event was consumed; a handler of the host may have
  /// destroyed the widget then.
  bool turn(QWheelEvent& event, const Procedure& procedure);

 private:
  int wholeNotches(int turn);
  bool turnSideways(const QWheelEvent& event);

  /// What turns have left of a notch, or of a pixel.
  int restOfNotch_ = 0;
  double restOfPixel_ = 0;
};

}  // namespace norvane
