#include "../Lists.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace norvane {
namespace {

/// A list of ten rows that writes down what it tells its host, in order.
class Selection : public ListTest, public __nvList {
 protected:
  Selection() {
    headless.resize(200, 133);
    headless.container().onPropertyChanged = [this](std::string_view name) {
      told += std::string(name) + " ";
      if (onPropertyChanged) onPropertyChanged();
    };
    list.addSink(*this);
  }

  void ErrorWrongIndex(Variant& Index) override {
    EXPECT_EQ(Index.type(), Variant::Type::Int32);
    told += "wrong " + Index.toText() + " ";
    if (onWrongIndex) onWrongIndex(Index);
  }

  void Click() override { told += "Click "; }

  void fill(int count) {
    list.AutoRedraw(false);
    for (int i = 0; i < count; ++i) list.ItemsAdd(i);
    list.AutoRedraw(true);
    heard();
  }

  /// What the host was told since the last call, and a * for each repaint.
  std::string heard() {
    const int now = headless.surface().frames();
    std::string result = std::exchange(told, {}) + std::string(now - frames, '*');
    frames = now;
    return result;
  }

  /// The selected items, by their texts.
  std::string selected() {
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i)
      if (item(i).Selected) result += (result.empty() ? "" : " ") + item(i).Text;
    return result;
  }

  std::function<void()> onPropertyChanged;
  std::function<void(Variant&)> onWrongIndex;
  std::string told;
  int frames = 0;
};

TEST_F(Selection, WhatCannotBeCurrentIsRefused) {
  heard();
  for (const int index : {0, 5, -1}) list.ListIndex(index);
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(list.ListIndex(), 0);

  fill(3);
  list.ItemEnabled(1, false);
  list.ListIndex(2);
  heard();
  onWrongIndex = [](Variant& Index) { Index = 0; };
  for (const int index : {3, -1, 1, std::numeric_limits<std::int32_t>::max()})
    list.ListIndex(index);
  EXPECT_EQ(heard(), "wrong 3 wrong -1 wrong 1 wrong 2147483647 ");
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(selected(), "2");
}

TEST_F(Selection, TheCurrentItemIsSelectedAlone) {
  fill(5);
  list.MultiSelect(true);
  for (const int index : {0, 1, 3}) list.ItemSelected(index, true);
  EXPECT_EQ(selected(), "0 1 3");
  heard();
  list.ListIndex(1);
  EXPECT_EQ(selected(), "1");
  EXPECT_EQ(heard(), "ListIndex *");
  list.ItemSelected(4, true);
  list.ListIndex(1);
  EXPECT_EQ(selected(), "1");
  list.AutoRedraw(false);
  heard();
  list.ListIndex(1);
  EXPECT_EQ(heard(), "ListIndex ");
  EXPECT_EQ(list.state().LoopIndex, 10);
}

TEST_F(Selection, TheCurrentItemScrollsIntoTheWindow) {
  fill(100);
  ASSERT_EQ(list.VisibleItems(), 10);
  struct Case {
    int top, index, newTop;
  };
  const Case cases[] = {{0, 50, 50}, {0, 95, 86},  {0, 10, 10},  {0, 88, 88},
                        {0, 89, 80}, {0, 99, 90},  {50, 60, 60}, {50, 49, 49},
                        {50, 0, 0},  {50, 59, 50}, {50, 50, 50}};
  for (const Case& c : cases) {
    list.TopIndex(c.top);
    heard();
    list.ListIndex(c.index);
    EXPECT_EQ(list.TopIndex(), c.newTop) << c.top << " " << c.index;
    EXPECT_EQ(list.state().VScroll1.Value, c.newTop);
    EXPECT_EQ(heard(), c.top == c.newTop ? "ListIndex *" : "ListIndex TopIndex **");
    EXPECT_EQ(selected(), std::to_string(c.index));
  }
  list.ItemsClear();
  fill(3);
  list.TopIndex(0);
  EXPECT_EQ(list.TopIndex(), -7);
  list.ListIndex(2);
  list.ListIndex(0);
  EXPECT_EQ(list.TopIndex(), -7);
}

