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

 private:
  void start(std::int32_t milliseconds) override { timer_->start(milliseconds); }
  void stop() override { timer_->stop(); }

  QTimer* const timer_ = new QTimer;
};

}  // namespace norvane
