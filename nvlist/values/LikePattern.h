#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// A wildcard pattern, made ready once to be held against many texts.
///
/// `?` stands for one character, `*` for any run of them, also none, `#` for one digit from 0 to 9,
/// `[abc]` for one character of a set, `[!abc]` for one outside it. A hyphen between two characters
/// of a set makes a range; first or last, or right behind a range, it stands for itself. `[]`
/// stands for no character at all, `[!]` for the exclamation mark.
///
/// matches() allocates nothing and takes at most time in proportion to text times pattern.
class LikePattern {
 public:
  /// With `ignoreCase` characters are folded before they are compared, the ends of ranges too.
  /// Throws Failure 93, Invalid pattern string, for a `[` that is never closed and for a range that
  /// runs backwards.
  LikePattern(std::string_view pattern, bool ignoreCase);

  /// Whether the pattern covers the whole text.
  bool matches(std::string_view text) const;

 private:
  struct Range {
    char32_t first;
    char32_t last;
  };

  /// What one character can match. The answer for ASCII stands ready, with case and negation in it.
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
    /// The same as bytes, where they can be compared as such; empty otherwise.
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
  /// One more than there are runs of asterisks. The first one stands at the start of the text, the
  /// last one at its end, those between them as early as they can.
  std::vector<Segment> segments_;
};

}  // namespace norvane
