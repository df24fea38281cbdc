#include <nvlist/files/FileReader.h>

#include <algorithm>

namespace norvane {
namespace {

constexpr std::size_t blockSize = 256 * 1024;

}  // namespace

/// Brings so many bytes into the buffer at once.
void FileReader::fetch(std::uint64_t count) {
  if (count > left()) throw Failure::pastEndOfFile();
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(at_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= at_;
  at_ = 0;
  const std::uint64_t wanted =
      std::max<std::uint64_t>(count, std::min<std::uint64_t>(blockSize, left()));
  if (buffer_.size() < wanted) buffer_.resize(static_cast<std::size_t>(wanted));
  while (end_ < count) {
    const auto room =
        static_cast<std::size_t>(std::min<std::uint64_t>(buffer_.size() - end_, unread_));
    const std::size_t got = file_.read(buffer_.data() + end_, room);
    // The file has become shorter since it was opened.
    if (got == 0) throw Failure::pastEndOfFile();
    end_ += got;
    unread_ -= got;
  }
}

}  // namespace norvane
