#include <nvlist/objects/Trap.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <nvlist/objects/Error.h>
#include <nvlist/objects/reporter.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// Passes the exception being handled to `reportAs` as a number and a text. An exception that is
/// not a Failure comes from a host, a platform or the standard library; if there is no memory for
/// its text, Out of memory is passed instead.
template <class ReportAs>
void reportCurrent(ReportAs&& reportAs) {
  const auto outOfMemory = [&] { reportAs(7, "Out of memory"); };
  const auto automation = [&](const char* what) {
    std::string text;
    try {
      text = Failure::automation(what).what();
    } catch (const std::bad_alloc&) {
      return outOfMemory();
    }
    reportAs(440, text);
  };
  try {
    throw;
  } catch (const Failure& failure) {
    reportAs(failure.number(), failure.what());
  } catch (const std::bad_alloc&) {
    outOfMemory();
  } catch (const std::length_error&) {
    outOfMemory();
  } catch (const std::exception& exception) {
    automation(exception.what());
  } catch (...) {
    automation("unknown exception");
  }
}

/// Null entries are watches that ended while the loop in Trap::ended was running.
thread_local std::vector<Trap::Watch*> watches;
thread_local int watchLoops = 0;

}  // namespace

Trap::Watch::Watch(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {
  watches.push_back(this);
  isWatched = true;
}

Trap::Watch::~Watch() {
  std::ranges::replace(watches, this, nullptr);
  if (watchLoops == 0) std::erase(watches, nullptr);
  isWatched = !watches.empty();
}

void Trap::ended() {
  if (anyRuns()) return;
  ++watchLoops;
  // NOLINTNEXTLINE(modernize-loop-convert): a function may add a watch.
  for (std::size_t i = 0; i < watches.size(); ++i) {
    if (!watches[i]) continue;
    // A copy: the function may destroy its watch.
    const auto onEnd = watches[i]->onEnd_;
    onEnd();
  }
  if (--watchLoops > 0) return;
  std::erase(watches, nullptr);
  isWatched = !watches.empty();
}

// Not inline: where the library is a DLL, each module has inline counters of its own.
bool Trap::anyRuns() { return depth > 0; }
std::int64_t Trap::failures() { return failureCount; }

void Trap::failed(int line) const {
  try {
    throw;
  } catch (const Left&) {
    throw;
  } catch (...) {
    ++failureCount;
    if (Error::silent()) return;
    reportCurrent([&](std::int32_t number, std::string_view description) {
      report({number, description, procedure_, line, module_.kind, module_.name});
    });
  }
  throw Left{};
}

}  // namespace norvane
