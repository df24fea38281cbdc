#include <nvlist/values/Variant.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <utility>

#include <nvlist/values/numbers.h>

#include "../failureOf.h"

namespace norvane {
namespace {

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
  EXPECT_EQ(numberOf(" -12.5e1 "), -125);
  EXPECT_EQ(numberOf(".5"), 0.5);
  EXPECT_EQ(numberOf("&HFFFF"), -1);
  EXPECT_EQ(numberOf("&H0000FFFF"), 65535);
  for (const char* text : {"", "abc", "1a", "1 2", ".", "1e", "&HG", "&H-1", "0x10", "nan", "1,5"})
    EXPECT_FALSE(numberOf(text)) << text;
}

TEST(Variant, ConvertsAsHostsExpect) {
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
  EXPECT_EQ(failureOf([] { Variant(Ref<Object>()).toText(); }), 13);
  EXPECT_TRUE(Variant("fALSE").toBoolean() == Boolean(false));
  EXPECT_EQ(Variant(Boolean::ofNumber(2)).toBoolean().number(), 2);
}

TEST(Variant, ComparesTextsByByteAndNumbersByValue) {
  EXPECT_TRUE(compare("B", "a") < 0 && compare("10", "9") < 0);
  EXPECT_TRUE(compare("10", 9) > 0);
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

  struct Thing final : Object {};
  for (const Variant& none : {Variant(Ref<Object>()), Variant(Ref<Object>(makeRef<Thing>()))}) {
    EXPECT_FALSE(none.isNumeric());
    EXPECT_EQ(failureOf([&] { (void)none.toInt32(); }), 13);
    EXPECT_EQ(failureOf([&] { (void)none.toText(); }), 13);
  }
}

TEST(Variant, SharesTextsAndObjectsAndLetsThemGo) {
  struct Counted : Object {
    explicit Counted(int& count) : alive(count) { ++alive; }
    ~Counted() override { --alive; }
    int& alive;
  };
  int alive = 0;
  {
    Variant holder = Ref<Object>(makeRef<Counted>(alive));
    Variant copy = holder;
    holder = "a text long enough to stand on its own";
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(copy.object().get(), Variant(copy).object().get());
    copy = std::move(holder);
    EXPECT_EQ(alive, 0);
    EXPECT_TRUE(holder.isEmpty());
    const Variant twin = copy;
    EXPECT_EQ(copy.toText(), twin.text());
  }
  EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace norvane
