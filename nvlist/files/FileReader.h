#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>
#include <type_traits>
#include <vector>

#include <nvlist/objects/Failure.h>
#include <nvlist/platform/File.h>

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

/// Reads a file from front to back. What a file says of its own lengths is believed only as far as
/// the file goes: no more memory is taken than the file is long, but for one block.
class FileReader {
 public:
  explicit FileReader(File& file) : file_(file), unread_(file.size()) {}

  /// Bytes up to the end of the file.
  std::uint64_t left() const { return unread_ + (end_ - at_); }

  /// The next bytes, to be looked at until the next call. Throws Failure 62 where the file ends
  /// before; a negative count is more than any file has.
  std::string_view bytes(std::int64_t count) {
    if (static_cast<std::uint64_t>(count) > end_ - at_) fetch(static_cast<std::uint64_t>(count));
    const char* first = buffer_.data() + at_;
    at_ += static_cast<std::size_t>(count);
    return {first, static_cast<std::size_t>(count)};
  }

  template <std::integral Integer>
  Integer number() {
    return numberOfBytes<Integer>(bytes(sizeof(Integer)).data());
  }

 private:
  void fetch(std::uint64_t count);

  File& file_;
  std::uint64_t unread_;
  std::vector<char> buffer_;
  // Of what stands in the buffer.
  std::size_t at_ = 0;
  std::size_t end_ = 0;
};

}  // namespace norvane
