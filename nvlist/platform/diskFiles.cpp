#include <nvlist/platform/diskFiles.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <ios>
#include <optional>
#include <system_error>

#include <nvlist/platform/FileLock.h>
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

/// The system would cut the path at a zero character.
bool isCut(const std::string& path) { return path.find('\0') != std::string::npos; }

std::string nameOf(const fs::path& path) {
  const std::u8string name = path.filename().u8string();
  return {name.begin(), name.end()};
}

/// A file name with wildcards as a LikePattern, whose other special characters are escaped.
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

/// Returns the size of a regular file, and refuses all else: the size of a device means nothing,
/// and opening a pipe may block.
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

/// Returns the path. Throws if no list may be saved there: the file is read-only or not a regular
/// file, or its folder is missing.
const fs::path& savable(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    requireFolderOf(path);
    return path;
  }
  // Checked explicitly, because privileged users can open files that nobody may write.
  constexpr auto anyWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  const bool isReadOnly = (status.permissions() & anyWrite) == fs::perms::none;
  if (!fs::is_regular_file(status) || isReadOnly) throw accessFailure();
  return path;
}

/// Follows symbolic links, whose last target may be missing.
fs::path targetOf(fs::path path) {
  while (fs::is_symlink(path)) path = path.parent_path() / fs::read_symlink(path);
  return path;
}

/// Unbuffered: callers read and write large blocks.
class DiskFile : public File {
 public:
  DiskFile(const fs::path& path, FileMode mode) {
    if (mode == FileMode::read)
      size_ = sizeOf(path);
    else
      requireFolderOf(path);
    open(path, mode == FileMode::read ? std::ios::in : std::ios::out | std::ios::trunc);
  }

  std::uint64_t size() override { return size_; }

  std::size_t read(char* bytes, std::size_t count) override {
    // If a read fails, some standard libraries throw, others return the end of the file.
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

 protected:
  DiskFile() = default;

  void open(const fs::path& path, std::ios::openmode direction) {
    file_.pubsetbuf(nullptr, 0);
    errno = 0;
    if (!file_.open(path, direction | std::ios::binary))
      throw errno == ENOSPC ? writeFailure() : accessFailure();
  }
  /// Closes the file, whether or not everything has been written.
  void abandon() { file_.close(); }

 private:
  std::filebuf file_;
  std::uint64_t size_ = 0;
};

/// FileMode::save. The file is locked before its old contents are dropped.
class SavedFile final : public DiskFile {
 public:
  explicit SavedFile(const fs::path& path) : lock_(savable(path)) {
    open(path, std::ios::out | std::ios::trunc);
  }

 private:
  FileLock lock_;
};

/// FileMode::saveBeside. The old file is locked too, for writers that do not write beside it.
class FileBeside final : public DiskFile {
 public:
  explicit FileBeside(const fs::path& path) : old_(targetOf(savable(path))), new_(old_) {
    new_ += ".nvlist-new";
    const bool hasOld = fs::exists(old_);
    if (hasOld) oldLock_.emplace(old_);
    newLock_.emplace(savable(new_));
    try {
      open(new_, std::ios::out | std::ios::trunc);
      if (hasOld) fs::permissions(new_, fs::status(old_).permissions());
    } catch (...) {
      removeNew();
      throw;
    }
  }
  ~FileBeside() override {
    if (!isReplaced_) removeNew();
  }

  void close() override {
    DiskFile::close();
    newLock_->flush();
    // Windows does not replace a file that is open.
    oldLock_.reset();
    std::error_code error;
    fs::rename(new_, old_, error);
    if (error) throw accessFailure();
    isReplaced_ = true;
  }

 private:
  void removeNew() {
    abandon();
    std::error_code error;
    fs::remove(new_, error);
  }

  const fs::path old_;
  fs::path new_;
  std::optional<FileLock> oldLock_;
  std::optional<FileLock> newLock_;
  bool isReplaced_ = false;
};

std::unique_ptr<File> opened(const fs::path& path, FileMode mode) {
  switch (mode) {
    case FileMode::save:
      return std::make_unique<SavedFile>(path);
    case FileMode::saveBeside:
      return std::make_unique<FileBeside>(path);
    default:
      return std::make_unique<DiskFile>(path, mode);
  }
}

}  // namespace

bool holdsAny(const std::string& path) {
  if (isCut(path)) return false;
  const fs::path place = pathOf(path);
  const std::string name = nameOf(place);
  if (name.find_first_of("*?") != std::string::npos) return anyMatches(place.parent_path(), name);
  std::error_code error;
  return !name.empty() && fs::exists(place, error);
}

std::unique_ptr<File> open(const std::string& path, FileMode mode) {
  if (isCut(path)) throw Failure(52, "Bad file name or number");
  try {
    return opened(pathOf(path), mode);
  } catch (const fs::filesystem_error&) {
    throw accessFailure();
  }
}

}  // namespace norvane::disk
