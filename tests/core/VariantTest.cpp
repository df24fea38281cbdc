#include <nvlist/values/Variant.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

int failureOf(auto&& statement) {
  try {
    statement();
    return 0;
  } catch (const Failure& failure) {
    return failure.number();
  }
}

TEST(Numbers, FloatsGoToTheNearestWholeNumberHalvesToTheEvenOne) {
  const auto nearest = [](double value) { return checked::nearest<std::int32_t>(value); };
  EXPECT_EQ(nearest(2.5), 2);
  EXPECT_EQ(nearest(3.5), 4);
  EXPECT_EQ(nearest(-3.5), -4);
  EXPECT_EQ(nearest(2147483647.4), 2147483647);
  EXPECT_EQ(nearest(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(failureOf([&] { nearest(2147483647.5); }), 6);
  EXPECT_EQ(failureOf([&] { nearest(std::nan("")); }), 6);
}

TEST(Numbers, ArithmeticNeverWrapsRound) {
  constexpr auto most = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(failureOf([] { checked::add(most, 1); }), 6);
  EXPECT_EQ(failureOf([] { checked::subtract(-2, most); }), 6);
  EXPECT_EQ(failureOf([] { checked::multiply(most, 2); }), 6);
  EXPECT_EQ(failureOf([] { checked::narrow<std::int16_t>(32768); }), 6);
  EXPECT_EQ(checked::narrow<std::int16_t>(-32768), -32768);
}

TEST(Numbers, ATextReadsAsANumberOnlyAsAWhole) {
  EXPECT_EQ(numberOf(" -12.5e1 "), -125);
  EXPECT_EQ(numberOf(".5"), 0.5);
  EXPECT_EQ(numberOf("&HFFFF"), -1);
  for (const char* text : {"", "abc", "1a", "1 2", ".", "1e", "&HG", "&H-1", "0x10", "nan", "1,5"})
    EXPECT_FALSE(numberOf(text)) << text;
}

TEST(Variant, ConvertsAsHostsExpect) {
  EXPECT_EQ(Variant().toInt32(), 0);
  EXPECT_EQ(Variant(true).toInt32(), -1);
  EXPECT_EQ(Variant("3.5").toInt32(), 4);
  EXPECT_EQ(failureOf([] { Variant("abc").toInt32(); }), 13);
  EXPECT_EQ(failureOf([] { Variant(1e10).toInt32(); }), 6);
  EXPECT_EQ(failureOf([] { Variant(40000).toInt16(); }), 6);
  EXPECT_EQ(failureOf([] { Variant(Ref<Object>()).toText(); }), 13);

  EXPECT_EQ(Variant().toText(), "");
  EXPECT_EQ(Variant(1.5).toText(), "1.5");
  EXPECT_EQ(Variant(Boolean::ofNumber(2)).toText(), "True");
  EXPECT_TRUE(Variant("fALSE").toBoolean() == Boolean(false));
  EXPECT_EQ(Variant(Boolean::ofNumber(2)).toBoolean().number(), 2);
}

TEST(Variant, ComparesTextsByByteAndNumbersByValue) {
  EXPECT_TRUE(compare("B", "a") < 0);
  EXPECT_TRUE(compare("10", "9") < 0);
  EXPECT_TRUE(compare("10", 9) > 0);
  EXPECT_TRUE(compare(Variant(), "") == 0);
  EXPECT_TRUE(compare(Variant(), 0) == 0);
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
    EXPECT_EQ(std::move(copy).toText(), twin.text());
  }
  EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace norvane
