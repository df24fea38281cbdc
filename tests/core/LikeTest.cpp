#include <nvlist/core/like.h>

#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/LikePattern.h>

#include <gtest/gtest.h>

#include <random>

#include "PlainMatcher.h"

namespace norvane {
namespace {

TEST(Like, MatchesTheWholeText) {
  const struct {
    std::string_view pattern;
    std::vector<std::string_view> hits, misses;
    bool ignoresCase = false;
  } cases[] = {
      {"##", {"09"}, {"0", "0a", "123", "\xD9\xA1\xD9\xA2"}},
      {"[a-cx-z5]*", {"a", "b1", "y", "5"}, {"d", "w", "-", "B"}},
      {"[a-c-e]", {"b", "-", "e"}, {"d"}},
      {"[!]", {"!"}, {"", "a", "[!]"}},
      {"[?*#[]", {"?", "*", "#", "["}, {"a"}},
      {"[]]", {"]"}, {""}},
      {{"a\0*", 3}, {{"a\0b", 3}}, {"a"}},
      {"aB*Z", {"Abxz"}, {"bz"}, true},
      {"*\xCE\xA3", {"\xCF\x83\xCF\x82"}, {}, true},
      {"k", {"\xE2\x84\xAA"}, {}, true},
      {"\xC3\x9F", {}, {"ss"}, true},
      {"[!a-c]", {}, {"B"}, true},
      {"[@-_]", {}, {"B"}, true},
      {"[a-Z]", {"M"}, {}, true},
      {"[\xC3\x80-\xC3\x96]", {"\xC3\xA4"}, {}, true},
      {"@[`]{", {}, {"`@["}, true},
  };
  for (const auto& [pattern, hits, misses, ignoresCase] : cases) {
    const LikePattern like(pattern, ignoresCase);
    for (const auto text : hits) EXPECT_TRUE(like.matches(text)) << pattern << " : " << text;
    for (const auto text : misses) EXPECT_FALSE(like.matches(text)) << pattern << " : " << text;
  }
}

TEST(Like, RefusesMalformedPatternsAndReportsThemUnderItsNames) {
  for (const bool ignoreCase : {false, true})
    for (const std::string_view pattern : {"[", "a[bc", "[!", "*[a", "[b-a]", "[!z-a]", "[a--]",
                                           "[\xC3\xA4-a]", "x[][", ignoreCase ? "[Z-a]" : "[a-Z]"})
      EXPECT_THROW(LikePattern(pattern, ignoreCase), Failure) << pattern;

  HeadlessApplication application;
  EXPECT_FALSE(LikeCompBinary("abc", "A*"));
  EXPECT_TRUE(LikeCompText("abc", "A*").isTrue());
  EXPECT_FALSE(LikeCompBinary("[", "["));
  EXPECT_FALSE(LikeCompText("b", "[c-a]"));
  ASSERT_EQ(application.boxes.size(), 2U);
  for (const auto& [box, module] : {std::pair(0U, "basCompareBinary"), {1U, "basComparyText"}})
    EXPECT_NE(application.boxes[box].text.find(std::string("Module: Modul ") + module + "\r\n"),
              std::string::npos);
}

TEST(Like, AgreesWithAPlainMatcherAlsoOverStrayBytes) {
  const std::string_view patternPieces[] = {
      "a",  "B",    "*",    "*",    "?", "#",        "[ab]",        "[!A-c]",     "[-a]", "[a-]",
      "[]", "\xE2", "\x82", "\xAC", "7", "\xC3\xA4", "[!\xC3\xA4]", "[\xE2\x82]", "[!]",  "[!!]"};
  const std::string_view textPieces[] = {"a", "b", "7", "\xE2", "\x82", "\xAC", "\xC3\x84", "-!"};
  std::mt19937 random(3);
  int hits = 0;
  for (int round = 0; round < 40000; ++round) {
    std::string pattern, text;
    for (auto left = random() % 7; left > 0; --left)
      pattern += patternPieces[random() % std::size(patternPieces)];
    for (auto left = random() % 8; left > 0; --left) text += textPieces[random() % 8];
    for (const bool ignoreCase : {false, true}) {
      const bool expected = matchesPlainly(pattern, text, ignoreCase);
      ASSERT_EQ(LikePattern(pattern, ignoreCase).matches(text), expected)
          << testing::PrintToString(pattern) << testing::PrintToString(text) << ignoreCase;
      hits += expected;
    }
  }
  EXPECT_GT(hits, 2000);
}

TEST(Like, StaysBoundedWithManyAsterisks) {
  std::string stars;
  for (int i = 0; i < 2000; ++i) stars += "*a?";
  const std::string text(100000, 'a'), many(2000, '*');
  EXPECT_TRUE(LikePattern(stars + "*", false).matches(text));
  for (const std::string& pattern : {stars + "*b*", many + "b" + many})
    EXPECT_FALSE(LikePattern(pattern, false).matches(text));
}

}  // namespace
}  // namespace norvane
