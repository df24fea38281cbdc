// The standard library has no locks between processes, so this file calls the system.

#include <nvlist/platform/FileLock.h>

#include <cerrno>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

Failure locked() { return {70, "Permission denied"}; }
Failure diskFull() { return {61, "Disk full"}; }
Failure notAccessible() { return {75, "Path/File access error"}; }

}  // namespace

#ifdef _WIN32

namespace {

HANDLE handleOf(std::intptr_t number) { return reinterpret_cast<HANDLE>(number); }

}  // namespace

FileLock::FileLock(const std::filesystem::path& file) {
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE)
    throw GetLastError() == ERROR_DISK_FULL ? diskFull() : notAccessible();
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  // A byte far past the end: the contents remain readable and writable through other handles.
  OVERLAPPED place{};
  place.OffsetHigh = 0x40000000;
  if (!LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) &&
      GetLastError() == ERROR_LOCK_VIOLATION) {
    CloseHandle(handle);
    throw locked();
  }
}

FileLock::~FileLock() { CloseHandle(handleOf(handle_)); }

void FileLock::flush() const {
  if (!FlushFileBuffers(handleOf(handle_))) throw notAccessible();
}

#else

namespace {

/// Whether the path still leads to the open file, which another process may have replaced.
bool leadsTo(const char* path, int file) {
  struct stat named, opened;
  return stat(path, &named) == 0 && fstat(file, &opened) == 0 && named.st_dev == opened.st_dev &&
         named.st_ino == opened.st_ino;
}

}  // namespace

FileLock::FileLock(const std::filesystem::path& file) {
  constexpr mode_t readableAndWritable = 0666;
  // Non-blocking: a pipe without a reader fails here instead of waiting for one.
  const int opened =
      open(file.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, readableAndWritable);
  if (opened < 0) throw errno == ENOSPC ? diskFull() : notAccessible();
  handle_ = opened;
  const bool isTaken = flock(opened, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  if (isTaken || !leadsTo(file.c_str(), opened)) {
    ::close(opened);
    throw locked();
  }
}

FileLock::~FileLock() { ::close(static_cast<int>(handle_)); }

void FileLock::flush() const {
  if (fsync(static_cast<int>(handle_)) != 0) throw notAccessible();
}

#endif

}  // namespace norvane
