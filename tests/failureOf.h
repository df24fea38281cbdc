#pragma once

#include <nvlist/values/Failure.h>

namespace norvane {

/// The number of the failure that a statement throws, or 0.
int failureOf(auto&& statement) {
  try {
    statement();
    return 0;
  } catch (const Failure& failure) {
    return failure.number();
  }
}

}  // namespace norvane
