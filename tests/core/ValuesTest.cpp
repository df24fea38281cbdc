#include <nvlist/values/Variant.h>
#include <nvlist/values/caseTables.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <utility>

#include "../failureOf.h"
#include "PlainMatcher.h"

namespace norvane {
namespace {

std::u32string stray(std::initializer_list<int> bytes) {
  std::u32string result;
  for (const int byte : bytes) result += firstStrayByte + static_cast<char32_t>(byte);
  return result;
}

TEST(Text, DecodesValidSequencesAndTakesOtherBytesOneByOne) {
  const std::pair<std::string_view, std::u32string> cases[] = {
      {{"a\0b", 3}, {U'a', U'\0', U'b'}},
      {"\xC2\x80\xDF\xBF", {0x80, 0x7FF}},
      {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", {0x800, 0xD7FF, 0xE000, 0xFFFF}},
      {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", {0x10000, 0x10FFFF}},
      {"\x80\xFF", stray({0x80, 0xFF})},
      {"\xE0\x9F\xBF", stray({0xE0, 0x9F, 0xBF})},
      {"\xED\xA0\x80", stray({0xED, 0xA0, 0x80})},
      {"\xF4\x90\x80\x80", stray({0xF4, 0x90, 0x80, 0x80})},
      {"\xE2\x82\xC3\xA4\xA4", stray({0xE2, 0x82}) + U"\u00E4" + stray({0xA4})}};
  for (const auto& [text, characters] : cases) {
    EXPECT_EQ(charactersOf(text), characters) << text;
    EXPECT_EQ(characterCount(text), characters.size());
  }
}

TEST(Text, DecodesBackwardsAndEncodesWhatItDecoded) {
  const std::string_view pieces[] = {"a", "\xC3", "\xE2", "\xF0", "\x9F", "\x98", "\x80", "\xED"};
  std::mt19937 random(1);
  for (int round = 0; round < 20000; ++round) {
    std::string text, encoded;
    for (auto left = random() % 9; left > 0; --left) text += pieces[random() % 8];
    std::u32string backward;
    for (std::size_t at = text.size(); at > 0;) backward += decodePrevious(text, at);
    std::u32string forward = charactersOf(text);
    for (const char32_t character : forward) appendUtf8(encoded, character);
    ASSERT_EQ(encoded, text);
    ASSERT_EQ(std::u32string(backward.rbegin(), backward.rend()), forward);
  }
}

TEST(Text, MapsCaseOneToOne) {
  EXPECT_EQ(upperCase("az{@\xC3\xA4\xC3\xBF\xC3\x9F\xCF\x82\xD1\x8F\xF0\x90\x90\xA8 \xC3\xE2\x82"),
            "AZ{@\xC3\x84\xC5\xB8\xC3\x9F\xCE\xA3\xD0\xAF\xF0\x90\x90\x80 \xC3\xE2\x82");
  const std::tuple<char32_t, char32_t, char32_t> cases[] = {
      {0x1E9E, 0x1E9E, 0x00DF}, {0x0130, 0x0130, 0x0130}, {0x0131, U'I', 0x0131},
      {0x03C2, 0x03A3, 0x03C3}, {0x01C5, 0x01C4, 0x01C6}, {0x1F88, 0x1F88, 0x1F80},
      {0x212A, 0x212A, U'k'},   {U'[', U'[', U'['},       {0x1E921, 0x1E921, 0x1E943}};
  for (const auto& [character, upper, folded] : cases) {
    EXPECT_EQ(upperCase(character), upper) << std::hex << static_cast<unsigned>(character);
    EXPECT_EQ(foldCase(character), folded) << std::hex << static_cast<unsigned>(character);
  }
  for (const auto table : {upperCaseTable(), foldCaseTable()})
    for (std::size_t i = 1; i < table.size(); ++i) EXPECT_LT(table[i - 1].last, table[i].first);
}

constexpr auto least = std::numeric_limits<std::int32_t>::min();
constexpr auto most = std::numeric_limits<std::int32_t>::max();

TEST(Numbers, AreRoundedToEvenAndNeverWrapRound) {
  const auto nearest = [](double value) { return checked::nearest<std::int32_t>(value); };
  for (const auto& [value, whole] :
       {std::pair(2.5, 2), {3.5, 4}, {-3.5, -4}, {most + 0.4, most}, {least - 0.5, least}})
    EXPECT_EQ(nearest(value), whole);
  EXPECT_EQ(checked::narrow<std::int16_t>(-32768), -32768);
  const std::function<void()> overflows[] = {
      [&] { nearest(most + 0.5); },       [&] { nearest(std::nan("")); },
      [] { checked::add(most, 1); },      [] { checked::subtract(-2, most); },
      [] { checked::multiply(most, 2); }, [] { checked::narrow<std::int16_t>(32768); }};
  for (const auto& overflow : overflows) EXPECT_EQ(failureOf(overflow), 6);
}

TEST(Numbers, AreReadFromWholeTextsOnly) {
  for (const auto& [text, number] :
       {std::pair(" -12.5e1 ", -125.0), {".5", 0.5}, {"&HFFFF", -1}, {"&H0000FFFF", 65535}})
    EXPECT_EQ(numberOf(text), number) << text;
  for (const char* text : {"", "abc", "1a", "1 2", ".", "1e", "&HG", "&H-1", "0x10", "nan", "1,5"})
    EXPECT_FALSE(numberOf(text)) << text;
}

TEST(Variant, ConvertsAndComparesAsHostsExpect) {
  for (const auto& [value, number] :
       {std::pair(Variant(), 0), {true, -1}, {"3.5", 4}, {2.5F, 2}, {"&HFFFF", -1}})
    EXPECT_EQ(value.toInt32(), number);
  for (const auto& [value, text] : {std::pair(Variant(), ""),
                                    {1.5, "1.5"},
                                    {-7, "-7"},
                                    {Boolean::ofNumber(2), "True"},
                                    {"x", "x"}})
    EXPECT_EQ(value.toText(), text);
  EXPECT_EQ(failureOf([] { Variant("abc").toInt32(); }), 13);
  EXPECT_EQ(failureOf([] { Variant(1e10).toInt32(); }), 6);
  EXPECT_EQ(failureOf([] { Variant(40000).toInt16(); }), 6);
  EXPECT_TRUE(Variant("fALSE").toBoolean() == Boolean(false));
  EXPECT_EQ(Variant(Boolean::ofNumber(2)).toBoolean().number(), 2);

  // Texts by byte, a text and a number by value.
  EXPECT_TRUE(compare("B", "a") < 0 && compare("10", "9") < 0 && compare("10", 9) > 0);
  EXPECT_TRUE(compare(Variant(), "") == 0 && compare(Variant(), 0) == 0);
  EXPECT_EQ(failureOf([] { (void)(compare("abc", 1) == 0); }), 13);
}

TEST(Variant, AnObjectMayBeAValue) {
  struct Date final : Object {
    bool isNumeric() const override { return true; }
    double toNumber() const override { return 46347.5; }
    std::string toText() const override { return "21.11.2026"; }
  };
  const Variant date = Ref<Object>(makeRef<Date>());
  EXPECT_TRUE(date.isNumeric());
  EXPECT_EQ(date.toInt32(), 46348);
  EXPECT_EQ(date.toText(), "21.11.2026");
  EXPECT_TRUE(compare("46347.5", date) == 0);
  for (const Variant& none : {Variant(Ref<Object>()), Variant(Ref<Object>(makeRef<Object>()))}) {
    EXPECT_FALSE(none.isNumeric());
    EXPECT_EQ(failureOf([&] { (void)none.toInt32(); }), 13);
    EXPECT_EQ(failureOf([&] { (void)none.toText(); }), 13);
  }
}

}  // namespace
}  // namespace norvane
