#include <nvlist/values/LikePattern.h>

#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {

LikePattern::LikePattern(std::string_view pattern, bool ignoreCase) : ignoresCase_(ignoreCase) {
  segments_.emplace_back();
  bool isLiteral = !ignoreCase;
  const auto closeSegment = [&] {
    segments_.back().tokensEnd = tokens_.size();
    if (!isLiteral) segments_.back().literal.clear();
    isLiteral = !ignoresCase_;
  };
  for (std::size_t at = 0; at < pattern.size();) {
    const std::size_t start = at;
    const char32_t character = decodeNext(pattern, at);
    switch (character) {
      case U'*': {
        closeSegment();
        // Several asterisks in a row have the effect of one.
        const bool isRun = segments_.size() > 1 && segments_.back().size() == 0;
        if (!isRun) segments_.push_back({tokens_.size(), tokens_.size()});
        break;
      }
      case U'?':
        addToken(ranges_.size(), true);
        isLiteral = false;
        break;
      case U'#':
        addRange(U'0', U'9');
        addToken(ranges_.size() - 1, false);
        isLiteral = false;
        break;
      case U'[': {
        addSet(pattern, at);
        isLiteral = false;
        break;
      }
      default:
        addCharacter(character);
        segments_.back().literal += pattern.substr(start, at - start);
        // A stray byte must not match a byte inside a valid character of the text.
        if (character >= firstStrayByte) isLiteral = false;
    }
  }
  closeSegment();
}

void LikePattern::addSet(std::string_view pattern, std::size_t& at) {
  const std::size_t length = pattern.substr(at).find(']');
  if (length == std::string_view::npos) throw Failure::invalidPattern();
  std::string_view set = pattern.substr(at, length);
  at += length + 1;
  if (set.empty()) return;
  const bool isNegated = set.size() > 1 && set.front() == '!';
  if (isNegated) set.remove_prefix(1);
  const std::size_t rangesBegin = ranges_.size();
  for (std::size_t i = 0; i < set.size();) {
    const char32_t first = decodeNext(set, i);
    if (i + 1 < set.size() && set[i] == '-') {
      ++i;
      addRange(first, decodeNext(set, i));
    } else {
      addRange(first, first);
    }
  }
  addToken(rangesBegin, isNegated);
}

void LikePattern::addCharacter(char32_t character) {
  addRange(character, character);
  addToken(ranges_.size() - 1, false);
}

void LikePattern::addRange(char32_t first, char32_t last) {
  if (ignoresCase_) {
    first = foldCase(first);
    last = foldCase(last);
  }
  if (first > last) throw Failure::invalidPattern();
  ranges_.push_back({first, last});
}

void LikePattern::addToken(std::size_t rangesBegin, bool isNegated) {
  Token token;
  token.rangesBegin = static_cast<std::uint32_t>(rangesBegin);
  token.rangesEnd = static_cast<std::uint32_t>(ranges_.size());
  token.isNegated = isNegated;
  for (std::size_t i = rangesBegin; i < ranges_.size(); ++i) {
    for (char32_t c = ranges_[i].first; c <= ranges_[i].last && c < 0x80; ++c) {
      token.ascii[c >> 6] |= std::uint64_t{1} << (c & 63);
    }
  }
  if (ignoresCase_) {
    // The ranges are folded to small letters; each capital has the bit of its small letter.
    const std::uint64_t capitals = std::uint64_t{0x3FFFFFF} << (U'A' & 63);
    token.ascii[1] = (token.ascii[1] & ~capitals) | (token.ascii[1] >> 32 & capitals);
  }
  if (isNegated) token.ascii = {~token.ascii[0], ~token.ascii[1]};
  tokens_.push_back(token);
}

inline bool LikePattern::accepts(const Token& token, char32_t character) const {
  if (character < 0x80) return (token.ascii[character >> 6] >> (character & 63) & 1) != 0;
  return acceptsLong(token, character);
}

bool LikePattern::acceptsLong(const Token& token, char32_t character) const {
  if (ignoresCase_) character = foldCase(character);
  for (std::size_t i = token.rangesBegin; i < token.rangesEnd; ++i) {
    if (character >= ranges_[i].first && character <= ranges_[i].last) return !token.isNegated;
  }
  return token.isNegated;
}

/// Whether the segment matches at `at`; if so, advances `at` past it.
bool LikePattern::matchesForward(const Segment& segment, std::string_view text,
                                 std::size_t& at) const {
  if (!segment.literal.empty()) {
    if (!text.substr(at).starts_with(segment.literal)) return false;
    at += segment.literal.size();
    return true;
  }
  std::size_t i = at;
  for (std::size_t token = segment.tokensBegin; token < segment.tokensEnd; ++token) {
    if (i == text.size() || !accepts(tokens_[token], decodeNext(text, i))) return false;
  }
  at = i;
  return true;
}

/// Whether the segment matches directly before `end`; if so, moves `end` to its start.
bool LikePattern::matchesBackward(const Segment& segment, std::string_view text,
                                  std::size_t& end) const {
  if (!segment.literal.empty()) {
    if (!text.substr(0, end).ends_with(segment.literal)) return false;
    end -= segment.literal.size();
    return true;
  }
  std::size_t i = end;
  for (std::size_t token = segment.tokensEnd; token-- > segment.tokensBegin;) {
    if (i == 0 || !accepts(tokens_[token], decodePrevious(text, i))) return false;
  }
  end = i;
  return true;
}

/// Finds the first match of the segment from `at` on; if there is one, advances `at` past it.
bool LikePattern::find(const Segment& segment, std::string_view text, std::size_t& at) const {
  if (!segment.literal.empty()) {
    // Valid UTF-8 matches only at character boundaries of the text.
    const std::size_t place = text.find(segment.literal, at);
    if (place == std::string_view::npos) return false;
    at = place + segment.literal.size();
    return true;
  }
  const Token& first = tokens_[segment.tokensBegin];
  for (std::size_t start = at; text.size() - start >= segment.size();) {
    std::size_t next = start;
    if (accepts(first, decodeNext(text, next)) && matchesForward(segment, text, start)) {
      at = start;
      return true;
    }
    start = next;
  }
  return false;
}

bool LikePattern::matches(std::string_view text) const {
  std::size_t at = 0;
  if (!matchesForward(segments_.front(), text, at)) return false;
  if (segments_.size() == 1) return at == text.size();
  std::size_t end = text.size();
  if (!matchesBackward(segments_.back(), text, end) || end < at) return false;
  text = text.substr(0, end);
  for (std::size_t i = 1; i + 1 < segments_.size(); ++i) {
    if (!find(segments_[i], text, at)) return false;
  }
  return true;
}

}  // namespace norvane
