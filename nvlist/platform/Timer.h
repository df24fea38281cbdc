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
  std::int32_t Interval() const { return interval_; }
  void Interval(std::int32_t milliseconds) { set(milliseconds, enabled_); }
  /// Default: false. Enabling it restarts the interval; setting the current value has no effect.
  Boolean Enabled() const { return enabled_; }
  void Enabled(Boolean on) {
    if (static_cast<bool>(on) != static_cast<bool>(enabled_)) set(interval_, on);
  }

 protected:
  /// Begins to tick every `milliseconds`, from now on. If it throws, the timer is as it was before.
  virtual void start(std::int32_t milliseconds) = 0;
  virtual void stop() = 0;

 private:
  void set(std::int32_t interval, Boolean enabled) {
    if (enabled && interval > 0)
      start(interval);
    else
      stop();
    interval_ = interval;
    enabled_ = enabled;
  }

  std::int32_t interval_ = 0;
  Boolean enabled_ = false;
};

}  // namespace norvane
