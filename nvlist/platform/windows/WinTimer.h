#pragma once

#include <memory>
#include <utility>

#include <nvlist/platform/Timer.h>
#include <nvlist/platform/windows/Apartment.h>

namespace norvane {

/// A system timer with an interval of at least ten milliseconds.
class WinTimer final : public Timer {
 public:
  WinTimer(std::shared_ptr<Apartment> apartment, std::function<void()> tick)
      : apartment_(std::move(apartment)), tick_(std::move(tick)) {}
  ~WinTimer() override { stop(); }

  std::int32_t Interval() const override { return interval_; }
  void Interval(std::int32_t milliseconds) override {
    interval_ = milliseconds;
    restart();
  }
  Boolean Enabled() const override { return enabled_; }
  void Enabled(Boolean on) override {
    const bool isTurning = static_cast<bool>(on) != static_cast<bool>(enabled_);
    enabled_ = on;
    if (isTurning) restart();
  }

 private:
  void stop() { apartment_->stopTimer(std::exchange(timer_, 0)); }
  void restart() {
    stop();
    if (enabled_ && interval_ > 0)
      timer_ = apartment_->startTimer(static_cast<UINT>(interval_), tick_);
  }

  std::shared_ptr<Apartment> apartment_;
  std::function<void()> tick_;
  std::int32_t interval_ = 0;
  Boolean enabled_ = false;
  UINT_PTR timer_ = 0;
};

}  // namespace norvane
