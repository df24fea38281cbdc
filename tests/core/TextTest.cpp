#include <nvlist/values/caseTables.h>
#include <nvlist/values/text.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace norvane {
namespace {

std::u32string decoded(std::string_view text) {
  std::u32string result;
  for (std::size_t at = 0; at < text.size();) result += decodeNext(text, at);
  return result;
}

std::u32string stray(std::initializer_list<int> bytes) {
  std::u32string result;
  for (const int byte : bytes) result += firstStrayByte + static_cast<char32_t>(byte);
  return result;
}

TEST(Text, DecodesValidSequencesAndTakesOtherBytesOneByOne) {
  const struct {
    std::string_view text;
    std::u32string characters;
  } cases[] = {
      {{"a\0b", 3}, {U'a', U'\0', U'b'}},
      {"\xC2\x80\xDF\xBF", {0x80, 0x7FF}},
      {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", {0x800, 0xD7FF, 0xE000, 0xFFFF}},
      {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", {0x10000, 0x10FFFF}},
      {"\x80\xFF", stray({0x80, 0xFF})},
      {"\xE0\x9F\xBF", stray({0xE0, 0x9F, 0xBF})},
      {"\xED\xA0\x80", stray({0xED, 0xA0, 0x80})},
      {"\xF4\x90\x80\x80", stray({0xF4, 0x90, 0x80, 0x80})},
      {"\xE2\x82\xC3\xA4", stray({0xE2, 0x82}) + U"\u00E4"},
      {"\xC3\xA4\xA4", U"\u00E4" + stray({0xA4})},
  };
  for (const auto& [text, characters] : cases) {
    EXPECT_EQ(decoded(text), characters) << text;
    EXPECT_EQ(characterCount(text), characters.size());
  }
}

TEST(Text, DecodesBackwardsAndEncodesWhatItDecoded) {
  const std::string_view pieces[] = {"a", "\xC3", "\xE2", "\xF0", "\x9F", "\x98", "\x80", "\xED"};
  std::mt19937 random(1);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (auto left = random() % 9; left > 0; --left) text += pieces[random() % 8];
    const std::u32string forward = decoded(text);
    std::string encoded;
    for (const char32_t character : forward) appendUtf8(encoded, character);
    ASSERT_EQ(encoded, text);
    std::size_t at = text.size();
    for (auto it = forward.rbegin(); it != forward.rend(); ++it) {
      ASSERT_GT(at, 0u);
      ASSERT_EQ(decodePrevious(text, at), *it);
    }
    ASSERT_EQ(at, 0u);
  }
}

TEST(Text, MapsCaseOneToOne) {
  EXPECT_EQ(upperCase("az{@\xC3\xA4\xC3\xBF\xC3\x9F\xCF\x82\xD1\x8F\xF0\x90\x90\xA8 \xC3\xE2\x82"),
            "AZ{@\xC3\x84\xC5\xB8\xC3\x9F\xCE\xA3\xD0\xAF\xF0\x90\x90\x80 \xC3\xE2\x82");
  const struct {
    char32_t character;
    char32_t upper;
    char32_t folded;
  } cases[] = {
      {U'[', U'[', U'['},       {0x00C4, 0x00C4, 0x00E4},    {0x00DF, 0x00DF, 0x00DF},
      {0x1E9E, 0x1E9E, 0x00DF}, {0x0130, 0x0130, 0x0130},    {0x0131, U'I', 0x0131},
      {0x03C2, 0x03A3, 0x03C3}, {0x01C5, 0x01C4, 0x01C6},    {0x1F88, 0x1F88, 0x1F80},
      {0x212A, 0x212A, U'k'},   {0x1E921, 0x1E921, 0x1E943},
  };
  for (const auto& [character, upper, folded] : cases) {
    EXPECT_EQ(upperCase(character), upper) << std::hex << static_cast<unsigned>(character);
    EXPECT_EQ(foldCase(character), folded) << std::hex << static_cast<unsigned>(character);
  }
}

TEST(Text, CaseTablesAreInOrderAndSettled) {
  for (const auto table : {upperCaseTable(), foldCaseTable()}) {
    for (std::size_t i = 1; i < table.size(); ++i) EXPECT_LT(table[i - 1].last, table[i].first);
    for (const CaseRow& row : table) {
      EXPECT_EQ((row.last - row.first) % row.step, 0u);
      const char32_t mapped = mapCase(table, row.last);
      EXPECT_NE(mapped, row.last);
      EXPECT_EQ(mapCase(table, mapped), mapped);
    }
  }
}

}  // namespace
}  // namespace norvane
