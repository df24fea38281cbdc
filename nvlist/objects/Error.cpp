#include <nvlist/objects/Error.h>

#include <atomic>

namespace norvane {
namespace {

// The one value that all threads of a program share.
std::atomic<std::int16_t> silentError = 0;

}  // namespace

Error::Error() {
  // Once in a program: other threads wait here, so that none sets the value before.
  [[maybe_unused]] static const bool isInitialised = [] {
    silentError = 0;
    return true;
  }();
}

Boolean Error::SilentError() const { return Boolean::ofNumber(silentError); }

void Error::SilentError(Boolean value) { silentError = value.number(); }

bool Error::silent() { return silentError != 0; }

}  // namespace norvane