TEST_F(Selection, AnAssignmentWithoutScrollArmsTheNext) {
  // Before its start a list is not armed.
  HeadlessContainer container(200, 133);
  nvList own(container);
  own.AutoRedraw(false);
  for (int i = 0; i < 100; ++i) own.ItemsAdd(i);
  own.ListIndex(-1);
  EXPECT_FALSE(own.state().ClickPending);
  own.ListIndex(50);
  EXPECT_EQ(own.TopIndex(), 0);
  EXPECT_EQ(own.state().LoopIndex, 100);
  EXPECT_TRUE(own.state().ClickPending.isTrue());
  own.ListIndex(50);
  EXPECT_EQ(own.TopIndex(), 50);
}

TEST_F(Selection, AFailureLeavesTheChangeInTheMiddle) {
  fill(100);
  list.ListIndex(1);
  heard();
  onPropertyChanged = [this] {
    EXPECT_NE(list.ListIndex(), 1);
    throw Failure(1000, "own");
  };
  list.ListIndex(50);
  EXPECT_EQ(reports(), "1000 ListIndex");
  EXPECT_EQ(heard(), "ListIndex ");
  EXPECT_EQ(list.ListIndex(), 50);
  EXPECT_EQ(selected(), "50");
  silent();
  list.ListIndex(40);
  EXPECT_EQ(heard(), "ListIndex TopIndex **");
  EXPECT_EQ(list.TopIndex(), 40);
}

TEST_F(Selection, AHandlerOfARefusalMayDoWhatItLikes) {
  fill(5);
  const auto refuse = [&](std::function<void(Variant&)> handler) {
    list.ListIndex(2);
    onWrongIndex = std::move(handler);
    list.ListIndex(77);
    return std::to_string(list.ListIndex()) + ": " + selected();
  };
  EXPECT_EQ(refuse([&](Variant&) { list.ListIndex(4); }), "4: 4");
  EXPECT_EQ(refuse([&](Variant& Index) {
              if (Index.toInt32() > -3) list.ListIndex(std::min(Index.toInt32(), 0) - 1);
            }),
            "2: 2");
  EXPECT_EQ(refuse([](Variant&) { throw Failure(1000, "own"); }), "2: 2");
  EXPECT_EQ(reports(), "1000 ListIndex");

  // A host that leaves hears nothing more, one that comes hears the next event.
  struct Counter : __nvList {
    void ErrorWrongIndex(Variant&) override { ++count; }
    int count = 0;
  } leaving, coming;
  list.addSink(leaving);
  EXPECT_EQ(refuse([&](Variant&) {
              list.removeSink(*this);
              list.removeSink(leaving);
              list.addSink(coming);
            }),
            "2: 2");
  list.ListIndex(77);
  EXPECT_EQ(leaving.count, 0);
  EXPECT_EQ(coming.count, 1);
  list.addSink(*this);
  EXPECT_EQ(refuse([&](Variant&) { list.ItemsClear(); }), "0: ");
  EXPECT_EQ(reports(), "");
}

TEST_F(Selection, SelectingAnItemStoresTheTruthValueAsListIndex) {
  fill(100);
  list.ListIndex(1);
  heard();
  list.ItemSelected(5, true);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(selected(), "1 5");
  EXPECT_EQ(heard(), "ItemSelected *");
  list.ItemSelected(1, false);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_FALSE(list.ItemSelected(1));
  list.ItemSelected("1", Boolean::ofNumber(7));
  EXPECT_EQ(list.ListIndex(), 7);
  EXPECT_EQ(list.ItemSelected(0.6).number(), 7);

  struct Case {
    int top;
    Variant index;
    bool value;
    int newTop;
  };
  const Case cases[] = {{0, 9, true, 0},     {0, 10, true, 10},  {0, 95, true, 90},
                        {50, 49, true, 49},  {50, 50, true, 50}, {50, 59.5, true, 60},
                        {50, 70, false, 50}, {50, 0, false, 50}};
  for (const Case& c : cases) {
    list.TopIndex(c.top);
    list.ItemSelected(c.index, c.value);
    EXPECT_EQ(list.TopIndex(), c.newTop) << c.top << " " << c.index.toText();
  }
}

TEST_F(Selection, TheWindowOfASelectedItemIsTheBars) {
  fill(40);
  list.TopIndex(30);
  list.AutoCheckScroll(false);
  list.AutoRedraw(false);
  for (int i = 0; i < 15; ++i) list.ItemsRemove(0);
  list.AutoRedraw(true);
  ASSERT_EQ(list.TopIndex(), 0);
  list.ItemSelected(3, true);
  EXPECT_EQ(list.TopIndex(), 3);
}

