#pragma once

#include <cstdint>

#include <nvlist/platform/Container.h>

namespace norvane {

/// What the owner of a Wheel hears. `Rotation` is in notches, positive away from the user; a turn
/// of less than half a notch is 0.
struct WheelEvents {
  virtual void Wheel1_WheelScroll(std::int16_t& Rotation, std::int16_t& Keys, float& X,
                                  float& Y) = 0;

 protected:
  ~WheelEvents() = default;
};

/// Takes the messages of the mouse wheel from a window, from EnableWheel to DisableWheel.
class Wheel {
 public:
  Wheel(Container& place, WheelEvents& owner) : place_(place), owner_(owner) {}
  Wheel(const Wheel&) = delete;
  Wheel& operator=(const Wheel&) = delete;
  ~Wheel();

  /// The window; 0 none.
  std::int32_t hWndCapture() const { return window_; }
  void hWndCapture(std::int32_t window) { window_ = window; }

  /// Without a window nothing happens. A second time changes nothing.
  void EnableWheel();
  void DisableWheel();

  /// A message of the wheel: the turn in the high half of `wParam`, 120 a notch, and the keys in
  /// the low one; x and y in the halves of `lParam`.
  void WndProc(std::int32_t wParam, std::int32_t lParam);

 private:
  void unhook(const char* procedure);

  Container& place_;
  WheelEvents& owner_;
  std::int32_t window_ = 0;
  bool isHooked_ = false;
};

}  // namespace norvane
