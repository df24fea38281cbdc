#pragma once

#include <cstdint>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// A repeating timer of a control. While enabled, it ticks on the control's thread whenever its
/// interval has passed. It may be destroyed within its own tick.
class Timer {
 public:
  virtual ~Timer() = default;

  /// The interval in milliseconds. With 0, the default, the timer does not tick. Setting it
  /// restarts the interval.
  virtual std::int32_t Interval() const = 0;
  virtual void Interval(std::int32_t milliseconds) = 0;
  /// Default: false. Enabling it restarts the interval; setting the current value has no effect.
  virtual Boolean Enabled() const = 0;
  virtual void Enabled(Boolean on) = 0;
};

}  // namespace norvane
