#include <nvlist/objects/Error.h>

#include <atomic>

namespace norvane {
namespace {

// Programs may run lists of their own on several threads; the switch is the one thing shared.
std::atomic<std::int16_t> silentError = 0;
std::atomic<bool> isInitialised = false;

}  // namespace

Error::Error() {
  if (!isInitialised.exchange(true)) silentError = 0;
}

Boolean Error::SilentError() const { return Boolean::ofNumber(silentError); }

void Error::SilentError(Boolean value) { silentError = value.number(); }

bool Error::silent() { return silentError != 0; }

}  // namespace norvane
