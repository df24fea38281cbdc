#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <nvlist/platform/File.h>

namespace norvane {

/// A text file, open until it is closed or the object ends; what fails in the latter case is lost.
/// Paths are UTF-8; texts stand in the file byte by byte as they are. Each call throws where
/// it cannot be done, as Files::openFile describes.
class TextFile {
 public:
  TextFile() = default;
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  ~TextFile();

  void openForInput(const std::string& path);
  /// Makes a file new, in the place of an old one.
  void openForOutput(const std::string& path);
  void close();

  /// Of a file open for input: its bytes.
  std::uint64_t length();
  /// The next bytes. A file that has fewer is a failure.
  std::string read(std::uint64_t count);
  bool isAtEnd();
  /// The text up to the next line end, or to the end of the file. A line ends with a carriage
  /// return, a line feed or both in this order.
  std::string readLine();

  /// Writes the text and a line end, which is a carriage return and a line feed.
  void print(const std::string& text);

 private:
  File& file();
  /// The next byte, which stays; -1 at the end of the file.
  int peek();
  void writeBlock();

  std::unique_ptr<File> file_;
  FileMode mode_ = FileMode::read;
  /// Read ahead, from `at_` on, or to be written.
  std::string block_;
  std::size_t at_ = 0;
};

}  // namespace norvane
