#include <nvlist/objects/Trap.h>

#include <new>
#include <stdexcept>
#include <string>

#include <nvlist/objects/Error.h>
#include <nvlist/objects/reporter.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// The exception being handled as a failure with a number. What is none of ours comes from a host
/// or a platform.
Failure currentFailure() {
  try {
    throw;
  } catch (const Failure& failure) {
    return failure;
  } catch (const std::bad_alloc&) {
    return Failure::outOfMemory();
  } catch (const std::length_error&) {
    return Failure::outOfMemory();
  } catch (const std::exception& exception) {
    return Failure::automation(exception.what());
  } catch (...) {
    return Failure::automation("unknown exception");
  }
}

}  // namespace

void Trap::failed(int line) const {
  try {
    throw;
  } catch (const Left&) {
    throw;
  } catch (...) {
    if (Error::silent()) return;
    const Failure failure = currentFailure();
    report({failure.number(), failure.what(), procedure_, line, module_.kind, module_.name});
  }
  throw Left{};
}

}  // namespace norvane
