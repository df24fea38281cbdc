#pragma once

#include <cstddef>
#include <cstdint>

namespace norvane {

enum class FileMode { read, write };

/// An open file, positioned at its first byte. Its destruction closes it and ignores failures, so
/// writers should call close(). Any call may throw.
class File {
 public:
  virtual ~File() = default;

  /// The size in bytes of a file opened for reading. No caller reads beyond it.
  virtual std::uint64_t size() = 0;
  /// Reads up to `count` bytes and returns their number, which is less only at the end of the file.
  virtual std::size_t read(char* bytes, std::size_t count) = 0;
  /// Writes all `count` bytes.
  virtual void write(const char* bytes, std::size_t count) = 0;
  /// The last call to a file.
  virtual void close() = 0;
};

}  // namespace norvane
