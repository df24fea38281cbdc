#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <nvlist/platform/Timer.h>

namespace norvane {

/// The clock of a program without a screen. It stands still until the program sets or advances it,
/// and starts at 1970. It has to outlive its timers.
class HeadlessClock {
 public:
  using Time = std::chrono::sys_time<std::chrono::milliseconds>;

  Time now() const { return now_; }
  /// Sets the time without a tick. The intervals of all timers begin anew.
  void set(Time now);
  /// Advances the time. Each timer ticks when it is due; of several due at once, the oldest first.
  void advance(std::chrono::milliseconds by);

  std::unique_ptr<Timer> addTimer(std::function<void()> tick);

 private:
  class ClockTimer;

  /// The timer that is due next, or nullptr.
  ClockTimer* next() const;

  Time now_;
  std::vector<ClockTimer*> timers_;
};

}  // namespace norvane
