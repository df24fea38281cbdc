#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "../Lists.h"
#include "FileBytes.h"
#include "MemoryFiles.h"

namespace norvane {

using namespace bytes;

/// A list and files in memory; records every event of list files.
class FileTest : public ListTest, protected __nvList {
 protected:
  FileTest() {
    list.addSink(*this);
    list.AutoRedraw(false);
  }
  ~FileTest() override { list.removeSink(*this); }

  void ErrorListInput() override { heard += "input! "; }
  void ErrorListSave() override { heard += "save! "; }
  void ListSaving(Variant& Index) override { progress(Index); }
  void ListReading(Variant& Index) override { progress(Index); }

  /// The events and reports since the last call.
  std::string events() {
    EXPECT_EQ(memory.open, 0);
    return std::exchange(heard, "") + reports();
  }

  std::string save(Boolean properties = true) {
    list.ListSave("file", properties);
    return memory.files["file"];
  }
  void input(const std::string& bytes, bool properties = true) {
    memory.files["file"] = bytes;
    list.ListInput("file", properties);
  }

  void expectRefused(const std::string& bytes, const std::string& what) {
    input(bytes);
    EXPECT_EQ(events(), "input! ") << what;
    EXPECT_EQ(list.ItemsCount(), 0) << what;
  }

  /// Every field of an item except its pictures.
  static std::string told(const ListItem& item) {
    std::string result = item.Text + "|";
    for (const Boolean flag : {item.Checked, item.AllowEdit, item.Enabled, item.Selected, item.Bold,
                               item.Italic, item.Underline})
      result += flag.number() == -1 ? '1' : flag.number() == 0 ? '0' : '?';
    result += " " + std::to_string(item.Alignment);
    for (const Variant& colour : {item.BackColor, Variant(item.BackColorDis), item.BackColorSelect,
                                  item.ForeColor, Variant(item.ForeColorDis), item.ForeColorSelect})
      result += " " + colour.toText();
    return result + "|" + item.Key + "|" + item.Tag.toText();
  }
  static std::string ordinaryItem(const std::string& text) {
    return text + "|0010000 0 def -2147483626 def def -2147483631 def||";
  }

  /// Runs `operation` with the first, the second, ... file operation failing, until none fails any
  /// more, and returns the events of each run.
  template <class Operation>
  std::string eachFailing(Operation&& operation) {
    std::string result;
    for (memory.failing = 1;; ++memory.failing) {
      memory.operations = 0;
      operation();
      if (memory.operations < memory.failing) break;
      result += "[" + events() + "]";
    }
    memory.failing = 0;
    events();
    return result;
  }

  MemoryFiles memory;
  std::string heard;
  /// What the host does for each item saved or read.
  std::function<void(Variant&)> onProgress;

 private:
  void progress(Variant& Index) {
    heard += Index.toText() + " ";
    if (onProgress) onProgress(Index);
  }
};

/// A picture with the given bytes.
struct BytePicture final : PictureObject {
  explicit BytePicture(std::string itsBytes) : bytes(std::move(itsBytes)) {}
  float width() const override { return 1; }
  float height() const override { return 1; }
  std::vector<std::byte> fileBytes() const override {
    if (bytes == "broken") throw std::runtime_error("no bytes");
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    return {first, first + bytes.size()};
  }

  std::string bytes;
};

inline std::string fileOf(const Picture& picture) {
  if (!picture) return "none";
  const auto bytes = picture->fileBytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace norvane
