#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <nvlist/platform/File.h>

namespace norvane {

/// A text file. Destruction closes it and ignores failures. Paths are UTF-8; texts are read and
/// written byte by byte. Calls throw as Files and File do, and Failure 52 without an open file.
class TextFile {
 public:
  TextFile() = default;
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  ~TextFile();

  void openForInput(const std::string& path);
  /// Creates a file, replacing an old one.
  void openForOutput(const std::string& path);
  void close();

  /// The size in bytes of a file open for input.
  std::uint64_t length();
  /// The next `count` bytes. Throws Failure 62 if there are fewer.
  std::string read(std::uint64_t count);
  bool isAtEnd();
  /// The text up to the next line end or the end of the file. Lines end with CR, LF or CR LF.
  std::string readLine();

  /// Writes the text and a line end (CR LF).
  void print(const std::string& text);

 private:
  File& file();
  /// The next byte without consuming it; -1 at the end of the file.
  int peek();
  void writeBlock();

  std::unique_ptr<File> file_;
  FileMode mode_ = FileMode::read;
  /// Bytes read ahead, from `at_` on, or bytes yet to be written.
  std::string block_;
  std::size_t at_ = 0;
};

}  // namespace norvane
