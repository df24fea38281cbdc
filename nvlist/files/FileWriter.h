#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include <nvlist/platform/File.h>

namespace norvane {

/// Writes a file from front to back, in big blocks. Destroying it hands over what is left, so that
/// a file that is given up holds all that was written before; what fails then is lost.
class FileWriter {
 public:
  explicit FileWriter(File& file) : file_(file) {}
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;
  ~FileWriter();

  void bytes(std::string_view bytes) { buffer_ += bytes; }

  /// Little-endian.
  template <std::integral Integer>
  void number(Integer number) {
    char bytes[sizeof number];
    put(bytes, number);
    buffer_.append(bytes, sizeof number);
  }

  /// A text with its length in front. Throws Failure 6 for one whose length is no 32-bit number.
  void text(std::string_view text);

  /// Hands over what has become a block. Called now and then, it keeps the memory small.
  void writeBlock() {
    if (buffer_.size() >= blockSize) flush();
  }
  /// Hands over all. What a file does not take is not handed over a second time.
  void flush();

 private:
  static constexpr std::size_t blockSize = 256 * 1024;

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