TEST_F(Selection, ABadIndexIsAFailure) {
  fill(100);
  list.ListIndex(1);
  heard();
  for (const Variant& bad : {Variant("x"), Variant(-1), Variant(100)}) {
    Error().SilentError(false);
    list.ItemSelected(bad, true);
    EXPECT_FALSE(list.ItemSelected(bad));
    const std::string report = bad.isText() ? "13 ItemSelected" : "9 ItemSelected";
    EXPECT_EQ(reports(), report + ", " + report);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(heard(), "");
    silent();
    list.ItemSelected(bad, true);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(heard(), bad.isText() ? "ItemSelected *" : "ItemSelected TopIndex **");
    list.ListIndex(1);
    EXPECT_EQ(selected(), "1");
    heard();
  }
}

TEST_F(Selection, EveryMarkIsFoundAgain) {
  const auto select = [&](std::initializer_list<int> indexes) {
    for (const int index : indexes) list.ItemSelected(index, true);
  };
  const std::function<void()> cases[] = {
      [&] { select({2}), list.ItemsAdd("x", 0); },
      [&] { select({2}), list.ItemsRemove(0); },
      [&] { select({4}), list.ItemsRemove(0); },
      [&] { select({4}), list.ItemsRemove(4), select({1}), list.ItemsAdd("x", 1); },
      [&] {
        select({1, 3}), list.ItemsRemove(3);
      },
      [&] {
        select({1, 3}), list.ItemSelected(3, false);
      },
      [&] {
        list.ItemsClear(), select({0}), add({"a", "b"}), select({1});
      }};
  for (const auto& prepare : cases) {
    list.ItemsClear();
    fill(5);
    list.AutoRedraw(false);
    prepare();
    list.ListIndex(0);
    EXPECT_EQ(selected(), item(0).Text) << &prepare - cases;
    list.AutoRedraw(true);
    list.ItemsAdd("new");
    EXPECT_EQ(selected(), "") << &prepare - cases;
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(Selection, ASelectedItemIsNotKeptAlive) {
  struct Token : Object {
    explicit Token(bool& gone) : isGone(gone) {}
    ~Token() override { isGone = true; }
    bool& isGone;
  };
  bool isGone = false;
  fill(3);
  list.ItemTag(0, Ref<Object>(new Token(isGone)));
  list.ItemSelected(0, true);
  headless.container().post([&] { EXPECT_TRUE(isGone); });
  list.ItemsRemove(0);
  EXPECT_TRUE(isGone);
}

TEST_F(Selection, RemovingTheSelectedLeavesTheOthers) {
  for (int set = 0; set < 1 << 5; ++set) {
    list.ItemsClear();
    fill(5);
    list.AutoRedraw(set % 3 != 0);
    std::string others;
    for (int i = 0; i < 5; ++i) {
      if (set >> i & 1)
        list.ItemSelected(i, true);
      else
        others += (others.empty() ? "" : " ") + std::to_string(i);
    }
    list.ItemsSelectedRemove();
    EXPECT_EQ(texts(), others);
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(Selection, RemovingTheSelectedRepaintsYieldsAndGoesToTheTop) {
  fill(40);
  list.TopIndex(20);
  for (const int index : {24, 25}) list.ItemSelected(index, true);
  heard();
  list.ItemsSelectedRemove();
  EXPECT_EQ(heard(), "TopIndex ****");
  EXPECT_EQ(list.TopIndex(), 0);

  list.ItemsClear();
  list.ItemsSelectedRemove();
  fill(3);
  list.ItemSelected(2, true);
  // One an item, and two at the end.
  for (int i = 0; i < 6; ++i) headless.container().post({});
  list.ItemsSelectedRemove();
  EXPECT_EQ(headless.container().waiting(), 1U);
}

TEST_F(Selection, HandlersMoveTheSweep) {
  const auto disturb = [&](std::function<void()> handler) {
    list.ItemsClear();
    fill(4);
    list.AutoRedraw(false);
    for (const int index : {2, 3}) list.ItemSelected(index, true);
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
  EXPECT_EQ(disturb([] { throw Failure(1000, "own"); }), "0 1 2 3");
  EXPECT_EQ(reports(), "1000 ItemsSelectedRemove");
  silent();
  EXPECT_EQ(disturb([&] { list.ItemsRemove(0); }), "1");
  EXPECT_EQ(disturb([] { throw Failure(1000, "own"); }), "0 1");
}

}  // namespace
}  // namespace norvane
