#pragma once

#include <QCoreApplication>
#include <QTimer>
#include <functional>

#include <nvlist/platform/Timer.h>

namespace norvane {

/// A timer of Qt's event loop.
class QtTimer final : public Timer {
 public:
  explicit QtTimer(std::function<void()> tick) {
    timer_->setTimerType(Qt::PreciseTimer);
    timer_->callOnTimeout(std::move(tick));
  }
  ~QtTimer() override {
    timer_->stop();
    timer_->disconnect();
    // Later, since this may be its own tick. A program that is closing has no later.
    QCoreApplication::closingDown() ? delete timer_ : timer_->deleteLater();
  }

  std::int32_t Interval() const override { return interval_; }
  void Interval(std::int32_t milliseconds) override {
    interval_ = milliseconds;
    begin();
  }
  Boolean Enabled() const override { return enabled_; }
  void Enabled(Boolean on) override {
    if (enabled_ == on) return;
    enabled_ = on;
    begin();
  }

 private:
  void begin() {
    timer_->stop();
    if (enabled_ && interval_ > 0) timer_->start(interval_);
  }

  QTimer* const timer_ = new QTimer;
  std::int32_t interval_ = 0;
  Boolean enabled_ = false;
};

}  // namespace norvane
