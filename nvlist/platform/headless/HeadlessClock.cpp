#include <nvlist/platform/headless/HeadlessClock.h>

#include <algorithm>

namespace norvane {

class HeadlessClock::ClockTimer final : public Timer {
 public:
  ClockTimer(HeadlessClock& clock, std::function<void()> tick)
      : clock_(clock), tick_(std::move(tick)) {
    clock_.timers_.push_back(this);
  }
  ~ClockTimer() override { std::erase(clock_.timers_, this); }

  bool isRunning() const { return running_.count() > 0; }
  Time due() const { return begun_ + running_; }
  void begin() { begun_ = clock_.now_; }
  void tick() {
    begin();
    // A copy: the tick may destroy the timer.
    const auto tick = tick_;
    tick();
  }

 private:
  void start(std::int32_t milliseconds) override {
    running_ = std::chrono::milliseconds(milliseconds);
    begin();
  }
  void stop() override { running_ = {}; }

  HeadlessClock& clock_;
  std::function<void()> tick_;
  std::chrono::milliseconds running_{};  ///< 0 while stopped
  Time begun_;
};

std::unique_ptr<Timer> HeadlessClock::addTimer(std::function<void()> tick) {
  return std::make_unique<ClockTimer>(*this, std::move(tick));
}

HeadlessClock::ClockTimer* HeadlessClock::next() const {
  ClockTimer* first = nullptr;
  for (ClockTimer* timer : timers_)
    if (timer->isRunning() && (!first || timer->due() < first->due())) first = timer;
  return first;
}

void HeadlessClock::set(Time now) {
  now_ = now;
  for (ClockTimer* timer : timers_) timer->begin();
}

void HeadlessClock::advance(std::chrono::milliseconds by) {
  const Time end = now_ + by;
  for (ClockTimer* timer = next(); timer && timer->due() <= end; timer = next()) {
    now_ = std::max(now_, timer->due());
    timer->tick();
  }
  now_ = std::max(now_, end);
}

}  // namespace norvane
