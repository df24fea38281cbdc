#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "../Lists.h"

namespace norvane {

/// Bytes put together by hand.
class Bytes {
 public:
  Bytes& byte(int value) { return little(value, 1); }
  Bytes& int16(int value) { return little(value, 2); }
  Bytes& int32(int value) { return little(value, 4); }
  Bytes& raw(const std::string& bytes) {
    bytes_ += bytes;
    return *this;
  }
  /// With its length in front.
  Bytes& text(const std::string& bytes) { return int32(static_cast<int>(bytes.size())).raw(bytes); }
  operator std::string() const { return bytes_; }

 private:
  Bytes& little(int value, int size) {
    for (int i = 0; i < size; ++i) bytes_ += static_cast<char>(value >> 8 * i);
    return *this;
  }

  std::string bytes_;
};

/// A program whose files stand in memory, and of whose file operations any can fail.
class MemoryFiles : public HeadlessApplication {
 public:
  explicit MemoryFiles(HeadlessApplication& boxesGoTo) : boxesGoTo_(boxesGoTo) {}

  int operations = 0;
  /// Which operation fails, from 1; 0 none.
  int failing = 0;
  int open = 0;
  /// Bytes that the largest read asked for.
  std::size_t largestRead = 0;
  /// Answers of holdsFile to come; afterwards it looks for the file.
  std::vector<bool> nextAnswers;

  void MsgBox(const std::string& text, std::int32_t style, const std::string& title) override {
    boxesGoTo_.MsgBox(text, style, title);
  }
  bool holdsFile(const std::string& path) override {
    operate();
    if (nextAnswers.empty()) return files.contains(path);
    const bool answer = nextAnswers.front();
    nextAnswers.erase(nextAnswers.begin());
    return answer;
  }
  void removeFile(const std::string& path) override {
    operate();
    files.erase(path);
  }
  std::unique_ptr<File> openFile(const std::string& path, FileMode mode) override {
    operate();
    if (mode == FileMode::read && !files.contains(path)) throw Failure(53, "File not found");
    if (mode == FileMode::write) files[path].clear();
    return std::make_unique<MemoryFile>(*this, files[path]);
  }

 private:
  class MemoryFile final : public File {
   public:
    MemoryFile(MemoryFiles& of, std::string& bytes) : of_(of), bytes_(bytes) { ++of_.open; }
    ~MemoryFile() override { --of_.open; }
    std::uint64_t size() override {
      of_.operate();
      return bytes_.size();
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

  void operate() {
    if (++operations == failing) throw Failure(57, "Device I/O error");
  }

  HeadlessApplication& boxesGoTo_;
};

/// A list and files in memory, with every event of list files written down.
class FileTest : public ListTest, protected __nvList {
 protected:
  FileTest() {
    list.addSink(*this);
    list.AutoRedraw(false);
  }
  ~FileTest() override { list.removeSink(*this); }

  void ErrorListInput() override { heard += "ErrorListInput "; }
  void ErrorListSave() override { heard += "ErrorListSave "; }
  void ListSaving(Variant& Index) override { progress(Index); }
  void ListReading(Variant& Index) override { progress(Index); }

  /// What was heard since the last call.
  std::string events() { return std::exchange(heard, ""); }

  std::string save(bool properties = true) {
    list.ListSave("file", properties);
    return memory.files["file"];
  }
  void input(const std::string& bytes, bool properties = true) {
    memory.files["file"] = bytes;
    list.ListInput("file", properties);
  }

  MemoryFiles memory{application};
  std::string heard;
  /// What the host does for each item of a list that is saved or read.
  std::function<void(Variant&)> onProgress;

 private:
  void progress(Variant& Index) {
    heard += Index.toText() + " ";
    if (onProgress) onProgress(Index);
  }
};

/// A picture with the bytes that it is given.
class BytePicture final : public PictureObject {
 public:
  explicit BytePicture(std::string bytes) : bytes_(std::move(bytes)) {}
  float width() const override { return 1; }
  float height() const override { return 1; }
  std::vector<std::byte> fileBytes() const override {
    if (bytes_ == "broken") throw std::runtime_error("no bytes");
    const auto* first = reinterpret_cast<const std::byte*>(bytes_.data());
    return {first, first + bytes_.size()};
  }

 private:
  std::string bytes_;
};

inline std::string fileOf(const Picture& picture) {
  if (!picture) return "none";
  const auto bytes = picture->fileBytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace norvane
