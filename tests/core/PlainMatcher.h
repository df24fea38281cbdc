#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <nvlist/values/text.h>

namespace norvane {

using Characters = std::vector<char32_t>;

inline Characters charactersOf(std::string_view text) {
  Characters result;
  for (std::size_t at = 0; at < text.size();) result.push_back(decodeNext(text, at));
  return result;
}

/// A matcher of wildcard patterns that tries all possibilities. The pattern must be well formed.
class PlainMatcher {
 public:
  PlainMatcher(std::string_view pattern, bool ignoreCase)
      : pattern_(charactersOf(pattern)), ignoresCase_(ignoreCase) {}

  bool matches(const Characters& text) const {
    // Whether the part of the pattern read so far can end at each place of the text.
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

  /// Whether the character matches the part of the pattern at `at`; advances `at` past the part.
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

}  // namespace norvane
