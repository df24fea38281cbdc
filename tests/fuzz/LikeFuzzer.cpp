// Matches a random pattern against a random text and compares with a matcher that tries all
// possibilities. The text follows the first zero byte.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include <nvlist/values/Failure.h>
#include <nvlist/values/LikePattern.h>

#include "../core/PlainMatcher.h"

using namespace norvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t zero = std::min(input.find('\0'), size);
  const std::string_view pattern = input.substr(0, zero);
  const std::string_view text = input.substr(std::min(zero + 1, size));
  for (const bool ignoreCase : {false, true}) {
    try {
      const bool matches = LikePattern(pattern, ignoreCase).matches(text);
      if (matches != matchesPlainly(pattern, text, ignoreCase)) std::abort();
    } catch (const Failure&) {
      // A malformed pattern.
    }
  }
  return 0;
}
