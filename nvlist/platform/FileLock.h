#pragma once

#include <cstdint>
#include <filesystem>

namespace norvane {

/// Reserves a file for one writer among all processes. The system releases the lock when the
/// process ends, however it ends. Other programs may still write the file: only this class respects
/// the lock.
class FileLock {
 public:
  /// Creates the file if it is missing. Throws Failure 70 if it is locked already, by this process
  /// or another; 61 if the disk is full; 75 if it cannot be opened for writing. On a file system
  /// without locks nothing is locked.
  explicit FileLock(const std::filesystem::path& file);
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

  /// Waits until the contents of the file are on the disk.
  void flush() const;

 private:
  std::intptr_t handle_;
};

}  // namespace norvane
