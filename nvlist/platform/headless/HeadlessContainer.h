#pragma once

#include <deque>
#include <functional>

#include <nvlist/platform/Container.h>

namespace norvane {

/// The place of a control without a screen. Its message queue is filled by the program.
class HeadlessContainer : public Container {
 public:
  /// False shows what a designer shows.
  Boolean userMode = true;
  /// Default: Tahoma at 8.25 points.
  Font ambientFont = makeRef<FontObject>();
  std::string name = "nvList1";
  /// Called for each change of a property, if set.
  std::function<void(std::string_view)> onPropertyChanged;

  /// Puts something at the end of the queue. Each DoEvents takes one from its front and runs it;
  /// an empty function lets that DoEvents pass.
  void post(std::function<void()> message) { queue_.push_back(std::move(message)); }
  std::size_t waiting() const { return queue_.size(); }

  void PropertyChanged(std::string_view property) override;
  Boolean UserMode() override { return userMode; }
  Font AmbientFont() override { return ambientFont; }
  std::string Name() override { return name; }
  bool EventsWaiting() override { return !queue_.empty(); }
  void DoEvents() override;

 private:
  std::deque<std::function<void()>> queue_;
};

}  // namespace norvane
