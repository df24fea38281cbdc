#include <nvlist/input/events.h>

#include <algorithm>

namespace norvane {

void EventSinks::add(__nvList& sink) {
  if (std::find(sinks_.begin(), sinks_.end(), &sink) == sinks_.end()) sinks_.push_back(&sink);
}

void EventSinks::remove(__nvList& sink) {
  std::replace(sinks_.begin(), sinks_.end(), &sink, static_cast<__nvList*>(nullptr));
  if (depth_ == 0) std::erase(sinks_, nullptr);
}

}  // namespace norvane
