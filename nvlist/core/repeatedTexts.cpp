#include <nvlist/core/repeatedTexts.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <set>
#include <string>
#include <utility>

namespace norvane {

namespace {

/// Finds repeated texts without searching all that was kept for each of them.
///
/// The texts asked for are all known beforehand, so it goes the other way: whenever a comma is
/// written, every text that ends right before it is looked up in a table and marked as seen. Of
/// those only the ones matter whose number of commas and length some text has, and from one length
/// to the next longer one their hash is carried on.
class RepeatedTexts {
 public:
  explicit RepeatedTexts(std::span<const std::string_view> texts);

  std::vector<std::int32_t> run();

 private:
  static constexpr std::uint32_t noText = 0x7FFFFFFF;
  static constexpr std::uint64_t base = 0x9E3779B97F4A7C15;

  struct Slot {
    std::uint32_t tag = 0;
    std::uint32_t text : 31 = noText;
    std::uint32_t wasSeen : 1 = 0;
  };

  /// The lengths of all texts with the same number of commas.
  struct Group {
    std::size_t commas;
    std::vector<std::size_t> lengths;
  };

  /// A comma in what was kept, and what it takes to hash from it to a later one: the sum of the
  /// weights before it, each times its power of the base, and the inverse of its own power.
  struct Comma {
    std::size_t position;
    std::uint64_t sum;
    std::uint64_t inversePower;
  };

  static constexpr std::uint64_t inverse(std::uint64_t odd) {
    std::uint64_t result = odd;
    // Each round doubles the number of right bits, which are three to begin with.
    for (int round = 0; round < 5; ++round) result *= 2 - odd * result;
    return result;
  }
  /// What a byte adds to a hash; never 0, so that a zero byte counts too.
  static std::uint64_t weight(char byte) { return static_cast<unsigned char>(byte) + 1u; }
  /// The first byte has the lowest power of the base, so that a hash is carried on to the left.
  static std::uint64_t extended(char byte, std::uint64_t hash) {
    return hash * base + weight(byte);
  }
  static std::uint64_t mixed(std::uint64_t hash) { return (hash ^ hash >> 32) * base; }

  std::size_t find(std::uint64_t hash, std::string_view text) const;
  void keep(std::string_view text);
  Comma& comma(std::size_t index) { return commas_[index & (commas_.size() - 1)]; }
  void markEndings(const Group& group);

  std::span<const std::string_view> texts_;
  std::vector<Slot> slots_;
  int shift_;
  /// Where each text stands in the table.
  std::vector<std::uint32_t> slotOfText_;
  std::vector<Group> groups_;

  std::string seen_;
  /// The last commas, as many as the texts can reach back; a ring.
  std::vector<Comma> commas_;
  std::size_t commaCount_ = 0;
  std::uint64_t sum_ = 0;
  std::uint64_t power_ = 1;
  std::uint64_t inversePower_ = 1;
};

RepeatedTexts::RepeatedTexts(std::span<const std::string_view> texts) : texts_(texts) {
  slots_.resize(std::bit_ceil(std::max<std::size_t>(texts.size() * 2, 2)));
  shift_ = 64 - std::countr_zero(slots_.size());
  slotOfText_.reserve(texts.size());
  std::set<std::pair<std::size_t, std::size_t>> shapes;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    std::uint64_t hash = 0;
    std::size_t commas = 0;
    for (std::size_t k = texts[i].size(); k-- > 0;) {
      hash = extended(texts[i][k], hash);
      commas += texts[i][k] == ',';
    }
    const std::size_t slot = find(hash, texts[i]);
    slotOfText_.push_back(static_cast<std::uint32_t>(slot));
    if (slots_[slot].text != noText) continue;
    slots_[slot].tag = static_cast<std::uint32_t>(mixed(hash));
    slots_[slot].text = static_cast<std::uint32_t>(i) & noText;
    shapes.emplace(commas, texts[i].size());
  }
  for (const auto& [commas, length] : shapes) {
    if (groups_.empty() || groups_.back().commas != commas) groups_.push_back({commas, {}});
    groups_.back().lengths.push_back(length);
  }
}

/// The slot of the text, or the empty one where it would stand.
std::size_t RepeatedTexts::find(std::uint64_t hash, std::string_view text) const {
  const std::uint64_t mix = mixed(hash);
  const auto tag = static_cast<std::uint32_t>(mix);
  std::size_t at = static_cast<std::size_t>(mix >> shift_);
  while (slots_[at].text != noText && (slots_[at].tag != tag || texts_[slots_[at].text] != text)) {
    at = (at + 1) & (slots_.size() - 1);
  }
  return at;
}

std::vector<std::int32_t> RepeatedTexts::run() {
  std::vector<std::int32_t> result;
  if (texts_.empty()) return result;
  commas_.resize(std::bit_ceil(groups_.back().commas + 2));
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    if (slots_[slotOfText_[i]].wasSeen) {
      result.push_back(static_cast<std::int32_t>(i));
    } else {
      keep(texts_[i]);
    }
  }
  return result;
}

void RepeatedTexts::keep(std::string_view text) {
  seen_ += text;
  seen_ += ',';
  for (std::size_t at = seen_.size() - text.size() - 1; at < seen_.size(); ++at) {
    if (seen_[at] == ',') {
      comma(commaCount_++) = {at, sum_, inversePower_};
      for (const Group& group : groups_) {
        if (group.commas >= commaCount_) break;
        markEndings(group);
      }
    }
    sum_ += weight(seen_[at]) * power_;
    power_ *= base;
    inversePower_ *= inverse(base);
  }
}

/// Marks the texts of the group that end right before the last comma.
void RepeatedTexts::markEndings(const Group& group) {
  const std::size_t last = commaCount_ - 1;
  const std::size_t part = last - group.commas;
  const std::size_t end = comma(last).position;
  const std::size_t partBegin = part == 0 ? 0 : comma(part - 1).position + 1;
  std::size_t begin = comma(part).position;
  auto length = std::ranges::lower_bound(group.lengths, end - begin);
  if (length == group.lengths.end() || *length > end - partBegin) return;
  std::uint64_t hash = (comma(last).sum - comma(part).sum) * comma(part).inversePower;
  for (; length != group.lengths.end() && *length <= end - partBegin; ++length) {
    while (end - begin < *length) hash = extended(seen_[--begin], hash);
    Slot& slot = slots_[find(hash, std::string_view(seen_).substr(begin, *length))];
    if (slot.text != noText) slot.wasSeen = 1;
  }
}

}  // namespace

std::vector<std::int32_t> repeatedTexts(std::span<const std::string_view> texts) {
  return RepeatedTexts(texts).run();
}

}  // namespace norvane
