#pragma once

#include <cstddef>
#include <cstdint>

namespace norvane {

/// How Files::openFile opens a file.
enum class FileMode {
  /// Reads an existing regular file.
  read,
  /// Writes a new file, or empties and rewrites an existing one. Devices and pipes are written too.
  write,
  /// Like `write`, for the files of lists: only a regular file that is not read-only is written,
  /// and only by one writer at a time. The file keeps its permissions. A symbolic link is followed.
  save,
  /// Like `save`, but the bytes go to a second file in the same folder, which replaces the old file
  /// when it is closed. The old file survives a save that fails or is interrupted. Hard links to it
  /// keep the old contents.
  saveBeside
};

/// An open file, positioned at its first byte. The destructor closes it and ignores failures, so
/// call close() after writing. Every call may throw.
class File {
 public:
  virtual ~File() = default;

  /// Size in bytes of a file opened for reading. read() returns no more than this.
  virtual std::uint64_t size() = 0;
  /// Reads up to `count` bytes and returns their number, which is less than `count` only at the end
  /// of the file.
  virtual std::size_t read(char* bytes, std::size_t count) = 0;
  /// Writes all `count` bytes.
  virtual void write(const char* bytes, std::size_t count) = 0;
  /// The last call on a file.
  virtual void close() = 0;
};

}  // namespace norvane
