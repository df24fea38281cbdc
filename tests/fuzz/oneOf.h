#pragma once

#include <fuzzer/FuzzedDataProvider.h>

namespace norvane {

/// Runs one of several functions, chosen by the input.
template <class... Deeds>
void oneOf(FuzzedDataProvider& input, const Deeds&... deeds) {
  int left = input.ConsumeIntegralInRange(0, static_cast<int>(sizeof...(deeds)) - 1);
  ((left-- == 0 ? static_cast<void>(deeds()) : void()), ...);
}

}  // namespace norvane
