// Holds a random pattern against a random text, and compares with a matcher that tries everything.
// The text comes behind the first zero byte.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include <nvlist/values/Failure.h>
#include <nvlist/values/LikePattern.h>
#include <nvlist/values/text.h>

namespace {

using namespace norvane;
using Characters = std::vector<char32_t>;

Characters charactersOf(std::string_view text) {
  Characters result;
  for (std::size_t at = 0; at < text.size();) result.push_back(decodeNext(text, at));
  return result;
}

/// Only for patterns that are well formed.
class Matcher {
 public:
  Matcher(std::string_view pattern, bool ignoreCase)
      : pattern_(charactersOf(pattern)), ignoresCase_(ignoreCase) {}

  bool matches(const Characters& text) const {
    // The places in the text that the pattern so far can end at.
    std::vector<bool> ends(text.size() + 1);
    ends[0] = true;
    for (std::size_t at = 0; at < pattern_.size();) {
      std::vector<bool> next(text.size() + 1);
      if (pattern_[at] == U'*') {
        ++at;
        bool isReached = false;
        for (std::size_t i = 0; i <= text.size(); ++i) next[i] = isReached = isReached || ends[i];
      } else {
        std::size_t behind = at;
        for (std::size_t i = 0; i <= text.size(); ++i) {
          behind = at;
          const char32_t character = i < text.size() ? text[i] : 0;
          const auto fit = fits(behind, character);
          if (fit == Fit::nothing) {
            if (ends[i]) next[i] = true;
          } else if (fit == Fit::yes && i < text.size() && ends[i]) {
            next[i + 1] = true;
          }
        }
        at = behind;
      }
      ends = next;
    }
    return ends.back();
  }

 private:
  enum class Fit { no, yes, nothing };

  char32_t folded(char32_t character) const {
    return ignoresCase_ ? foldCase(character) : character;
  }

  /// Whether the character fits the part of the pattern at `at`; moves `at` behind that part.
  Fit fits(std::size_t& at, char32_t character) const {
    const char32_t part = pattern_[at++];
    if (part == U'?') return Fit::yes;
    if (part == U'#') return character >= U'0' && character <= U'9' ? Fit::yes : Fit::no;
    if (part != U'[') return folded(part) == folded(character) ? Fit::yes : Fit::no;
    std::size_t end = at;
    while (pattern_[end] != U']') ++end;
    const Characters set(pattern_.begin() + static_cast<std::ptrdiff_t>(at),
                         pattern_.begin() + static_cast<std::ptrdiff_t>(end));
    at = end + 1;
    if (set.empty()) return Fit::nothing;
    if (set == Characters{U'!'}) return character == U'!' ? Fit::yes : Fit::no;
    const bool isNegated = set[0] == U'!';
    return contains(set, isNegated ? 1 : 0, folded(character)) != isNegated ? Fit::yes : Fit::no;
  }

  bool contains(const Characters& set, std::size_t at, char32_t character) const {
    while (at < set.size()) {
      if (at + 2 < set.size() && set[at + 1] == U'-') {
        if (character >= folded(set[at]) && character <= folded(set[at + 2])) return true;
        at += 3;
      } else if (folded(set[at++]) == character) {
        return true;
      }
    }
    return false;
  }

  Characters pattern_;
  bool ignoresCase_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t zero = std::min(input.find('\0'), size);
  const std::string_view pattern = input.substr(0, zero);
  const std::string_view text = input.substr(std::min(zero + 1, size));
  for (const bool ignoreCase : {false, true}) {
    try {
      const bool matches = LikePattern(pattern, ignoreCase).matches(text);
      if (matches != Matcher(pattern, ignoreCase).matches(charactersOf(text))) std::abort();
    } catch (const Failure&) {
      // A malformed pattern.
    }
  }
  return 0;
}
