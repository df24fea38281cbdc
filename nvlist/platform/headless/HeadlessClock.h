#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <nvlist/platform/Timer.h>

namespace norvane {

/// The time of a program without a screen: it stands until it is set. Default: the start of 1970.
/// It has to outlive the timers that run by it.
class HeadlessClock {
 public:
  using Time = std::chrono::sys_time<std::chrono::milliseconds>;

  Time now() const { return now_; }
  /// Jumps without a tick of any timer; each goes on from here.
  void set(Time now);
  /// Runs on, with each timer ticking at its time; of several due at once the oldest first.
  void advance(std::chrono::milliseconds by);

  std::unique_ptr<Timer> addTimer(std::function<void()> tick);

 private:
  class ClockTimer;

  /// The timer that ticks next, or nullptr.
  ClockTimer* next() const;

  Time now_;
  std::vector<ClockTimer*> timers_;
};

}  // namespace norvane
