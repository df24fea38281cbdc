#pragma once

#include <cstdint>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// A repeating timer of a control. It ticks, on the control's thread, each time its interval has
/// passed while it is enabled. Destroying it ends it, also from within its tick.
class Timer {
 public:
  virtual ~Timer() = default;

  /// Milliseconds; 0, the default, keeps the timer silent. Setting it begins the interval anew.
  virtual std::int32_t Interval() const = 0;
  virtual void Interval(std::int32_t milliseconds) = 0;
  /// Default: false. Turning it on begins the interval anew; setting what it is already changes
  /// nothing.
  virtual Boolean Enabled() const = 0;
  virtual void Enabled(Boolean on) = 0;
};

}  // namespace norvane
