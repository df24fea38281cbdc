#include "../HearingList.h"

#include <limits>

namespace norvane {
namespace {

class Selection : public HearingListTest {
 protected:
  void select(std::initializer_list<int> indexes) {
    for (const int index : indexes) list.ItemSelected(index, true);
  }
};

TEST_F(Selection, WhatCannotBeCurrentIsRefused) {
  heard();
  for (const int index : {0, 5, -1}) list.ListIndex(index);
  EXPECT_EQ(heard(), "");

  fill(3);
  list.ItemEnabled(1, false);
  list.ListIndex(2);
  heard();
  onWrongIndex = [](Variant& Index) { Index = 0; };
  for (const int index : {3, -1, 1, std::numeric_limits<std::int32_t>::max()})
    list.ListIndex(index);
  EXPECT_EQ(heard(), "(3)(-1)(1)(2147483647)");
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(selected(), "2");
}

TEST_F(Selection, AHandlerOfARefusalMayDoWhatItLikes) {
  fill(5);
  const auto refuse = [&](std::function<void(Variant&)> handler) {
    list.ListIndex(2);
    onWrongIndex = std::move(handler);
    list.ListIndex(9);
    return now();
  };
  EXPECT_EQ(refuse([&](Variant&) { list.ListIndex(4); }), "4: 4");
  EXPECT_EQ(refuse([&](Variant& Index) {
              if (Index.toInt32() < 20) list.ListIndex(Index.toInt32() + 1);
            }),
            "2: 2");
  EXPECT_EQ(refuse([](Variant&) { throw Failure(1000, "own"); }), "2: 2");
  EXPECT_EQ(reports(), "1000 ListIndex");
  EXPECT_EQ(refuse([&](Variant&) { list.ItemsClear(); }), "0: ");
}

TEST_F(Selection, TheCurrentItemIsSelectedAlone) {
  fill(5);
  list.MultiSelect(true);
  for (int i = 0; i < 2; ++i) {
    select({0, 1, 3});
    EXPECT_EQ(selected(), "0 1 3");
    heard();
    list.ListIndex(1);
    EXPECT_EQ(selected(), "1");
    EXPECT_EQ(heard(), "ListIndex*");
  }
  list.AutoRedraw(false);
  list.ListIndex(1);
  EXPECT_EQ(heard(), "AutoRedraw ListIndex");

  onPropertyChanged = [] { throw Failure(1000, "own"); };
  list.ListIndex(2);
  EXPECT_EQ(reports(), "1000 ListIndex");
  EXPECT_EQ(selected(), "2");
}

TEST_F(Selection, TheCurrentItemScrollsIntoTheWindow) {
  fill(100);
  ASSERT_EQ(list.VisibleItems(), 10);
  const struct {
    int top, index, newTop;
  } cases[] = {{0, 50, 50}, {0, 95, 86}, {0, 10, 10}, {0, 89, 80}, {50, 49, 49}, {50, 59, 50}};
  for (const auto& c : cases) {
    list.TopIndex(c.top);
    heard();
    list.ListIndex(c.index);
    EXPECT_EQ(list.TopIndex(), c.newTop) << c.top << " " << c.index;
    EXPECT_EQ(heard(), c.top == c.newTop ? "ListIndex*" : "ListIndex TopIndex**");
  }
}

TEST_F(Selection, AnAssignmentWithoutScrollArmsTheNext) {
  // A list that was never started is not armed.
  HeadlessContainer place(200, 133);
  nvList own(place);
  for (int i = 0; i < 100; ++i) own.ItemsAdd(i);
  own.ListIndex(-1);
  own.ListIndex(50);
  EXPECT_EQ(own.TopIndex(), 0);
  own.ListIndex(50);
  EXPECT_EQ(own.TopIndex(), 50);
}

TEST_F(Selection, SelectingAnItemStoresTheTruthValueAsListIndex) {
  fill(100);
  list.ListIndex(1);
  heard();
  select({5});
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(selected(), "1 5");
  EXPECT_EQ(heard(), "ItemSelected*");
  list.ItemSelected(1, false);
  EXPECT_EQ(list.ListIndex(), 0);

  const struct {
    int top;
    Variant index;
    bool value;
    int newTop;
  } cases[] = {{0, 9, true, 0}, {0, 95, true, 90}, {50, "49", true, 49}, {50, 70, false, 50}};
  for (const auto& c : cases) {
    list.TopIndex(c.top);
    list.ItemSelected(c.index, c.value);
    EXPECT_EQ(list.TopIndex(), c.newTop) << c.top << " " << c.index.toText();
  }
  // The visible rows follow the bar, whose value a corrected TopIndex does not change.
  list.AutoCheckScroll(false);
  fill(20);
  select({3});
  EXPECT_EQ(list.TopIndex(), 3);
}

TEST_F(Selection, ABadIndexIsAFailure) {
  fill(100);
  for (const Variant& bad : {Variant("x"), Variant(100)}) {
    const std::string report = bad.isText() ? "13 ItemSelected" : "9 ItemSelected";
    heard();
    list.ItemSelected(bad, true);
    EXPECT_FALSE(list.ItemSelected(bad));
    EXPECT_EQ(reports(), report + ", " + report);
    EXPECT_EQ(heard(), "");
  }
}

TEST_F(Selection, EveryMarkIsFoundAgain) {
  const std::function<void()> cases[] = {
      [&] { select({4}), list.ItemsRemove(0); },
      [&] { select({4}), list.ItemsRemove(4), select({1}), list.ItemsAdd("x", 1); },
      [&] {
        select({1, 3}), list.ItemSelected(3, false);
      },
      [&] { list.ItemsClear(), select({0}), list.ItemsAdd("a"), select({0}); }};
  for (const auto& prepare : cases) {
    fill(5);
    list.AutoRedraw(false);
    prepare();
    list.ListIndex(0);
    EXPECT_EQ(selected(), item(0).Text) << &prepare - cases;
  }
}

TEST_F(Selection, RemovingTheSelectedLeavesTheOthersAndGoesToTheTop) {
  for (int set = 0; set < 1 << 5; ++set) {
    fill(5);
    list.AutoRedraw(set % 3 != 0);
    for (int i = 0; i < 5; ++i) list.ItemSelected(i, (set >> i & 1) != 0);
    std::string others;
    for (int i = 0; i < 5; ++i)
      if (!item(i).Selected) others += (others.empty() ? "" : " ") + item(i).Text;
    list.ItemsSelectedRemove();
    EXPECT_EQ(texts(), others);
  }
  fill(40);
  list.TopIndex(20);
  select({24, 25});
  // The yields of a removal come first, then one for each item and two at the end.
  for (int i = 0; i < 15 + 14 + 40 + 2 + 1; ++i) headless.container().post({});
  heard();
  list.ItemsSelectedRemove();
  EXPECT_EQ(headless.container().waiting(), 1U);
  EXPECT_EQ(heard(), "** TopIndex**");
  EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(Selection, HandlersMoveTheSweep) {
  const auto disturb = [&](std::function<void()> handler) {
    fill(4);
    list.AutoRedraw(false);
    select({2, 3});
    headless.container().post(std::move(handler));
    list.ItemsSelectedRemove();
    return texts();
  };
  EXPECT_EQ(disturb([&] { list.ItemsAdd("end"); }), "0 1 end");
  EXPECT_EQ(disturb([&] { list.ItemsAdd("front", 0); }), "front 0 1 2 3");
  EXPECT_EQ(disturb([&] { list.ItemsClear(); }), "");
  EXPECT_EQ(reports(), "");
  EXPECT_EQ(disturb([&] { list.ItemsRemove(0); }), "1");
  EXPECT_EQ(reports(), "9 ItemsSelectedRemove");
  silent();
  EXPECT_EQ(disturb([&] { list.ItemsRemove(0); }), "1");
}

}  // namespace
}  // namespace norvane
