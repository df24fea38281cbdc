#include <nvlist/objects/TextFile.h>

#include <algorithm>
#include <utility>

#include <nvlist/platform/Files.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

constexpr std::size_t blockSize = 1 << 16;

}  // namespace

/// Callers that need to know of a failure call close().
TextFile::~TextFile() {
  ignoringFailures([&] { close(); });
}

void TextFile::openForInput(const std::string& path) {
  mode_ = FileMode::read;
  file_ = Files::inUse().openFile(path, mode_);
}

void TextFile::openForOutput(const std::string& path) {
  mode_ = FileMode::write;
  file_ = Files::inUse().openFile(path, mode_);
}

void TextFile::close() {
  if (!file_) return;
  writeBlock();
  const std::unique_ptr<File> closing = std::move(file_);
  closing->close();
}

void TextFile::writeBlock() {
  if (mode_ == FileMode::read || block_.empty()) return;
  const std::string block = std::exchange(block_, {});
  file().write(block.data(), block.size());
}

File& TextFile::file() {
  if (!file_) throw Failure(52, "Bad file name or number");
  return *file_;
}

std::uint64_t TextFile::length() { return file().size(); }

std::string TextFile::read(std::uint64_t count) {
  if (count > std::string().max_size()) throw Failure::outOfMemory();
  const auto wanted = static_cast<std::size_t>(count);
  std::string text(wanted, '\0');
  std::size_t got = std::min(wanted, block_.size() - at_);
  block_.copy(text.data(), got, at_);
  at_ += got;
  while (got < wanted) {
    const std::size_t more = file().read(text.data() + got, wanted - got);
    if (more == 0) throw Failure::pastEndOfFile();
    got += more;
  }
  return text;
}

int TextFile::peek() {
  if (at_ == block_.size()) {
    block_.resize(blockSize);
    // If the read fails, the block counts as consumed.
    at_ = blockSize;
    block_.resize(file().read(block_.data(), blockSize));
    at_ = 0;
  }
  return block_.empty() ? -1 : static_cast<unsigned char>(block_[at_]);
}

bool TextFile::isAtEnd() {
  file();
  return peek() < 0;
}

std::string TextFile::readLine() {
  std::string line;
  for (int next = peek(); next >= 0; next = peek()) {
    ++at_;
    if (next == '\n') break;
    if (next == '\r') {
      if (peek() == '\n') ++at_;
      break;
    }
    line += static_cast<char>(next);
  }
  return line;
}

void TextFile::print(const std::string& text) {
  file();
  block_ += text + "\r\n";
  if (block_.size() >= blockSize) writeBlock();
}

}  // namespace norvane
