#include "../Lists.h"

#include <limits>

namespace norvane {
namespace {

using Items = ListTest;

TEST_F(Items, ANewListIsEmptyWithItsDefaults) {
  const ListState& state = list.state();
  EXPECT_EQ(list.ItemsCount(), 0);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(state.SelectAnchor, -1);
  EXPECT_TRUE(state.ClickPending.isTrue());
  EXPECT_EQ(state.ItemHeightValue, 13);
  EXPECT_EQ(headless.picture(), "Cls\n");
  EXPECT_NE(list.Font(), headless.container().ambientFont);
}

TEST_F(Items, AnAddedItemHasEveryFieldWritten) {
  list.ItemsAdd("plain");
  const ListItem& plain = item(0);
  EXPECT_EQ(plain.ForeColor.text(), "def");
  EXPECT_EQ(plain.BackColorSelect.text(), "def");
  EXPECT_EQ(plain.ForeColorDis, static_cast<Colour>(0x80000011));
  EXPECT_EQ(plain.BackColorDis, static_cast<Colour>(0x80000016));
  EXPECT_TRUE(plain.Enabled.isTrue());
  EXPECT_TRUE(plain.Tag.isText());

  list.ItemsAdd(1.5, -1, nullptr, nullptr, true, 1, 2, true, cRight, 3, 4, false, 5, "6", 7, true,
                false, true, 8);
  const ListItem& full = item(1);
  EXPECT_EQ(full.Text, "1.5");
  EXPECT_TRUE(full.Checked && full.AllowEdit && full.Bold && full.Underline);
  EXPECT_FALSE(full.Enabled || full.Italic || full.Selected);
  EXPECT_EQ(full.ForeColor.toInt32(), 1);
  EXPECT_EQ(full.BackColor.toInt32(), 2);
  EXPECT_EQ(full.ForeColorSelect.toInt32(), 3);
  EXPECT_EQ(full.BackColorSelect.toInt32(), 4);
  EXPECT_EQ(full.Tag.toInt32(), 5);
  EXPECT_EQ(full.ForeColorDis, 6);
  EXPECT_EQ(full.BackColorDis, 7);
  EXPECT_EQ(full.Alignment, cRight);
  EXPECT_EQ(full.Key, "8");
}

TEST_F(Items, AnIndexSaysWhereAnItemGoes) {
  struct Case {
    Variant index;
    const char* result;
    int newIndex;
  };
  const Case cases[] = {{-1, "a b c x", 3},        {3, "a b c x", 3},   {99, "a b c x", 3},
                        {-7, "a b c x", 3},        {2, "a b x c", 2},   {0, "x a b c", 0},
                        {Variant(), "x a b c", 0}, {"1", "a x b c", 1}, {1.5, "a b x c", 2},
                        {true, "a b c x", 3},      {1.4, "a x c c", 1}, {"0.5", "x b b c", 0},
                        {2.5, "a b x x", 2}};
  for (const Case& c : cases) {
    list.ItemsClear();
    list.ItemsAdd("a", 99);
    EXPECT_EQ(list.NewIndex(), 0);
    add({"b", "c"});
    list.ItemsAdd("x", c.index);
    EXPECT_EQ(texts(), c.result) << c.index.toText();
    EXPECT_EQ(list.NewIndex(), c.newIndex) << c.index.toText();
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, AnIndexThatIsNoNumberLeavesTheItemAtTheEnd) {
  add({"a", "b"});
  list.ItemsAdd("x", "front");
  EXPECT_EQ(reports(), "13 ItemsAdd");
  EXPECT_EQ(list.ItemsCount(), 3);
  EXPECT_EQ(item(2).Text, "");
  EXPECT_EQ(list.NewIndex(), 1);

  silent();
  const std::int32_t width = list.state().MaxItemWidth;
  list.ItemsAdd("y", "front");
  EXPECT_EQ(texts(), "a b  y");
  EXPECT_EQ(list.state().MaxItemWidth, width + 4);
  EXPECT_EQ(list.NewIndex(), 1);
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, AColourThatIsNoNumberEndsTheWritingThere) {
  const NewItem bad{.aText = "x", .aBackColorDis = "def", .aBold = true, .aKey = "k"};
  list.ItemsAdd(bad);
  EXPECT_EQ(reports(), "13 ItemsAdd");
  EXPECT_EQ(item(0).Text, "x");
  EXPECT_EQ(item(0).ForeColorDis, colours::greyText);
  EXPECT_FALSE(item(0).Bold);

  silent();
  list.ItemsAdd(bad);
  EXPECT_EQ(item(1).BackColorDis, 0);
  EXPECT_TRUE(item(1).Bold);
  EXPECT_EQ(item(1).Key, "k");
}

TEST_F(Items, OnlyAutoRedrawDropsTheCurrentItem) {
  list.AutoRedraw(false);
  add({"a", "b"});
  EXPECT_EQ(list.ListIndex(), 0);
  list.AutoRedraw(Boolean::ofNumber(1));
  list.ItemsAdd("c");
  EXPECT_EQ(list.ListIndex(), 0);
  list.AutoRedraw(true);
  list.ItemsAdd("d");
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.state().SelectAnchor, -1);
}

TEST_F(Items, MassAddingStopsPaintingPastTheLimit) {
  // 100 / 13 + 13 is a little more than 20 rows.
  const int before = headless.surface().frames();
  for (int i = 0; i < 50; ++i) list.ItemsAdd(i);
  EXPECT_EQ(headless.surface().frames() - before, 20);
}

TEST_F(Items, RemovingKeepsTheOthersAndTheIndexesAsTheyWere) {
  add({"a", "b", "c", "d"});
  Variant index = "1";
  list.ItemsRemove(index);
  EXPECT_EQ(index.type(), Variant::Type::Int32);
  EXPECT_EQ(texts(), "a c d");
  list.ItemsRemove(2);
  EXPECT_EQ(texts(), "a c");
  for (const Variant& bad : {Variant(-1), Variant(2), Variant("x"), Variant(1.1), Variant(1e20)})
    list.ItemsRemove(Variant(bad));
  EXPECT_EQ(texts(), "a c");
  EXPECT_EQ(list.NewIndex(), 3);
  EXPECT_EQ(list.ListIndex(), -1);
  list.ItemsRemove(0);
  list.ItemsRemove(0);
  EXPECT_EQ(list.ItemsCount(), 0);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, RemovingYieldsOnceAMovedItem) {
  list.AutoRedraw(false);
  add({"a", "b", "c", "d", "e"});
  for (int i = 0; i < 4; ++i) headless.container().post({});
  headless.container().post([&] { FAIL() << "one yield too many"; });
  list.ItemsRemove(0);
  EXPECT_EQ(texts(), "b c d e");
  EXPECT_EQ(headless.container().waiting(), 1U);
  EXPECT_EQ(list.state().LoopIndex, 3);
}

TEST_F(Items, HandlersInAYieldMayDoWhatTheyLike) {
  list.AutoRedraw(false);
  const auto disturb = [&](const std::function<void()>& message) {
    list.ItemsClear();
    add({"a", "b", "c", "d", "e", "f"});
    for (int i = 0; i < 2; ++i) headless.container().post({});
    headless.container().post(message);
    list.ItemsRemove(0);
    list.ItemsCheckCount();
    while (headless.container().waiting()) headless.container().DoEvents();
    return list.ItemsCount();
  };
  EXPECT_EQ(disturb([&] { list.ItemsClear(); }), 0);
  EXPECT_EQ(disturb([&] { list.ItemsRemove(5); }), 4);
  EXPECT_EQ(disturb([&] { list.ItemsAdd("x"); }), 6);
  EXPECT_EQ(texts(), "b c d e f x");
  EXPECT_EQ(reports(), "");
  disturb([] { throw std::runtime_error("host"); });
  EXPECT_EQ(reports(), "440 ItemsRemove");
  disturb([] { throw 7; });
  EXPECT_EQ(reports(), "440 ItemsRemove");
  disturb([] { throw Failure(1000, "own"); });
  EXPECT_EQ(reports(), "1000 ItemsRemove");
  silent();
  EXPECT_EQ(disturb([] { throw std::bad_alloc(); }), 5);
  EXPECT_EQ(texts(), "b c d e f");
}

TEST_F(Items, AHostMayComeBackAsItsObjectsGo) {
  struct Leaving : Object {
    explicit Leaving(std::function<void()> last) : atEnd(std::move(last)) {}
    ~Leaving() override { atEnd(); }
    std::function<void()> atEnd;
  };
  const auto tag = [](std::function<void()> atEnd) {
    return Variant(Ref<Object>(makeRef<Leaving>(std::move(atEnd))));
  };
  list.ItemTag(
      0, tag([&] { list.ItemsAdd({.aText = "inner", .aTag = tag([&] { list.ItemsClear(); })}); }));
  list.ItemsAdd({.aText = "outer", .aKey = "a key of some length"});
  EXPECT_EQ(list.ItemsCount(), 0);

  add({"a", "b"});
  list.ItemTag(0, tag([&] { list.ItemsClear(); }));
  list.ItemTag(0, 1);
  EXPECT_EQ(list.ItemsCount(), 0);
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, ARepaintInAYieldMovesTheSharedPosition) {
  add({"a", "b", "c", "d"});
  headless.container().post([&] { list.Redraw(); });
  list.ItemsRemove(0);
  EXPECT_EQ(texts(), "b b c");
}

TEST_F(Items, CountsYieldOnceAnItemAndSeeTheListChange) {
  list.AutoRedraw(false);
  add({"a", "b"});
  list.ItemsAdd({.aText = "c", .aChecked = true});
  headless.container().post([&] { list.ItemsAdd({.aText = "d", .aChecked = true}); });
  EXPECT_EQ(list.ItemsCheckCount(), 2);
  EXPECT_EQ(list.ItemsSelectCount(), 0);
  // A count inside a count shares its position: the outer one goes on behind it.
  headless.container().post([&] { EXPECT_EQ(list.ItemsCheckCount(), 2); });
  EXPECT_EQ(list.ItemsCheckCount(), 2);
  headless.container().post([&] { list.ItemsClear(); });
  EXPECT_EQ(list.ItemsCheckCount(), 0);
}

TEST_F(Items, ClearingKeepsTheTopIndex) {
  for (int i = 0; i < 50; ++i) list.ItemsAdd(i);
  list.TopIndex(20);
  list.ItemsClear();
  EXPECT_EQ(list.TopIndex(), 20);
  EXPECT_EQ(list.NewIndex(), 49);
  EXPECT_EQ(list.state().Items.upperBound(), 0);
}

TEST_F(Items, DuplicatesGoByTheCommaJoinedScheme) {
  const auto remaining = [&](const std::vector<std::string>& before, Boolean ignore) {
    list.ItemsClear();
    add(before);
    list.ItemsRemoveDouble(ignore);
    return texts();
  };
  EXPECT_EQ(remaining({"a", "A", "b", "a"}, true), "a b");
  EXPECT_EQ(remaining({"a", "A", "b", "a"}, false), "a A b");
  EXPECT_EQ(remaining({"\u00e4", "\u00c4"}, true), "\u00e4");
  EXPECT_EQ(remaining({"abc", "bc"}, true), "abc");
  EXPECT_EQ(remaining({"bc", "abc"}, true), "bc abc");
  EXPECT_EQ(remaining({"xb", "c", "b,c"}, true), "xb c");
  EXPECT_TRUE(list.AutoRedraw().isTrue());
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, ADuplicatePastTheSixteenBitLimitIsAFailure) {
  list.AutoRedraw(false);
  for (int i = 0; i <= 32767; ++i) list.ItemsAdd(std::to_string(100000 + i));
  list.ItemsAdd("100000");
  list.ItemsAdd("100001", 5);
  list.AutoRedraw(true);
  list.ItemsRemoveDouble();
  EXPECT_EQ(reports(), "6 ItemsRemoveDouble");
  EXPECT_EQ(list.ItemsCount(), 32770);
  EXPECT_FALSE(list.AutoRedraw());
  EXPECT_FALSE(list.AutoCheckScroll());

  silent();
  list.ItemsRemoveDouble();
  EXPECT_EQ(list.ItemsCount(), 32769);
}

TEST_F(Items, FindsByKeyAndByPattern) {
  EXPECT_EQ(list.IndexByKey(""), -1);
  EXPECT_EQ(list.IsInList("*"), -1);
  list.ItemsAdd({.aText = "abc", .aKey = "10"});
  list.ItemsAdd({.aText = "Abd", .aKey = "k"});
  list.ItemsAdd({.aText = "z"});
  EXPECT_EQ(list.IndexByKey("k"), 1);
  EXPECT_EQ(list.IndexByKey("K"), -1);
  EXPECT_EQ(list.IndexByKey(""), 2);
  EXPECT_EQ(list.IndexByKey("10.0"), -1);
  EXPECT_EQ(list.IndexByKey(10), 0);
  list.ItemsAdd({.aText = "first", .aIndex = 0, .aKey = "0.1"});
  EXPECT_EQ(list.IndexByKey(0.1), 0);
  list.ItemsRemove(0);
  EXPECT_EQ(reports(), "");
  EXPECT_EQ(list.IndexByKey(11), -1);
  EXPECT_EQ(reports(), "13 IndexByKey");

  EXPECT_EQ(list.IsInList("a*"), 0);
  EXPECT_EQ(list.IsInList("A*"), 1);
  EXPECT_EQ(list.IsInList("A*", cFindText), 0);
  EXPECT_EQ(list.IsInList("ab"), -1);
  EXPECT_EQ(list.IsInList("*", static_cast<cFindCompare>(2)), -1);
  EXPECT_EQ(list.IsInList("[z-a]"), -1);
  EXPECT_EQ(list.IsInList("[a", static_cast<cFindCompare>(2)), -1);
  EXPECT_EQ(reports(), "93 IsInList, 93 IsInList");
  // Well-formed in one comparison alone.
  EXPECT_EQ(list.IsInList("[Z-a]bc"), -1);
  EXPECT_EQ(list.IsInList("[a-Z]bc", cFindText), -1);
  EXPECT_EQ(reports(), "93 IsInList, 93 IsInList");
  silent();
  EXPECT_EQ(list.IsInList("[a"), -1);
  EXPECT_EQ(list.IsInList("[Z-a]bc"), 0);
  EXPECT_EQ(list.IsInList("[Z-a]bc", cFindText), -1);
}

TEST_F(Items, TextsOfAnyKindAreKept) {
  const std::string hostile[] = {
      "", std::string(1000000, 'x'), std::string("a\0b", 3), "\xff\xfe", "\r\n\t&&", "\xf0\x9f"};
  for (const std::string& text : hostile) list.ItemsAdd(text);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(item(i).Text, hostile[i]);
  EXPECT_EQ(list.IsInList("?b", cFindText), -1);
  EXPECT_EQ(reports(), "");
}

TEST_F(Items, AMillionItemsStayInOrder) {
  list.AutoRedraw(false);
  list.AutoCheckScroll(false);
  for (int i = 0; i < 1000000; ++i) list.ItemsAdd(i, i % 2 == 0 ? Variant(0) : Variant(-1));
  for (int i = 0; i < 1000; ++i) list.ItemsRemove(0);
  EXPECT_EQ(list.ItemsCount(), 999000);
  EXPECT_EQ(item(0).Text, "997998");
  EXPECT_EQ(item(998999).Text, "999999");
}

}  // namespace
}  // namespace norvane
