#include <nvlist/platform/diskFiles.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <ios>
#include <system_error>

#include <nvlist/values/Failure.h>
#include <nvlist/values/LikePattern.h>

namespace norvane::disk {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr bool ignoresCase = true;
#else
constexpr bool ignoresCase = false;
#endif

fs::path pathOf(const std::string& path) { return std::u8string(path.begin(), path.end()); }

/// The system would silently ignore what follows a zero character.
fs::path checkedPathOf(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw Failure(52, "Bad file name or number");
  return pathOf(path);
}

std::string nameOf(const fs::path& path) {
  const std::u8string name = path.filename().u8string();
  return {name.begin(), name.end()};
}

/// A file name with wildcards as a pattern, in which # and [ are special too.
LikePattern patternOf(const std::string& name) {
  std::string pattern;
  for (const char c : name) {
    if (c == '#' || c == '[')
      pattern.append("[").append(1, c).append("]");
    else
      pattern += c;
  }
  return {pattern, ignoresCase};
}

bool anyMatches(fs::path folder, const std::string& name) {
  const LikePattern pattern = patternOf(name);
  const bool mayLackEnding = name.ends_with(".*");
  const LikePattern bare = patternOf(mayLackEnding ? name.substr(0, name.size() - 2) : name);
  if (folder.empty()) folder = ".";
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string candidate = nameOf(entry->path());
    if (pattern.matches(candidate) || (mayLackEnding && bare.matches(candidate))) return true;
  }
  return false;
}

Failure accessFailure() { return {75, "Path/File access error"}; }
Failure deviceFailure() { return {57, "Device I/O error"}; }

Failure writeFailure() {
  if (errno == ENOSPC) return {61, "Disk full"};
  return deviceFailure();
}

void requireFolderOf(const fs::path& path) {
  std::error_code error;
  const fs::path folder = path.parent_path();
  if (!folder.empty() && !fs::is_directory(folder, error)) throw Failure(76, "Path not found");
}

/// Only regular files: others have no size, and opening them might block for ever.
std::uint64_t sizeOf(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found && !path.empty()) {
    requireFolderOf(path);
    throw Failure(53, "File not found");
  }
  if (!fs::is_regular_file(status)) throw accessFailure();
  const std::uint64_t size = fs::file_size(path, error);
  if (error) throw accessFailure();
  return size;
}

/// Unbuffered, since callers read and write in large blocks.
class DiskFile final : public File {
 public:
  DiskFile(const fs::path& path, FileMode mode) {
    if (mode == FileMode::read)
      size_ = sizeOf(path);
    else
      requireFolderOf(path);
    file_.pubsetbuf(nullptr, 0);
    const auto direction = mode == FileMode::read ? std::ios::in : std::ios::out | std::ios::trunc;
    errno = 0;
    if (!file_.open(path, direction | std::ios::binary))
      throw errno == ENOSPC ? writeFailure() : accessFailure();
  }

  std::uint64_t size() override { return size_; }

  std::size_t read(char* bytes, std::size_t count) override {
    // If a read fails, some standard libraries throw and others return the end of the file.
    try {
      return static_cast<std::size_t>(file_.sgetn(bytes, static_cast<std::streamsize>(count)));
    } catch (const std::ios_base::failure&) {
      throw deviceFailure();
    }
  }

  void write(const char* bytes, std::size_t count) override {
    const auto size = static_cast<std::streamsize>(count);
    errno = 0;
    if (file_.sputn(bytes, size) != size) throw writeFailure();
  }

  void close() override {
    errno = 0;
    if (!file_.close()) throw writeFailure();
  }

 private:
  std::filebuf file_;
  std::uint64_t size_ = 0;
};

}  // namespace

bool holdsAny(const std::string& path) {
  const fs::path place = pathOf(path);
  const std::string name = nameOf(place);
  if (name.find_first_of("*?") != std::string::npos) return anyMatches(place.parent_path(), name);
  std::error_code error;
  return !name.empty() && fs::exists(place, error);
}

void remove(const std::string& path) {
  const fs::path place = checkedPathOf(path);
  std::error_code error;
  if (!fs::is_regular_file(place, error)) return;
  fs::remove(place, error);
  if (error) throw accessFailure();
}

std::unique_ptr<File> open(const std::string& path, FileMode mode) {
  return std::make_unique<DiskFile>(checkedPathOf(path), mode);
}

}  // namespace norvane::disk
