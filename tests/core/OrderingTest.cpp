#include <nvlist/core/partitionSort.h>

#include <cmath>
#include <numeric>
#include <random>
#include <utility>

#include "../ListScript.h"

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

// clang-format off
const Scenario scenarios[] = {
  {"moves take the items on the way along",
   "begin; up 2 1; outcome; texts; begin; up '2' '5'; outcome; texts; begin; up 0 3; outcome; texts;"
   "begin; down @ 2; outcome; texts; begin; down 2 9; outcome; texts; begin; down 4 1; outcome;"
   "texts",
   "* | 1: 2 / <0 2 1 3 4> / * | 0: 2 / <2 0 1 3 4> /  | 2: 2 / <0 1 2 3 4> / * | 4: 2 / "
   "<1 2 0 3 4> / * | 4: 2 / <0 1 3 4 2> /  | 2: 2 / <0 1 2 3 4>"},
  {"a move from a bad index does nothing",
   "begin; up 'x' 1; outcome; texts; reports", " | 2: 2 / <0 1 2 3 4>"},
  {"a negative count loses the item at the target",
   "begin; up 1 -3; outcome; texts; begin; down 2 -2; outcome; texts",
   "* | 5: 2 / <0 1 2 3 1> / * | 0: 2 2 / <2 1 2 3 4>"},
  {"two texts are concatenated to a target",
   "begin; down '1' '2'; outcome; texts; begin; down '0' '3'; outcome; texts",
   "* | 5: 2 / <0 2 3 4 1> / * | 5: 2 / <1 2 3 0 4>"},
  {"each position of a move is rounded separately",
   "begin; up 3.5 2; outcome; texts; begin; up 3 2.5; outcome; texts",
   "* | 0: 2 / <0 1 4 3 2> / * | 0: 2 / <3 1 1 2 4>"},
  {"a failing move leaves the list unchanged",
   "begin; up 2 'x'; up 2 -3; down 2 -1e10; outcome; texts; reports",
   " | 2: 2 / <0 1 2 3 4> / 13 MoveItemUp, 9 MoveItemUp, 6 MoveItemDown"},
  {"a move leaves the shared position at its end and finds the marks again",
   "AutoRedraw 0; setIndex 2; up 2 2; loop; now; down 0 3; loop; now", "0 / 0: 2 / 4 / 3: 2"},
  {"two slots may hold the same item",
   "AutoRedraw 0; down 1 -1; setText 1 'z'; setIndex 0; texts; now; down 1 1; setIndex 4; now",
   "<z z 2 3 4> / 0: z z / 4: 4"},
  {"a sort moves items and marks but no numbers",
   "fill 0; AutoRedraw 0; addKey 'same' 0; addKey 'same' 1; addKey 'first' 2; addKey 'same' 3;"
   "addKey 'same' 4; addKey 'same' 5; setIndex 2; setTop 2; sort 1; keys; outcome; new; setIndex 3;"
   "now", "<245310> / AutoRedraw ListIndex TopIndex* | 2: first / 5 / 3: same"},
};
// clang-format on

using Ordering = ListScript;
TEST_P(Ordering, GivesItsOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Core, Ordering, testing::ValuesIn(scenarios), nameOf);

}  // namespace
}  // namespace norvane
