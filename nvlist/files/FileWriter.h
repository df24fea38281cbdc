#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include <nvlist/platform/File.h>

namespace norvane {

/// Writes a file from front to back in large blocks. The destructor writes what is still buffered,
/// so that a save that fails leaves everything up to the failure in the file; failures in the
/// destructor are ignored.
class FileWriter {
 public:
  explicit FileWriter(File& file) : file_(file) {}
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;
  ~FileWriter();

  void bytes(std::string_view bytes) { buffer_ += bytes; }

  /// Writes a number in little-endian order.
  template <std::integral Integer>
  void number(Integer number) {
    char bytes[sizeof number];
    put(bytes, number);
    buffer_.append(bytes, sizeof number);
  }

  /// Writes a text after its length. Throws Failure 6 if the length does not fit 32 bits.
  void text(std::string_view text);

  /// Writes the buffer to the file if it has reached the size of a block.
  void writeBlock() {
    if (buffer_.size() >= blockSize) flush();
  }
  /// Writes the buffer to the file. If that fails, the buffer is dropped.
  void flush();

 private:
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;

  template <std::integral Integer>
  static void put(char* bytes, Integer number) {
    auto rest = static_cast<std::make_unsigned_t<Integer>>(number);
    for (std::size_t i = 0; i < sizeof rest; ++i)
      bytes[i] = static_cast<char>(std::uint64_t{rest} >> 8 * i & 0xFF);
  }

  File& file_;
  std::string buffer_;
};

}  // namespace norvane
