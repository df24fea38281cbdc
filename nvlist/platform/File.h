#pragma once

#include <cstddef>
#include <cstdint>

namespace norvane {

enum class FileMode { read, write };

/// A file that Files::openFile has opened, from its first byte on. Destroying it closes it;
/// what fails then is lost, so a writer closes it first. Any call may throw.
class File {
 public:
  virtual ~File() = default;

  /// Bytes in a file to be read; more are not asked of it.
  virtual std::uint64_t size() = 0;
  /// Reads up to `count` bytes and answers how many; fewer only at the end of the file.
  virtual std::size_t read(char* bytes, std::size_t count) = 0;
  /// Writes all of them.
  virtual void write(const char* bytes, std::size_t count) = 0;
  /// Nothing else is called after it.
  virtual void close() = 0;
};

}  // namespace norvane
