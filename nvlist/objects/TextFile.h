#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace norvane {

/// A text file on the disk, open until it is closed or the object ends. Paths are UTF-8; texts
/// stand in the file byte by byte as they are. Each call throws where it cannot be done.
class TextFile {
 public:
  /// Takes a regular file only: others have no length, and opening them might wait for ever.
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
  void requireOpen() const;

  std::filebuf file_;
  std::uint64_t length_ = 0;
};

}  // namespace norvane
