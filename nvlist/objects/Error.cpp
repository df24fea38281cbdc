#include <nvlist/objects/Error.h>

#include <atomic>

namespace norvane {
namespace {

// One value for all threads of a program.
std::atomic<std::int16_t> silentError = 0;

}  // namespace

Error::Error() {
  // Runs once per program. Other threads wait here, so that none can set the value earlier.
  [[maybe_unused]] static const bool isInitialised = [] {
    silentError = 0;
    return true;
  }();
}

Boolean Error::SilentError() const { return Boolean::ofNumber(silentError); }

void Error::SilentError(Boolean value) { silentError = value.number(); }

bool Error::silent() { return silentError != 0; }

}  // namespace norvane
