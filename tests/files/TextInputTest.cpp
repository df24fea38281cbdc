#include <filesystem>
#include <fstream>
#include <random>

#include "FileTest.h"

#include <nvlist/files/fileExists.h>
#include <nvlist/files/windows1252.h>
#include <nvlist/platform/diskFiles.h>

namespace norvane {
namespace {

class TextInput : public FileTest {
 protected:
  std::string pieces(const std::string& text, const Variant& delimiter) {
    list.ItemsClear();
    memory.files["text"] = text;
    EXPECT_EQ(list.ListInput2("text", delimiter), 0);
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i) result += "[" + item(i).Text + "]";
    return result + events() + reports();
  }
};

TEST_F(TextInput, SplitsAtTheDelimiter) {
  EXPECT_EQ(pieces("a;b", ";"), "[a][b]");
  EXPECT_EQ(pieces("a\r\nb\r\n", "\r\n"), "[a][b][]");
  EXPECT_EQ(pieces("", ";"), "[]");
  EXPECT_EQ(pieces(";;", ";"), "[][][]");
  EXPECT_EQ(pieces("aXbxc", "x"), "[aXb][c]");
  EXPECT_EQ(pieces("aaa", "aa"), "[][a]");
  EXPECT_EQ(pieces("a1b", 1), "[a][b]");
  EXPECT_EQ(pieces("a b", ""), "[a b]");
  EXPECT_EQ(pieces(std::string("\xFF\0\u20ac;", 6), ";"), std::string("[\xFF\0\u20ac][]", 9));
  EXPECT_EQ(pieces("a", Ref<Object>(makeRef<Object>())), "13 ListInput2");
  silent();
  EXPECT_EQ(pieces("a", Ref<Object>(makeRef<Object>())), "ErrorListInput ");
}

TEST_F(TextInput, AddsToTheListAndLeavesBothFlagsOff) {
  add({"old"});
  list.AutoRedraw(true);
  headless.surface().Cls();
  memory.files["text"] = "a,b";
  list.ListInput2("text", ",");
  EXPECT_EQ(texts(), "old a b");
  EXPECT_FALSE(list.AutoRedraw());
  EXPECT_FALSE(list.AutoCheckScroll());
  EXPECT_NE(headless.picture().find("old"), std::string::npos);
  EXPECT_EQ(list.ListInput2("missing", ","), 0);
  EXPECT_EQ(events(), "ErrorListInput ");
  memory.nextAnswers = {true};
  list.ListInput2("missing", ",");
  EXPECT_EQ(reports(), "53 TextRead");
  EXPECT_EQ(texts(), "old a b ");
}

TEST(Windows1252, BringsEveryByteBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  std::string back;
  windows1252::append(back, windows1252::textOf(bytes));
  EXPECT_EQ(back, bytes);
  EXPECT_EQ(windows1252::textOf("0123456\x80 01234567\x8A\x9F\xFF"),
            "0123456\u20ac 01234567\u0160\u0178\u00ff");
  back.clear();
  windows1252::append(back, "\u0100 \u0080 \xE4 \uFFFD \U0001F600.");
  EXPECT_EQ(back, "? ? ? ? ?.");
}

/// Real files in a folder of their own.
class Disk : public ListTest {
 protected:
  Disk() {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_ / "folder");
  }
  ~Disk() override { std::filesystem::remove_all(folder_); }

  std::string at(const std::string& name) { return (folder_ / name).string(); }
  void write(const std::string& name) { std::ofstream(at(name)) << name; }

 private:
  const std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() / ("nvlist" + std::to_string(std::random_device()()));
};

TEST_F(Disk, FindsFilesByWildcards) {
  for (const char* name : {"one.txt", "two.list", "bare", "#[1]", "\u00fc.nvl"}) write(name);
  const struct {
    const char* pattern;
    bool isThere;
  } cases[] = {{"one.txt", true},   {"one", false},    {"*.txt", true}, {"?ne.txt", true},
               {"?one.txt", false}, {"*.doc", false},  {"*.*", true},   {"bare.*", true},
               {"bare.?", false},   {"folder", true},  {"fol*", true},  {"folder/", false},
               {"folder/*", false}, {"none/*", false}, {"#[1]", true},  {"#[?]", true},
               {"[#][1]*", false},  {"2*", false},     {"?.nvl", true}, {"\u00fc.*", true}};
  for (const auto& [pattern, isThere] : cases)
    EXPECT_EQ(FileExists(at(pattern)), Boolean(isThere)) << pattern;
  EXPECT_FALSE(FileExists(""));
  EXPECT_TRUE(FileExists("*"));
  EXPECT_EQ(reports(), "");
}

TEST_F(Disk, HoldsTheList) {
  add({"a", "\u00e4"});
  list.ListSave(at("\u00e4.nvl"), true);
  list.ItemsClear();
  list.ListInput(at("\u00e4.nvl"), true);
  EXPECT_EQ(texts(), "a \u00e4");
  list.ListSave(at("\u00e4.nvl"));
  EXPECT_EQ(std::filesystem::file_size(at("\u00e4.nvl")), 7U + 5 + 5);
}

TEST_F(Disk, RefusesWhatIsNoFile) {
  struct Host : __nvList {
    void ErrorListSave() override { ++failures; }
    void ErrorListInput() override { ++failures; }
    int failures = 0;
  } host;
  list.addSink(host);
  list.ItemsAdd("a");
  list.ListSave(at("folder"));
  list.ListSave(at("none/file"));
  list.ListSave("");
  list.ListInput(at("folder"));
  list.ListInput(at("fold*"));
  EXPECT_EQ(host.failures, 5);
  EXPECT_TRUE(std::filesystem::is_directory(at("folder")));
  // A device is neither deleted nor read without end.
  if (std::filesystem::exists("/dev/full")) {
    list.ListSave("/dev/full");
    list.ListInput("/dev/full");
    EXPECT_EQ(host.failures, 7);
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
  }
  list.removeSink(host);
  EXPECT_EQ(reports(), "");
}

}  // namespace
}  // namespace norvane
