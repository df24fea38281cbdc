#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <nvlist/values/text.h>

namespace norvane {

inline std::u32string charactersOf(std::string_view text) {
  std::u32string result;
  for (std::size_t at = 0; at < text.size();) result += decodeNext(text, at);
  return result;
}

/// Whether a well-formed wildcard pattern matches a text. Tries all possibilities.
inline bool matchesPlainly(std::string_view pattern, std::string_view text, bool ignoreCase) {
  const auto folded = [&](char32_t character) {
    return ignoreCase ? foldCase(character) : character;
  };
  const auto contains = [&](std::u32string_view set, char32_t character) {
    for (std::size_t at = 0; at < set.size(); ++at) {
      const char32_t first = folded(set[at]);
      if (at + 2 < set.size() && set[at + 1] == U'-') at += 2;
      if (character >= first && character <= folded(set[at])) return true;
    }
    return false;
  };
  const auto fits = [&](std::u32string_view part, char32_t character) {
    if (part == U"?") return true;
    if (part == U"#") return character >= U'0' && character <= U'9';
    if (part[0] != U'[') return folded(part[0]) == folded(character);
    if (part == U"[!]") return character == U'!';
    const bool isNegated = part[1] == U'!';
    part = part.substr(isNegated ? 2 : 1);
    return contains(part.substr(0, part.size() - 1), folded(character)) != isNegated;
  };
  const std::u32string parts = charactersOf(pattern), characters = charactersOf(text);
  // Whether the parts so far can match up to each place of the text.
  std::vector<bool> ends(characters.size() + 1);
  ends[0] = true;
  for (std::size_t at = 0, next; at < parts.size(); at = next) {
    next = (parts[at] == U'[' ? parts.find(U']', at) : at) + 1;
    const auto part = std::u32string_view(parts).substr(at, next - at);
    if (part == U"[]") continue;
    std::vector<bool> longer(ends.size());
    for (std::size_t i = 0; i < ends.size(); ++i)
      if (part == U"*")
        longer[i] = ends[i] || (i > 0 && longer[i - 1]);
      else
        longer[i] = i > 0 && ends[i - 1] && fits(part, characters[i - 1]);
    ends = longer;
  }
  return ends.back();
}

}  // namespace norvane
