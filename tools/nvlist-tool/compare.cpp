#include "compare.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tool {
namespace {

using Sequence = std::span<const std::uint64_t>;
using Pair = std::pair<std::size_t, std::size_t>;

/// The places of the elements that occur once in each sequence, by their place in the first.
std::vector<Pair> commonOnce(Sequence first, Sequence second) {
  struct Seen {
    int count[2] = {};
    std::size_t place = 0;  ///< in the second
  };
  std::unordered_map<std::uint64_t, Seen> seen;
  for (const std::uint64_t element : first) ++seen[element].count[0];
  for (std::size_t i = 0; i < second.size(); ++i) {
    const auto found = seen.find(second[i]);
    if (found == seen.end()) continue;
    ++found->second.count[1];
    found->second.place = i;
  }
  std::vector<Pair> result;
  for (std::size_t i = 0; i < first.size(); ++i)
    if (const Seen& one = seen[first[i]]; one.count[0] == 1 && one.count[1] == 1)
      result.emplace_back(i, one.place);
  return result;
}

/// The longest part of the pairs whose places rise in both sequences.
std::vector<Pair> longestRising(const std::vector<Pair>& pairs) {
  std::vector<std::size_t> ends;  // by length, the pair with the smallest second place
  std::vector<std::size_t> before(pairs.size());
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    const auto place = std::ranges::lower_bound(ends, pairs[i].second, {},
                                                [&](std::size_t at) { return pairs[at].second; });
    before[i] = place == ends.begin() ? i : *(place - 1);
    if (place == ends.end())
      ends.push_back(i);
    else
      *place = i;
  }
  std::vector<Pair> result(ends.size());
  for (std::size_t i = ends.size(), at = ends.empty() ? 0 : ends.back(); i-- > 0; at = before[at])
    result[i] = pairs[at];
  return result;
}

}  // namespace

void compare(Sequence first, Sequence second, const std::function<void(const Change&)>& take) {
  std::vector<Pair> anchors = longestRising(commonOnce(first, second));
  anchors.emplace_back(first.size(), second.size());
  std::size_t a = 0, b = 0;
  for (const auto& [nextA, nextB] : anchors) {
    // Equal elements around an anchor belong to it, even if they occur several times.
    while (a < nextA && b < nextB && first[a] == second[b]) ++a, ++b;
    std::size_t aEnd = nextA, bEnd = nextB;
    while (a < aEnd && b < bEnd && first[aEnd - 1] == second[bEnd - 1]) --aEnd, --bEnd;
    if (a < aEnd || b < bEnd) take({a, aEnd, b, bEnd});
    a = nextA;
    b = nextB;
  }
}

}  // namespace tool
