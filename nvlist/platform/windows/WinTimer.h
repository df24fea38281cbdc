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

 private:
  void start(std::int32_t milliseconds) override {
    const UINT_PTR started = apartment_->startTimer(static_cast<UINT>(milliseconds), tick_);
    stop();
    timer_ = started;
  }
  void stop() override { apartment_->stopTimer(std::exchange(timer_, 0)); }

  std::shared_ptr<Apartment> apartment_;
  std::function<void()> tick_;
  UINT_PTR timer_ = 0;
};

}  // namespace norvane
