#include <nvlist/core/partitionSort.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <functional>
#include <utility>

namespace norvane {

namespace {

/// Sorts entries of sixteen bytes that decide nearly every comparison by themselves, so that the
/// texts are rarely read.
class PartitionSort {
 public:
  PartitionSort(std::span<const std::string_view> texts, bool isDescending)
      : texts_(texts), flip_(isDescending ? ~std::uint64_t{0} : 0) {}

  std::vector<std::int32_t> run();

 private:
  /// Positions in the whole sequence, because the middle of a range depends on them. After a
  /// partition, a range may end before it begins.
  struct Range {
    std::int64_t first;
    std::int64_t last;
    std::int64_t size() const { return last - first + 1; }
  };

  /// The key holds the next seven bytes of the text, padded with zeros, and in its lowest byte the
  /// number of bytes left, where eight means more than seven. So keys compare as the texts do; only
  /// equal keys that leave out bytes may belong to different texts. Descending keys are inverted.
  struct Entry {
    std::uint64_t key;
    std::int32_t text;
  };
  static constexpr std::size_t keyBytes = 7;

  /// Sorts a range. `shared` is the number of bytes its texts are known to share; the keys begin
  /// after these.
  void sort(Range range, std::size_t shared);
  /// Partitions a range; returns the two ranges that remain to be sorted.
  std::pair<Range, Range> partition(Range range, std::size_t shared);
  /// Sorts a range by another algorithm if all its texts differ, because their order is then
  /// unique. Returns false, and changes nothing, if some are equal.
  bool sortDistinct(Range range, std::size_t shared);

  /// Computes new keys if all keys of a range are equal. Both return the number of bytes that the
  /// texts are known to share.
  std::size_t sharpen(Range range, std::size_t shared);
  std::size_t readKeys(Range range, std::size_t shared);
  std::uint64_t keyOf(std::string_view text) const;
  bool isWhole(std::uint64_t key) const { return ((key ^ flip_) & 0xFF) <= keyBytes; }

  bool comesBefore(const Entry& a, const Entry& b, std::size_t shared) const {
    if (a.key != b.key || isWhole(a.key)) return a.key < b.key;
    // The scans often compare the pivot with itself.
    return a.text != b.text && restComesBefore(a, b, shared + keyBytes);
  }
  bool restComesBefore(const Entry& a, const Entry& b, std::size_t from) const;

  std::string_view textOf(const Entry& entry) const {
    return texts_[static_cast<std::size_t>(entry.text)];
  }
  Entry& at(std::int64_t place) { return entries_[static_cast<std::size_t>(place)]; }
  std::span<Entry> in(Range range) {
    return std::span(entries_).subspan(static_cast<std::size_t>(range.first),
                                       static_cast<std::size_t>(range.size()));
  }

  /// How often a range may be split before the splits are considered too uneven. Even splits need a
  /// quarter of this.
  static int patienceWith(Range range) {
    return 4 * static_cast<int>(std::bit_width(static_cast<std::uint64_t>(range.size())));
  }
  /// Halves are rounded to the even position.
  static std::int64_t middle(Range range) {
    const std::int64_t sum = range.first + range.last;
    return (sum + (sum >> 1 & 1)) >> 1;
  }

  std::span<const std::string_view> texts_;
  std::uint64_t flip_;
  std::vector<Entry> entries_;
};

std::vector<std::int32_t> PartitionSort::run() {
  entries_.resize(texts_.size());
  const Range all{0, static_cast<std::int64_t>(texts_.size()) - 1};
  for (std::int64_t place = 0; place <= all.last; ++place)
    at(place).text = static_cast<std::int32_t>(place);
  if (all.size() > 1) sort(all, readKeys(all, 0));

  std::vector<std::int32_t> order;
  order.reserve(entries_.size());
  for (const Entry& entry : entries_) order.push_back(entry.text);
  return order;
}

void PartitionSort::sort(Range range, std::size_t shared) {
  int patience = patienceWith(range);
  while (range.size() > 1) {
    if (patience-- == 0) {
      if (sortDistinct(range, shared)) return;
      patience = patienceWith(range);
    }
    shared = sharpen(range, shared);
    auto [left, right] = partition(range, shared);
    // The parts are independent, so either may be sorted first. The smaller one is at most half of
    // the range, which bounds the stack depth by the logarithm of the number of texts.
    if (left.size() > right.size()) std::swap(left, right);
    sort(left, shared);
    range = right;
  }
}

auto PartitionSort::partition(Range range, std::size_t shared) -> std::pair<Range, Range> {
  Entry* const entries = entries_.data();
  const Entry pivot = entries[middle(range)];
  auto [left, right] = range;
  while (left <= right) {
    while (comesBefore(entries[left], pivot, shared)) ++left;
    while (comesBefore(pivot, entries[right], shared)) --right;
    if (left <= right) std::swap(entries[left++], entries[right--]);
  }
  return {{range.first, right}, {left, range.last}};
}

std::size_t PartitionSort::sharpen(Range range, std::size_t shared) {
  const std::uint64_t key = at(range.first).key;
  if (isWhole(key)) return shared;
  const auto isSame = [&](const Entry& entry) { return entry.key == key; };
  return std::ranges::all_of(in(range), isSame) ? readKeys(range, shared + keyBytes) : shared;
}

std::size_t PartitionSort::readKeys(Range range, std::size_t shared) {
  const std::string_view first = textOf(at(range.first)).substr(shared);
  std::size_t more = first.size();
  for (const Entry& entry : in(range)) {
    const std::string_view text = textOf(entry).substr(shared, more);
    more = static_cast<std::size_t>(std::ranges::mismatch(text, first).in1 - text.begin());
  }
  shared += more;
  for (Entry& entry : in(range)) entry.key = keyOf(textOf(entry).substr(shared));
  return shared;
}

std::uint64_t PartitionSort::keyOf(std::string_view text) const {
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < keyBytes; ++i)
    key = key << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0u);
  return (key << 8 | std::min(text.size(), keyBytes + 1)) ^ flip_;
}

bool PartitionSort::restComesBefore(const Entry& a, const Entry& b, std::size_t from) const {
  const int order = textOf(a).substr(from).compare(textOf(b).substr(from));
  return flip_ ? order > 0 : order < 0;
}

bool PartitionSort::sortDistinct(Range range, std::size_t shared) {
  const std::span<Entry> unsorted = in(range);
  std::vector<Entry> sorted(unsorted.begin(), unsorted.end());
  const auto before = [&](const Entry& a, const Entry& b) { return comesBefore(a, b, shared); };
  std::ranges::sort(sorted, before);
  if (std::ranges::adjacent_find(sorted, std::not_fn(before)) != sorted.end()) return false;
  std::ranges::copy(sorted, unsorted.begin());
  return true;
}

}  // namespace

std::vector<std::int32_t> partitionOrder(std::span<const std::string_view> texts, cSortMode mode) {
  return PartitionSort(texts, mode == cDescending).run();
}

}  // namespace norvane
