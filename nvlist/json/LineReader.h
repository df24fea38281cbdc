#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include <nvlist/platform/File.h>

namespace norvane::json {

/// Reads a file line by line through a buffer that holds a block and, if it is longer, the current
/// line.
class LineReader {
 public:
  /// `padding` bytes after each line can be read, whatever they contain.
  LineReader(File& file, std::size_t padding);

  /// Reads the next line, without its line feed. Returns false at the end of the file.
  bool next();

  /// The line just read, valid until the next one; empty if it was too long.
  std::string_view line() const { return line_; }
  /// Whether the line is longer than format::longestLine. It was skipped.
  bool isTooLong() const { return isTooLong_; }
  /// The number of the line, counted from 1.
  std::uint64_t number() const { return number_; }
  /// Number of bytes read, and the size of the file.
  std::uint64_t done() const { return done_; }
  std::uint64_t whole() const { return whole_; }

 private:
  bool fill();

  File& file_;
  const std::size_t padding_;
  const std::uint64_t whole_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  ///< of the bytes not yet returned
  std::size_t end_ = 0;
  std::string_view line_;
  bool isTooLong_ = false;
  std::uint64_t number_ = 0;
  std::uint64_t done_ = 0;
};

}  // namespace norvane::json
