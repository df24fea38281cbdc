#pragma once

#include <cstdint>

#include <nvlist/platform/Container.h>

namespace norvane {

/// The events of a Wheel. `Rotation` is in notches, positive away from the user; 0 means less than
/// half a notch.
struct WheelEvents {
  virtual void Wheel1_WheelScroll(std::int16_t& Rotation, std::int16_t& Keys, float& X,
                                  float& Y) = 0;

 protected:
  ~WheelEvents() = default;
};

/// Receives the mouse wheel messages of a window between EnableWheel and DisableWheel.
class Wheel {
 public:
  Wheel(Container& place, WheelEvents& owner) : place_(place), owner_(owner) {}
  Wheel(const Wheel&) = delete;
  Wheel& operator=(const Wheel&) = delete;
  ~Wheel();

  /// Handle of the window; 0: none.
  std::int32_t hWndCapture() const { return window_; }
  void hWndCapture(std::int32_t window) { window_ = window; }

  /// Does nothing without a window, or if the wheel is enabled already.
  void EnableWheel();
  void DisableWheel();

  /// Handles a wheel message. `wParam` holds the turn in its high half, 120 per notch, and the keys
  /// in its low half; `lParam` holds y and x.
  void WndProc(std::int32_t wParam, std::int32_t lParam);

 private:
  void unhook(const char* procedure);

  Container& place_;
  WheelEvents& owner_;
  std::int32_t window_ = 0;
  bool isHooked_ = false;
};

}  // namespace norvane
