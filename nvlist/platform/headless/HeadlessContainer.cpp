#include <nvlist/platform/headless/HeadlessContainer.h>

namespace norvane {

void HeadlessContainer::PropertyChanged(std::string_view property) {
  // A copy, as a handler may take itself away.
  const auto handler = onPropertyChanged;
  if (handler) handler(property);
}

void HeadlessContainer::DoEvents() {
  if (queue_.empty()) return;
  const std::function<void()> message = std::move(queue_.front());
  queue_.pop_front();
  if (message) message();
}

}  // namespace norvane
