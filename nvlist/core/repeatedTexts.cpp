#include <nvlist/core/repeatedTexts.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <set>
#include <string>
#include <utility>

namespace norvane {

namespace {

constexpr std::uint64_t base = 0x9E3779B97F4A7C15;
constexpr std::size_t blockSize = 64;

constexpr std::uint64_t inverse(std::uint64_t odd) {
  std::uint64_t result = odd;
  // Each round doubles the number of correct bits; three are correct at the start.
  for (int round = 0; round < 5; ++round) result *= 2 - odd * result;
  return result;
}

constexpr auto powersOf(std::uint64_t number) {
  std::array<std::uint64_t, blockSize + 1> powers = {1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * number;
  return powers;
}

constexpr auto powers = powersOf(base);
constexpr auto inversePowers = powersOf(inverse(base));

/// Returns the hash of `text` followed by the text whose hash is `hash`. The hash is the sum of the
/// bytes, each multiplied by a power of the base; the first byte has the lowest power, so a hash is
/// easily extended to the left. Each byte counts as its value plus one, so that zero bytes matter.
std::uint64_t hashBefore(std::uint64_t hash, std::string_view text) {
  const auto weight = [&](std::size_t at) -> std::uint64_t {
    return static_cast<unsigned char>(text[at]) + 1u;
  };
  std::size_t at = text.size();
  // Four bytes at once: the four products are independent, which is faster for long texts.
  for (; at >= 4; at -= 4) {
    hash = hash * powers[4] + weight(at - 1) * powers[3] + weight(at - 2) * powers[2] +
           weight(at - 3) * powers[1] + weight(at - 4);
  }
  while (at > 0) hash = hash * base + weight(--at);
  return hash;
}

std::uint64_t mixed(std::uint64_t hash) { return (hash ^ hash >> 32) * base; }

/// A set of hashes with false positives, small enough to stay in the cache.
class Filter {
 public:
  explicit Filter(std::size_t count)
      : words_(std::bit_ceil(count / 4 + 1)), shift_(58 - std::countr_zero(words_.size())) {}

  void add(std::uint64_t mix) { words_[wordOf(mix)] |= bitOf(mix); }
  bool mayHold(std::uint64_t mix) const { return (words_[wordOf(mix)] & bitOf(mix)) != 0; }

 private:
  std::size_t wordOf(std::uint64_t mix) const {
    return static_cast<std::size_t>(mix >> shift_ >> 6);
  }
  std::uint64_t bitOf(std::uint64_t mix) const { return std::uint64_t{1} << (mix >> shift_ & 63); }

  std::vector<std::uint64_t> words_;
  int shift_;
};

/// Finds repeated texts without searching everything that was kept for each text.
///
/// All texts are known in advance, so the search is reversed: whenever a comma is appended, every
/// text that ends right before it is looked up in a table and marked as seen. Only endings with the
/// length and number of commas of some text are looked up. A text with commas consists of a tail
/// (everything after its first comma) and the end of the part before it; it is looked up only if
/// the tail is the tail of some text.
class RepeatedTexts {
 public:
  explicit RepeatedTexts(std::span<const std::string_view> texts);

  std::vector<std::int32_t> run();

 private:
  static constexpr std::uint32_t noText = 0x7FFFFFFF;

  struct Slot {
    std::uint32_t tag = 0;
    std::uint32_t text : 31 = noText;
    std::uint32_t wasSeen : 1 = 0;
  };

  /// The distinct lengths of the texts with the same number of commas.
  struct Group {
    std::size_t commas;
    std::vector<std::size_t> lengths;
  };

  /// The beginning of a part, and what is needed to compute hashes from there: the hash of
  /// everything kept before it, and the inverse of the power that its first byte has in that hash.
  struct Part {
    std::size_t begin = 0;
    std::uint64_t hashUpTo = 0;
    std::uint64_t inversePower = 1;
  };

  /// Returns the slot of the text, or the empty slot where it belongs.
  std::size_t find(std::uint64_t mix, std::string_view text) const;
  void addTails(std::string_view text);
  void keep(std::string_view text);
  void extendHash(std::string_view text);
  void markEndings(std::size_t end);
  Part& part(std::size_t index) { return parts_[index & (parts_.size() - 1)]; }

  std::span<const std::string_view> texts_;
  std::vector<Slot> slots_;
  int shift_;
  /// The slot of each text.
  std::vector<std::uint32_t> slotOfText_;
  std::vector<Group> groups_;
  Filter filter_;
  Filter tails_;

  std::string seen_;
  /// The last parts, as many as a text can span; a ring buffer.
  std::vector<Part> parts_;
  std::size_t lastPart_ = 0;
  /// The hash of everything kept, and the power for its next byte.
  std::uint64_t hash_ = 0;
  std::uint64_t power_ = 1;
  std::uint64_t inversePower_ = 1;
};

RepeatedTexts::RepeatedTexts(std::span<const std::string_view> texts)
    : texts_(texts),
      slots_(std::bit_ceil(std::max<std::size_t>(texts.size() * 2, 2))),
      shift_(64 - std::countr_zero(slots_.size())),
      filter_(texts.size()),
      tails_(0) {
  slotOfText_.reserve(texts.size());
  std::set<std::pair<std::size_t, std::size_t>> shapes;
  std::size_t commaCount = 0;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::uint64_t mix = mixed(hashBefore(0, texts[i]));
    const std::size_t at = find(mix, texts[i]);
    slotOfText_.push_back(static_cast<std::uint32_t>(at));
    if (slots_[at].text != noText) continue;
    slots_[at].tag = static_cast<std::uint32_t>(mix);
    slots_[at].text = static_cast<std::uint32_t>(i) & noText;
    filter_.add(mix);
    const auto commas = static_cast<std::size_t>(std::count(texts[i].begin(), texts[i].end(), ','));
    commaCount += commas;
    shapes.emplace(commas, texts[i].size());
  }
  for (const auto& [commas, length] : shapes) {
    if (groups_.empty() || groups_.back().commas != commas) groups_.push_back({commas, {}});
    groups_.back().lengths.push_back(length);
  }
  if (commaCount == 0) return;
  tails_ = Filter(commaCount);
  for (const Slot& slot : slots_) {
    if (slot.text != noText) addTails(texts[slot.text]);
  }
}

/// Adds the tail of the text, and those shorter endings that may be tails of texts with fewer
/// commas, so that a search from short to long tails can stop at the first one missing.
void RepeatedTexts::addTails(std::string_view text) {
  std::uint64_t hash = 0;
  std::size_t commas = 0;
  auto group = groups_.begin();
  for (std::size_t comma = text.rfind(','); comma != std::string_view::npos;
       comma = text.rfind(',')) {
    hash = hashBefore(hash, text.substr(comma + 1));
    ++commas;
    while (group->commas < commas) ++group;
    if (group->commas == commas) tails_.add(mixed(hash));
    hash = hashBefore(hash, ",");
    text = text.substr(0, comma);
  }
}

std::size_t RepeatedTexts::find(std::uint64_t mix, std::string_view text) const {
  const auto tag = static_cast<std::uint32_t>(mix);
  auto at = static_cast<std::size_t>(mix >> shift_);
  while (slots_[at].text != noText && (slots_[at].tag != tag || texts_[slots_[at].text] != text)) {
    at = (at + 1) & (slots_.size() - 1);
  }
  return at;
}

std::vector<std::int32_t> RepeatedTexts::run() {
  std::vector<std::int32_t> result;
  if (texts_.empty()) return result;
  parts_.resize(std::bit_ceil(groups_.back().commas + 2));
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
  std::size_t begin = seen_.size();
  seen_ += text;
  seen_ += ',';
  while (begin < seen_.size()) {
    const std::size_t end = seen_.find(',', begin);
    extendHash(std::string_view(seen_).substr(begin, end - begin));
    markEndings(end);
    extendHash(",");
    begin = end + 1;
    part(++lastPart_) = {begin, hash_, inversePower_};
  }
}

void RepeatedTexts::extendHash(std::string_view text) {
  while (!text.empty()) {
    const std::string_view block = text.substr(0, blockSize);
    text.remove_prefix(block.size());
    hash_ += power_ * hashBefore(0, block);
    power_ *= powers[block.size()];
    inversePower_ *= inversePowers[block.size()];
  }
}

/// Marks the texts that end at `end`, where the last part ends.
void RepeatedTexts::markEndings(std::size_t end) {
  const std::string_view seen = seen_;
  for (const Group& group : groups_) {
    if (group.commas > lastPart_) return;
    const std::size_t first = lastPart_ - group.commas;
    const std::size_t longest = end - part(first).begin;
    std::size_t begin = group.commas == 0 ? end : part(first + 1).begin;
    auto length = std::lower_bound(group.lengths.begin(), group.lengths.end(), end - begin);
    if (length == group.lengths.end() || *length > longest) continue;
    std::uint64_t hash = 0;
    if (group.commas > 0) {
      hash = (hash_ - part(first + 1).hashUpTo) * part(first + 1).inversePower;
      if (!tails_.mayHold(mixed(hash))) return;
    }
    for (; length != group.lengths.end() && *length <= longest; ++length) {
      const std::size_t longer = end - *length;
      hash = hashBefore(hash, seen.substr(longer, begin - longer));
      begin = longer;
      const std::uint64_t mix = mixed(hash);
      if (!filter_.mayHold(mix)) continue;
      Slot& slot = slots_[find(mix, seen.substr(begin, *length))];
      if (slot.text != noText) slot.wasSeen = 1;
    }
  }
}

}  // namespace

std::vector<std::int32_t> repeatedTexts(std::span<const std::string_view> texts) {
  return RepeatedTexts(texts).run();
}

}  // namespace norvane
