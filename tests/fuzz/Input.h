#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/values/Variant.h>

namespace norvane {

inline void require(bool condition) {
  if (!condition) std::abort();
}

/// Runs one of several functions, chosen by the input.
template <class... Deeds>
void oneOf(FuzzedDataProvider& input, const Deeds&... deeds) {
  int left = input.ConsumeIntegralInRange(0, static_cast<int>(sizeof...(deeds)) - 1);
  ((left-- == 0 ? static_cast<void>(deeds()) : void()), ...);
}

/// What the input makes happen, value by value.
class Input : public FuzzedDataProvider {
 public:
  using FuzzedDataProvider::FuzzedDataProvider;

  bool isEmpty() { return remaining_bytes() == 0; }
  int below(int end) { return ConsumeIntegralInRange(0, end - 1); }
  bool flag() { return ConsumeBool(); }
  /// Mostly small, or at a limit.
  std::int32_t number() {
    using Limits = std::numeric_limits<std::int32_t>;
    std::int32_t result = below(24) - 4;
    oneOf(
        *this, [] {}, [&] { result = Limits::max() - below(3); },
        [&] { result = Limits::min() + below(3); },
        [&] { result = ConsumeIntegral<std::int32_t>(); });
    return result;
  }
  std::int16_t small() { return static_cast<std::int16_t>(number()); }
  float length() {
    constexpr float special[] = {-1, 0, 0.4F, 0.5F, 13, 1e9F, -1e9F, 3e38F};
    float result = static_cast<float>(below(120) - 8);
    oneOf(
        *this, [] {}, [] {}, [&] { result = special[below(8)]; },
        [&] { result = flag() ? std::numeric_limits<float>::infinity() : std::nanf(""); });
    return result;
  }
  std::string text() {
    constexpr const char* special[] = {"",      "def",       "1",       "2.5",
                                       "a & b", "c|right=d", "x\ty\nz", "\xC3"};
    return flag() ? special[below(8)] : ConsumeRandomLengthString(12);
  }
  Variant value() {
    Variant result;
    oneOf(
        *this, [] {}, [&] { result = text(); }, [&] { result = length(); },
        [&] { result = Boolean(flag()); }, [&] { result = Ref<Object>(makeRef<Object>()); },
        [&] { result = number(); });
    return result;
  }
  Boolean boolean() { return Boolean::ofNumber(static_cast<std::int16_t>(below(4) - 2)); }
  Picture picture() {
    if (!flag()) return nullptr;
    return art::drawn("", 1 + below(3), 1, [](int, int) { return art::white; });
  }
  template <class Enumeration>
  Enumeration of() {
    return static_cast<Enumeration>(below(7) - 1);
  }
};

}  // namespace norvane
