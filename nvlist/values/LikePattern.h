#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// A wildcard pattern, compiled once and matched against many texts.
///
/// `?` matches one character, `*` any number of characters, `#` a digit from 0 to 9, `[abc]` one
/// character of a set, `[!abc]` one character outside it. A hyphen between two characters of a set
/// makes a range; at either end of the set, or directly after a range, it matches itself. `[]`
/// matches no character at all, `[!]` the exclamation mark.
///
/// matches() does not allocate; its time is at most proportional to text length times pattern
/// length.
class LikePattern {
 public:
  /// With `ignoreCase`, characters and the ends of ranges are case-folded before they are compared.
  /// Throws Failure 93, Invalid pattern string, for an unclosed `[` and for a descending range.
  LikePattern(std::string_view pattern, bool ignoreCase);

  /// Whether the pattern matches the whole text.
  bool matches(std::string_view text) const;
  /// The only text that matches; empty if the pattern has wildcards, or matches other texts too.
  std::string_view literal() const {
    return segments_.size() == 1 ? std::string_view(segments_.front().literal) : std::string_view();
  }

 private:
  struct Range {
    char32_t first;
    char32_t last;
  };

  /// The characters that match at one position. `ascii` has a bit for each ASCII character, with
  /// case and negation already applied.
  struct Token {
    std::array<std::uint64_t, 2> ascii = {};
    std::uint32_t rangesBegin = 0;
    std::uint32_t rangesEnd = 0;
    bool isNegated = false;
  };

  /// The tokens between two asterisks.
  struct Segment {
    std::size_t tokensBegin = 0;
    std::size_t tokensEnd = 0;
    /// The tokens as bytes if they can be compared bytewise; otherwise empty.
    std::string literal = {};

    std::size_t size() const { return tokensEnd - tokensBegin; }
  };

  void addSet(std::string_view pattern, std::size_t& at);
  void addCharacter(char32_t character);
  void addRange(char32_t first, char32_t last);
  void addToken(std::size_t rangesBegin, bool isNegated);
  bool accepts(const Token& token, char32_t character) const;
  bool acceptsLong(const Token& token, char32_t character) const;
  bool matchesForward(const Segment& segment, std::string_view text, std::size_t& at) const;
  bool matchesBackward(const Segment& segment, std::string_view text, std::size_t& end) const;
  bool find(const Segment& segment, std::string_view text, std::size_t& at) const;

  bool ignoresCase_;
  std::vector<Range> ranges_;
  std::vector<Token> tokens_;
  /// One more than there are runs of asterisks. The first matches at the start of the text, the
  /// last at its end, the others at the earliest possible place between.
  std::vector<Segment> segments_;
};

}  // namespace norvane
