#include "damage.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include <nvlist/files/ByteReader.h>
#include <nvlist/values/Failure.h>

namespace tool {
namespace {

constexpr std::int16_t arrayOfBytes = 0x2011;

/// Reads a file through a block.
class Walker {
 public:
  explicit Walker(norvane::File& file) : file_(file), size_(file.size()) {}

  std::uint64_t at() const { return at_; }
  std::uint64_t left() const { return size_ - at_; }

  template <class Number>
  Number number() {
    char bytes[sizeof(Number)];
    for (char& byte : bytes) byte = next();
    return norvane::numberOfBytes<Number>(bytes);
  }
  void pass(std::int64_t count) {
    // A negative count becomes a huge unsigned one.
    if (static_cast<std::uint64_t>(count) > left()) throw norvane::Failure::pastEndOfFile();
    for (auto rest = static_cast<std::size_t>(count); rest > 0;) {
      requireByte();
      const std::size_t part = std::min(rest, end_ - begin_);
      take(part);
      rest -= part;
    }
  }
  void passText() { pass(number<std::int32_t>()); }

 private:
  char next() {
    requireByte();
    const char byte = block_[begin_];
    take(1);
    return byte;
  }
  void take(std::size_t count) {
    begin_ += count;
    at_ += count;
  }
  /// Reads another block if this one is used up.
  void requireByte() {
    if (begin_ < end_) return;
    begin_ = 0;
    end_ = file_.read(block_.data(), block_.size());
    if (end_ == 0) throw norvane::Failure::pastEndOfFile();
  }

  norvane::File& file_;
  const std::uint64_t size_;
  std::uint64_t at_ = 0;
  std::vector<char> block_ = std::vector<char>(std::size_t{64} * 1024);
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

void passRecord(Walker& walker, int version, bool hasProperties) {
  constexpr int uniformPart = 40;
  constexpr int unusedPart = 11;
  constexpr int fontFlags = 4;
  if (version >= 271) {
    walker.passText();
  } else if (version == 270) {
    walker.pass(unusedPart);
    int size = 0;
    for (int digit = 0; digit < 5; ++digit) {
      const char character = walker.number<char>();
      if (character >= '0' && character <= '9') size = size * 10 + character - '0';
    }
    walker.pass(size);
  }
  if (!hasProperties) return;
  walker.pass(uniformPart);
  if (version >= 273) {
    walker.pass(fontFlags);
    walker.passText();
    walker.passText();
  }
  for (int picture = 0; picture < 2; ++picture)
    if (walker.number<std::uint8_t>() == 1) walker.passText();
}

}  // namespace

Structure structureOf(norvane::File& file) {
  Structure result{"list file", {}};
  Walker walker(file);
  std::int64_t item = -1;
  std::uint64_t start = 0;
  try {
    const auto first = walker.number<std::int32_t>();
    if ((first & 0xFFFF) == arrayOfBytes && first >> 16 == 1) {
      result.format = "property store image of a list";
      return result;
    }
    const bool hasProperties = walker.number<std::uint8_t>() != 0;
    const auto version = walker.number<std::int16_t>();
    result.format += ", version " + std::to_string(version) +
                     (hasProperties ? ", with properties" : ", without properties");
    if (first < -1) {
      result.damage = "byte 0: the number of items is negative";
      return result;
    }
    for (item = 0; item <= first; ++item) {
      start = walker.at();
      // Records of the oldest versions may take no bytes.
      if (version < 270 && !hasProperties) break;
      passRecord(walker, version, hasProperties);
    }
    if (version >= 270 && walker.left() > 0)
      result.damage = "byte " + std::to_string(walker.at()) + ": " + std::to_string(walker.left()) +
                      " bytes follow the last item";
  } catch (const norvane::Failure&) {
    result.damage = item < 0 ? "the header is cut short"
                             : "byte " + std::to_string(start) + ": item " + std::to_string(item) +
                                   " does not end within the file";
  }
  return result;
}

}  // namespace tool
