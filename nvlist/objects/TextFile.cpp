#include <nvlist/objects/TextFile.h>

#include <cerrno>
#include <filesystem>
#include <ios>
#include <string_view>
#include <system_error>

#include <nvlist/objects/Failure.h>

namespace norvane {
namespace {

namespace fs = std::filesystem;
using Traits = std::filebuf::traits_type;

Failure badFile() { return {52, "Bad file name or number"}; }
Failure deviceFailure() { return {57, "Device I/O error"}; }
Failure accessFailure() { return {75, "Path/File access error"}; }

Failure writeFailure() {
  if (errno == ENOSPC) return {61, "Disk full"};
  return deviceFailure();
}

/// Whatever stands behind a zero character would be lost without a word.
fs::path pathOf(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw badFile();
  return std::u8string(path.begin(), path.end());
}

void requireFolderOf(const fs::path& path) {
  std::error_code error;
  const fs::path folder = path.parent_path();
  if (!folder.empty() && !fs::is_directory(folder, error)) throw Failure(76, "Path not found");
}

/// Some libraries throw where a read fails, others answer the end of the file.
template <class Read>
auto reading(Read&& read) {
  try {
    return read();
  } catch (const std::ios_base::failure&) {
    throw deviceFailure();
  }
}

}  // namespace

void TextFile::openForInput(const std::string& path) {
  const fs::path place = pathOf(path);
  std::error_code error;
  const fs::file_status status = fs::status(place, error);
  if (status.type() == fs::file_type::not_found && !place.empty()) {
    requireFolderOf(place);
    throw Failure(53, "File not found");
  }
  if (!fs::is_regular_file(status)) throw accessFailure();
  length_ = fs::file_size(place, error);
  if (error || !file_.open(place, std::ios::in | std::ios::binary)) throw accessFailure();
}

void TextFile::openForOutput(const std::string& path) {
  const fs::path place = pathOf(path);
  requireFolderOf(place);
  errno = 0;
  if (file_.open(place, std::ios::out | std::ios::trunc | std::ios::binary)) return;
  throw errno == ENOSPC ? writeFailure() : accessFailure();
}

void TextFile::close() {
  errno = 0;
  if (file_.is_open() && !file_.close()) throw writeFailure();
}

void TextFile::requireOpen() const {
  if (!file_.is_open()) throw badFile();
}

std::uint64_t TextFile::length() {
  requireOpen();
  return length_;
}

std::string TextFile::read(std::uint64_t count) {
  requireOpen();
  std::string text;
  if (count > text.max_size()) throw Failure::outOfMemory();
  text.resize(static_cast<std::size_t>(count));
  const auto wanted = static_cast<std::streamsize>(count);
  const auto got = reading([&] { return file_.sgetn(text.data(), wanted); });
  if (got != wanted) throw Failure(62, "Input past end of file");
  return text;
}

bool TextFile::isAtEnd() {
  requireOpen();
  return reading([&] { return file_.sgetc(); }) == Traits::eof();
}

std::string TextFile::readLine() {
  requireOpen();
  return reading([&] {
    std::string line;
    for (auto next = file_.sbumpc(); next != Traits::eof() && next != '\n'; next = file_.sbumpc()) {
      if (next == '\r') {
        if (file_.sgetc() == '\n') file_.sbumpc();
        break;
      }
      line += Traits::to_char_type(next);
    }
    return line;
  });
}

void TextFile::print(const std::string& text) {
  requireOpen();
  errno = 0;
  for (const std::string_view part : {std::string_view(text), std::string_view("\r\n")}) {
    const auto size = static_cast<std::streamsize>(part.size());
    if (file_.sputn(part.data(), size) != size) throw writeFailure();
  }
}

}  // namespace norvane
