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

/// The number that little-endian bytes stand for.
template <std::integral Integer>
Integer numberOfBytes(const char* bytes) {
  std::make_unsigned_t<Integer> number = 0;
  for (std::size_t i = sizeof number; i-- > 0;)
    number = static_cast<std::make_unsigned_t<Integer>>((std::uint64_t{number} << 8) |
                                                        static_cast<unsigned char>(bytes[i]));
  return static_cast<Integer>(number);
}

/// Reads bytes of a file from front to back. The bytes are the caller's; a length that they tell is
/// believed only as far as they go.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_(bytes) {}

  std::size_t left() const { return rest_.size(); }

  /// The next bytes. Throws Failure 62 where there are fewer; a negative count is more than there
  /// ever is.
  std::string_view bytes(std::int64_t count) {
    if (!has(count)) throw Failure::pastEndOfFile();
    const std::string_view result = rest_.substr(0, static_cast<std::size_t>(count));
    rest_.remove_prefix(result.size());
    return result;
  }

  /// Leaves the next bytes out. False where there are fewer; none is left out then.
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
  bool has(std::int64_t count) const { return static_cast<std::uint64_t>(count) <= rest_.size(); }

  std::string_view rest_;
};

/// The next bytes of a file; fewer where it ends before.
std::vector<char> readBytes(File& file, std::size_t count);

}  // namespace norvane
