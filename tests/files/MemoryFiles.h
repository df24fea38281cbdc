#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include <nvlist/platform/Files.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// Files in memory. Any operation can be made to fail.
class MemoryFiles : public Files {
 public:
  std::map<std::string, std::string> files;
  int operations = 0;
  /// The operation that fails, counted from 1; 0: none.
  int failing = 0;
  /// Number of files that are open.
  int open = 0;
  /// The largest number of bytes requested by a read.
  std::size_t largestRead = 0;
  /// Number of bytes by which files are shorter than their size says.
  std::uint64_t missing = 0;

  bool holdsFile(const std::string& path) override {
    operate();
    return files.contains(path);
  }
  std::unique_ptr<File> openFile(const std::string& path, FileMode mode) override {
    operate();
    if (mode == FileMode::read && !files.contains(path)) throw Failure(53, "File not found");
    if (mode != FileMode::read) files[path].clear();
    return std::make_unique<MemoryFile>(*this, files[path]);
  }

 protected:
  /// Runs before each operation.
  virtual void operate() {
    if (++operations == failing) throw Failure(57, "Device I/O error");
  }

 private:
  class MemoryFile final : public File {
   public:
    MemoryFile(MemoryFiles& of, std::string& bytes) : of_(of), bytes_(bytes) { ++of_.open; }
    ~MemoryFile() override { --of_.open; }
    std::uint64_t size() override {
      of_.operate();
      return bytes_.size() + of_.missing;
    }
    std::size_t read(char* bytes, std::size_t count) override {
      of_.operate();
      of_.largestRead = std::max(of_.largestRead, count);
      const std::size_t got = bytes_.copy(bytes, count, at_);
      at_ += got;
      return got;
    }
    void write(const char* bytes, std::size_t count) override {
      of_.operate();
      bytes_.append(bytes, count);
    }
    void close() override { of_.operate(); }

   private:
    MemoryFiles& of_;
    std::string& bytes_;
    std::size_t at_ = 0;
  };
};

}  // namespace norvane
