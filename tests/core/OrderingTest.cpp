#include <nvlist/core/partitionSort.h>

#include <cmath>
#include <numeric>
#include <random>
#include <utility>

#include "../Lists.h"

namespace norvane {
namespace {

using Order = std::vector<std::int32_t>;
using Texts = std::vector<std::string>;

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

Order orderOf(const Texts& texts, cSortMode mode) {
  return partitionOrder(std::vector<std::string_view>(texts.begin(), texts.end()), mode);
}

void expectAgreement(const Texts& texts) {
  for (const cSortMode mode : {cAscending, cDescending}) {
    Order order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    const int last = static_cast<int>(texts.size()) - 1;
    if (last >= 0) sortPlainly(texts.data(), mode, order.data(), 0, last);
    ASSERT_EQ(orderOf(texts, mode), order) << testing::PrintToString(texts);
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
    for (std::string& text : texts) {
      text = starts[round % 3 ? 2 : random() % std::size(starts)];
      for (auto left = random() % (longest + 1); left > 0; --left)
        text += alphabet[random() % alphabet.size()];
    }
    ASSERT_NO_FATAL_FAILURE(expectAgreement(texts));
  }
  for (const int equal : {0, 1, 5, 100, 300}) expectAgreement(hostileTexts(400, equal));
}

TEST(PartitionSort, TakesHostileTextsInItsStride) {
  const Texts texts = hostileTexts(300000, 0);
  // Splitting off one text at a time would exceed the time limit and overflow the stack.
  const Order order = orderOf(texts, cAscending);
  for (std::size_t i = 1; i < order.size(); ++i)
    ASSERT_LT(texts.data()[order[i - 1]], texts.data()[order[i]]);
}

class Ordering : public ListTest {
 protected:
  Ordering() {
    headless.container().onPropertyChanged = [this](std::string_view) { ++changes; };
  }

  void fill(const Texts& texts, Boolean autoRedraw = true) {
    list.AutoRedraw(false);
    list.ItemsClear();
    for (const std::string& text : texts) list.ItemsAdd({.aText = text, .aKey = list.ItemsCount()});
    list.ListIndex(2);
    list.AutoRedraw(autoRedraw);
    frames = headless.surface().frames();
    changes = 0;
  }

  int painted() { return headless.surface().frames() - frames; }
  bool isSelectedAlone(int index) { return item(index).Selected && list.ItemsSelectCount() == 1; }

  int frames = 0;
  int changes = 0;
};

TEST_F(Ordering, ASortMovesItemsAndMarksButNoNumbers) {
  fill({"same", "same", "first", "same", "same", "same"}, false);
  list.TopIndex(2);
  const int top = list.TopIndex();
  list.Sort(cAscending);
  std::string keys;
  for (int i = 0; i < 6; ++i) keys += item(i).Key;
  EXPECT_EQ(keys, "245310");
  EXPECT_EQ(list.TopIndex(), top);
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(list.NewIndex(), 5);
  EXPECT_TRUE(isSelectedAlone(0));
  list.ListIndex(3);
  EXPECT_TRUE(isSelectedAlone(3));
}

TEST_F(Ordering, MovesTakeTheItemsOnTheWayAlong) {
  enum Direction { up, down };
  const struct {
    Direction direction;
    Variant item, count;
    const char* result;
    int listIndex, frames;
    const char* reports = "";
  } cases[] = {
      {up, 2, 1, "a c b d e", 1, 1},
      {up, "2", "5", "c a b d e", 0, 1},
      {up, 0, 3, "a b c d e", 2, 0},
      {down, Variant(), 2, "b c a d e", 4, 1},
      {down, 2, 9, "a b d e c", 4, 1},
      {down, 4, 1, "a b c d e", 2, 0},
      // A bad index.
      {up, "x", 1, "a b c d e", 2, 0},
      // A negative count loses the item at the target.
      {up, 1, -3, "a b c d b", 5, 1},
      {down, 2, -2, "c b c d e", 0, 1},
      // Two texts are concatenated: past the end, and index 3.
      {down, "1", "2", "a c d e b", 5, 1},
      {down, "0", "3", "b c d a e", 5, 1},
      // Each position is rounded separately.
      {up, 3.5, 2, "a b e d c", 0, 1},
      {up, 3, 2.5, "d b b c e", 0, 1},
      // A failure leaves the list unchanged.
      {up, 2, "x", "a b c d e", 2, 0, "13 MoveItemUp"},
      {up, 2, -3, "a b c d e", 2, 0, "9 MoveItemUp"},
      {down, 2, -1e10, "a b c d e", 2, 0, "6 MoveItemDown"},
  };
  for (const auto& c : cases) {
    fill({"a", "b", "c", "d", "e"});
    if (c.direction == up)
      list.MoveItemUp(c.item, c.count);
    else
      list.MoveItemDown(c.item, c.count);
    EXPECT_EQ(texts(), c.result) << c.item.toText() << " by " << c.count.toText();
    EXPECT_EQ(list.ListIndex(), c.listIndex) << c.result;
    EXPECT_EQ(painted(), c.frames) << c.result;
    EXPECT_EQ(reports(), c.reports) << c.result;
    EXPECT_EQ(changes, 0);
  }
}

TEST_F(Ordering, MovesLeaveMarksAndTheSharedPositionRight) {
  fill({"a", "b", "c", "d", "e"}, false);
  list.MoveItemUp(2, 2);
  EXPECT_EQ(list.state().LoopIndex, 0);
  EXPECT_TRUE(isSelectedAlone(0));
  list.MoveItemDown(0, 3);
  EXPECT_EQ(list.state().LoopIndex, 4);
  list.MoveItemDown(1, -1);
  // Both slots hold the same item.
  list.ItemText(1, "z");
  list.ListIndex(0);
  EXPECT_EQ(texts(), "z z d c e");
  EXPECT_TRUE(item(1).Selected.isTrue());
  list.MoveItemDown(1, 1);
  list.ListIndex(4);
  EXPECT_TRUE(isSelectedAlone(4));
}

}  // namespace
}  // namespace norvane
