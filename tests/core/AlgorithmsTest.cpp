#include <nvlist/core/like.h>
#include <nvlist/core/partitionSort.h>
#include <nvlist/core/repeatedTexts.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/LikePattern.h>

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>
#include <utility>

#include "PlainMatcher.h"

namespace norvane {
namespace {

using Order = std::vector<std::int32_t>;
using Texts = std::vector<std::string>;

std::vector<std::string_view> viewsOf(const Texts& texts) { return {texts.begin(), texts.end()}; }

/// A text of up to so many random characters.
std::string randomText(std::mt19937& random, std::size_t longest, std::string_view alphabet) {
  std::string text;
  for (auto left = random() % (longest + 1); left > 0; --left)
    text += alphabet[random() % alphabet.size()];
  return text;
}

/// The scheme, implemented literally.
void sortPlainly(const std::string* texts, cSortMode mode, std::int32_t* order, int lo, int hi) {
  const auto isBefore = [&](int a, int b) {
    return mode == cAscending ? texts[a] < texts[b] : texts[a] > texts[b];
  };
  int i = lo, j = hi;
  const int pivot = order[static_cast<int>(std::nearbyint((lo + hi) / 2.0))];
  do {
    while (isBefore(order[i], pivot)) ++i;
    while (isBefore(pivot, order[j])) --j;
    if (i <= j) std::swap(order[i++], order[j--]);
  } while (i <= j);
  if (lo < j) sortPlainly(texts, mode, order, lo, j);
  if (i < hi) sortPlainly(texts, mode, order, i, hi);
}

void expectAgreement(const Texts& texts) {
  for (const cSortMode mode : {cAscending, cDescending}) {
    Order order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    const int last = static_cast<int>(texts.size()) - 1;
    if (last >= 0) sortPlainly(texts.data(), mode, order.data(), 0, last);
    ASSERT_EQ(partitionOrder(viewsOf(texts), mode), order) << testing::PrintToString(texts);
  }
}

/// Six digits each; the middle of what is left is always the greatest. The lowest are `equal`.
Texts hostileTexts(int count, int equal) {
  Texts texts;
  for (int last = 0; last < count; ++last) {
    texts.push_back("");
    std::string& middle = texts[static_cast<std::size_t>(std::nearbyint(last / 2.0))];
    texts.back() = middle;
    middle = std::to_string(100000 + std::max(last, equal));
  }
  return texts;
}

TEST(PartitionSort, LeavesEqualTextsWhereTheSchemeDoes) {
  const std::string starts[] = {"", "", "a shared start ", "another ", std::string(3, '\0')};
  std::mt19937 random(7);
  for (int round = 0; round < 6000; ++round) {
    const std::string alphabet = round % 2 ? "ab" : std::string("aAbB1\xC3\xFF\0", 8);
    const auto longest = random() % 20;
    Texts texts(random() % (round % 100 ? 40 : 2000));
    for (std::string& text : texts)
      text = starts[round % 3 ? 2 : random() % std::size(starts)] +
             randomText(random, longest, alphabet);
    ASSERT_NO_FATAL_FAILURE(expectAgreement(texts));
  }
  for (const int equal : {0, 1, 5, 100, 300}) expectAgreement(hostileTexts(400, equal));
}

TEST(PartitionSort, TakesHostileTextsInItsStride) {
  const Texts texts = hostileTexts(300000, 0);
  // Splitting off one text at a time would exceed the time limit and overflow the stack.
  const Order order = partitionOrder(viewsOf(texts), cAscending);
  for (std::size_t i = 1; i < order.size(); ++i)
    ASSERT_LT(texts.data()[order[i - 1]], texts.data()[order[i]]);
}

/// The indexes of the texts that occur in those before them, each of which a comma ends.
Order searched(const Texts& texts) {
  Order result;
  std::string seen;
  for (std::size_t i = 0; i < texts.size(); ++i)
    if (seen.find(texts[i] + ",") == std::string::npos)
      seen += texts[i] + ",";
    else
      result.push_back(static_cast<std::int32_t>(i));
  return result;
}

TEST(RepeatedTexts, AgreesWithAPlainSearch) {
  std::mt19937 random(7);
  for (int round = 0; round < 4000; ++round) {
    const auto longest = 1 + random() % 12;
    const std::string_view alphabet =
        round % 2 == 0 ? std::string_view("aA,\0", 4) : std::string_view("abbbaa,\xA4");
    Texts texts(random() % 60);
    for (std::string& text : texts) text = randomText(random, longest, alphabet);
    ASSERT_EQ(repeatedTexts(viewsOf(texts)), searched(texts)) << testing::PrintToString(texts);
  }
}

TEST(RepeatedTexts, TellsTextsOfTheSameHashApart) {
  // Two such words have the same sum of powers for every odd base, modulo 2^64.
  std::string word = "a", opposite = "b";
  while (word.size() < 2048) {
    const std::string half = word;
    word += opposite;
    opposite += half;
  }
  const Texts texts = {word, opposite, word, "x," + word, "x," + opposite};
  EXPECT_EQ(repeatedTexts(viewsOf(texts)), Order{2});
}

TEST(RepeatedTexts, TakesManyAndLongTextsInItsStride) {
  Texts texts;
  for (int i = 0; i < 300000; ++i) texts.push_back("Smith " + std::to_string(i) + ", John");
  std::string commas, letters;
  for (int i = 0; i < 300000; ++i) {
    commas += i % 3 == 0 ? "," : "x";
    letters += static_cast<char>('a' + i % 26);
  }
  texts.insert(texts.end(), {commas, letters, commas.substr(1), letters.substr(1), " John"});
  // A linear search would exceed the time limit of a test.
  EXPECT_EQ(repeatedTexts(viewsOf(texts)), (Order{300002, 300003, 300004}));
}

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
