#include <nvlist/files/FileWriter.h>

#include <nvlist/files/windows1252.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>

namespace norvane {

/// Callers that need to know of a failure call flush().
FileWriter::~FileWriter() {
  if (!buffer_.empty()) ignoringFailures([&] { flush(); });
}

void FileWriter::flush() {
  std::string block;
  block.swap(buffer_);
  file_.write(block.data(), block.size());
  block.clear();
  buffer_.swap(block);
}

void FileWriter::text(std::string_view text) {
  const std::size_t start = buffer_.size();
  number(static_cast<std::uint32_t>(text.size()));
  const std::size_t first = buffer_.size();
  windows1252::append(buffer_, text);
  // The length counts bytes in the file, not bytes of UTF-8.
  const std::size_t size = buffer_.size() - first;
  const auto length = checked::narrow<std::int32_t>(static_cast<std::int64_t>(size));
  if (size != text.size()) put(buffer_.data() + start, length);
}

}  // namespace norvane
