#pragma once

#include <chrono>

namespace norvane {

/// The time of a program without a screen: it stands until it is set. Default: the start of 1970.
class HeadlessClock {
 public:
  using Time = std::chrono::sys_time<std::chrono::milliseconds>;

  Time now() const { return now_; }
  void set(Time now) { now_ = now; }
  void advance(std::chrono::milliseconds by) { now_ += by; }

 private:
  Time now_;
};

}  // namespace norvane
