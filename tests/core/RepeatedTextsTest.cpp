#include <nvlist/core/repeatedTexts.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace norvane {
namespace {

using Places = std::vector<std::int32_t>;

Places searched(std::span<const std::string_view> texts) {
  Places result;
  std::string seen;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::string part = std::string(texts[i]) + ",";
    if (seen.find(part) != std::string::npos) {
      result.push_back(static_cast<std::int32_t>(i));
    } else {
      seen += part;
    }
  }
  return result;
}

std::vector<std::string_view> viewsOf(const std::vector<std::string>& texts) {
  return {texts.begin(), texts.end()};
}

TEST(RepeatedTexts, AgreesWithAPlainSearch) {
  std::mt19937 random(7);
  for (int round = 0; round < 4000; ++round) {
    const auto longest = 1 + random() % 12;
    const std::string_view alphabet =
        round % 2 == 0 ? std::string_view("aA,\0", 4) : std::string_view("abbbaa,\xA4");
    std::vector<std::string> texts(random() % 60);
    for (std::string& text : texts) {
      for (auto left = random() % (longest + 1); left > 0; --left)
        text += alphabet[random() % alphabet.size()];
    }
    const std::vector<std::string_view> views = viewsOf(texts);
    ASSERT_EQ(repeatedTexts(views), searched(views)) << testing::PrintToString(texts);
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
  const std::vector<std::string> texts = {word, opposite, word, "x," + word, "x," + opposite};
  EXPECT_EQ(repeatedTexts(viewsOf(texts)), Places{2});
}

TEST(RepeatedTexts, TakesManyAndLongTextsInItsStride) {
  std::vector<std::string> texts;
  for (int i = 0; i < 300000; ++i) texts.push_back("Smith " + std::to_string(i) + ", John");
  std::string commas, letters;
  for (int i = 0; i < 300000; ++i) {
    commas += i % 3 == 0 ? "," : "x";
    letters += static_cast<char>('a' + i % 26);
  }
  texts.insert(texts.end(), {commas, letters, commas.substr(1), letters.substr(1), " John"});
  // A linear search would exceed the time limit of a test.
  EXPECT_EQ(repeatedTexts(viewsOf(texts)), (Places{300002, 300003, 300004}));
}

}  // namespace
}  // namespace norvane
