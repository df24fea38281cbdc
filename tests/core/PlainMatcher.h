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
      const std::size_t part = at;
      at = behind(part);
      if (at == part + 2 && pattern_[part] == U'[') continue;  // an empty set
      std::vector<bool> next(text.size() + 1);
      for (std::size_t i = 0; i <= text.size(); ++i)
        if (pattern_[part] == U'*')
          next[i] = ends[i] || (i > 0 && next[i - 1]);
        else if (i > 0)
          next[i] = ends[i - 1] && fits(part, at, text[i - 1]);
      ends = next;
    }
    return ends.back();
  }

 private:
  char32_t folded(char32_t character) const {
    return ignoresCase_ ? foldCase(character) : character;
  }

  /// The end of the part of the pattern that begins at `at`.
  std::size_t behind(std::size_t at) const {
    if (pattern_[at] == U'[')
      while (pattern_[at] != U']') ++at;
    return at + 1;
  }

  /// Whether the character matches the part of the pattern between two places.
  bool fits(std::size_t begin, std::size_t end, char32_t character) const {
    const char32_t part = pattern_[begin];
    if (part == U'?') return true;
    if (part == U'#') return character >= U'0' && character <= U'9';
    if (part != U'[') return folded(part) == folded(character);
    const Characters set(pattern_.data() + begin + 1, pattern_.data() + end - 1);
    if (set == Characters{U'!'}) return character == U'!';
    const bool isNegated = set[0] == U'!';
    return contains(set, isNegated ? 1 : 0, folded(character)) != isNegated;
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
