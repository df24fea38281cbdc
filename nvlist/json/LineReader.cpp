#include <nvlist/json/LineReader.h>
#include <nvlist/json/format.h>

#include <algorithm>
#include <cstring>

namespace norvane::json {

LineReader::LineReader(File& file, std::size_t padding)
    : file_(file), padding_(padding), whole_(file.size()), buffer_(format::blockSize + padding) {}

bool LineReader::next() {
  isTooLong_ = false;
  line_ = {};
  std::size_t searched = 0;
  for (;;) {
    const char* const first = buffer_.data() + begin_;
    const void* const found = std::memchr(first + searched, '\n', end_ - begin_ - searched);
    if (found) {
      const auto size = static_cast<std::size_t>(static_cast<const char*>(found) - first);
      if (!isTooLong_) line_ = {first, size};
      begin_ += size + 1;
      break;
    }
    searched = end_ - begin_;
    if (searched > format::longestLine) {
      isTooLong_ = true;
      begin_ = end_;
      searched = 0;
    }
    if (fill()) continue;
    if (begin_ == end_ && !isTooLong_) return false;
    if (!isTooLong_) line_ = {buffer_.data() + begin_, end_ - begin_};
    begin_ = end_;
    break;
  }
  ++number_;
  return true;
}

/// Moves the bytes that are left to the front and reads more. Returns false at the end of the file.
bool LineReader::fill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (end_ + padding_ == buffer_.size()) buffer_.resize(2 * end_ + padding_);
  const std::size_t got = file_.read(buffer_.data() + end_, buffer_.size() - padding_ - end_);
  end_ += got;
  done_ += got;
  return got > 0;
}

}  // namespace norvane::json
