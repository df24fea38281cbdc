#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

#include <nvlist/platform/File.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// Converts sizeof(Integer) little-endian bytes to a number.
template <std::integral Integer>
Integer numberOfBytes(const char* bytes) {
  std::make_unsigned_t<Integer> number = 0;
  for (std::size_t i = sizeof number; i-- > 0;)
    number = static_cast<std::make_unsigned_t<Integer>>((std::uint64_t{number} << 8) |
                                                        static_cast<unsigned char>(bytes[i]));
  return static_cast<Integer>(number);
}

/// Reads bytes from front to back, without copying them: they must outlive the reader and what it
/// returns. A length found in the data never reads past the end.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_(bytes) {}

  std::size_t left() const { return rest_.size(); }

  /// The next `count` bytes. Throws Failure 62 if fewer are left or `count` is negative.
  std::string_view bytes(std::int64_t count) {
    if (!has(count)) throw Failure::pastEndOfFile();
    const std::string_view result = rest_.substr(0, static_cast<std::size_t>(count));
    rest_.remove_prefix(result.size());
    return result;
  }

  /// Skips `count` bytes. Returns false, and skips nothing, if fewer are left or `count` is
  /// negative.
  bool pass(std::int64_t count) {
    if (!has(count)) return false;
    rest_.remove_prefix(static_cast<std::size_t>(count));
    return true;
  }

  template <std::integral Integer>
  Integer number() {
    return numberOfBytes<Integer>(bytes(sizeof(Integer)).data());
  }

 private:
  /// A negative count becomes a huge unsigned one.
  bool has(std::int64_t count) const { return static_cast<std::uint64_t>(count) <= rest_.size(); }

  std::string_view rest_;
};

/// Reads the next `count` bytes of a file, or what is left of it.
std::vector<char> readBytes(File& file, std::size_t count);

}  // namespace norvane
