#include <nvlist/objects/SpEv.h>

#include <functional>

#include <nvlist/platform/ListBox.h>

#include "../Lists.h"
#include "../files/Folder.h"
#include "../files/MemoryFiles.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

using Texts = std::vector<std::string>;

/// Rows in memory.
struct Rows final : ListBox {
  std::int32_t ListCount() override { return static_cast<std::int32_t>(texts.size()); }
  std::string List(std::int32_t index) override {
    return texts.at(static_cast<std::size_t>(index));
  }
  void AddItem(const std::string& text) override { texts.push_back(text); }

  Texts texts;
};

class SpEvTest : public ListTest {
 protected:
  std::string path(const std::string& name) { return folder.at(name); }

  Folder folder;
  Ref<Rows> rows = makeRef<Rows>();
  Variant box = Variant(rows);
  SpEv helper;
};

TEST_F(SpEvTest, SavesATextAsOneRecordAndReadsAFileByteByByte) {
  std::string everything;
  for (int byte = 0; byte < 256; ++byte) everything += static_cast<char>(byte);
  for (const std::string& text : {everything, std::string("a shorter text")}) {
    helper.TextSave(path("a"), text);
    EXPECT_EQ(folder.bytes("a"), text + "\r\n");
    EXPECT_EQ(helper.TextRead(path("a")), text + "\r\n");
  }
}

TEST_F(SpEvTest, ReportsFilesThatCannotBeOpened) {
  fs::create_directory(folder / "folder");
  EXPECT_EQ(helper.TextRead(path("missing")), "");
  EXPECT_EQ(helper.TextRead(path("folder")), "");
  helper.ListRead(box, path("missing"));
  EXPECT_EQ(reports(), "53 TextRead, 75 TextRead, 53 ListRead");
  helper.TextSave(path("folder"), "x");
  helper.TextSave(path("missing/a"), "x");
  helper.ListSave(box, "");
  helper.TextSave(path(std::string("a\0b", 3)), "x");
  EXPECT_EQ(reports(), "75 TextSave, 76 TextSave, 75 ListSave, 52 TextSave");
  EXPECT_FALSE(fs::exists(folder / "a"));
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no disk that is always full";
  helper.TextSave("/dev/full", "x");
  EXPECT_EQ(reports(), "61 TextSave");
}

TEST_F(SpEvTest, AddsALineAsARow) {
  rows->texts = {"there"};
  folder.put("a", "one\r\n\r\ntwo\nthree\rfour\n\r\nfive");
  helper.ListRead(box, path("a"));
  EXPECT_EQ(rows->texts, (Texts{"there", "one", "", "two", "three", "four", "", "five"}));

  // A line end split between two blocks counts once.
  folder.put("a", std::string(65535, 'l') + "\r\nx");
  rows->texts.clear();
  helper.ListRead(box, path("a"));
  EXPECT_EQ(rows->texts, (Texts{std::string(65535, 'l'), "x"}));

  rows->texts = {"Zoë", std::string("a\0b", 3), std::string(20000, 'l')};
  helper.ListSave(box, path("b"), "<", ">");
  Texts saved = std::exchange(rows->texts, {});
  for (std::string& text : saved) text = "<" + text + ">";
  helper.ListRead(box, path("b"));
  EXPECT_EQ(rows->texts, saved);
}

TEST_F(SpEvTest, ABoxIsAnyObjectWithTheMembersAndItsRowsAreCountedIn16Bits) {
  folder.put("a", "line");
  helper.ListRead(Variant(makeRef<Object>()), path("a"));
  helper.ListSave("box", path("a"));
  EXPECT_EQ(reports(), "438 ListRead, 424 ListSave");
  // The file is opened before the box is used.
  EXPECT_EQ(folder.bytes("a"), "");
  helper.ListRead("box", path("a"));
  EXPECT_EQ(reports(), "");

  rows->texts = Texts(32768, "r");
  helper.ListSave(box, path("a"));
  EXPECT_EQ(reports(), "6 ListSave");
  silent();
  helper.ListSave(box, path("a"));
  EXPECT_EQ(fs::file_size(folder / "a"), 32768U * 3);
}

/// Each file operation fails in turn, up to the run in which all succeed.
TEST_F(SpEvTest, AFailingFileOperationEndsTheHelperUnlessSilent) {
  const auto trace = [&](const std::function<std::string(std::string & file)>& run) {
    std::string result;
    for (int failing = 1;; ++failing) {
      MemoryFiles memory;
      memory.files["a"] = "1\r\n2";
      memory.failing = failing;
      rows->texts = {"x"};
      result += run(memory.files["a"]);
      result += reports();
      EXPECT_EQ(memory.open, 0);
      if (memory.operations < failing) return result;
      result += ";";
    }
  };
  const auto readRows = [&](std::string&) {
    helper.ListRead(box, "a");
    std::string result;
    for (const std::string& row : rows->texts) result += row + " ";
    return result;
  };
  const auto saveRows = [&](std::string& file) { return helper.ListSave(box, "a"), file + " "; };
  EXPECT_EQ(trace(readRows),
            "x 57 ListRead;x 57 ListRead;x 1 57 ListRead;x 1 2 57 ListRead;"
            "x 1 2 57 ListRead;x 1 2 ");
  EXPECT_EQ(trace(saveRows), "1\r\n2 57 ListSave; 57 ListSave;x\r\n 57 ListSave;x\r\n ");
  silent();
  // A row that could not be read repeats the previous one.
  EXPECT_EQ(trace(readRows), "x ;x ;x 1 1 ;x 1 2 ;x 1 2 ;x 1 2 ");
  EXPECT_EQ(trace(saveRows), "1\r\n2 ; ;x\r\n ;x\r\n ");
}

TEST_F(SpEvTest, KnowsAThemeByItsColourScheme) {
  application.system = {2, 5, 1};
  for (const auto& [scheme, style] : {std::pair(std::u16string(u"NormalColor"), 1),
                                      {u"HomeStead", 3},
                                      {std::u16string(u"Metallic\0rest", 13), 2},
                                      {std::u16string(254, u'x'), 4},
                                      {std::u16string(255, u'x'), 4}}) {
    application.theme = {u"Luna.msstyles", scheme, u"NormalSize"};
    EXPECT_EQ(static_cast<int>(helper.ActiveXPTheme()), style);
  }
  EXPECT_EQ(reports(), "5 ConvUnicode");
  application.theme->colourScheme = u"NormalColor";
  for (const auto& [major, minor, isXP] :
       {std::tuple(5, 0, false), {5, 2, true}, {6, 0, false}, {6, 1, true}}) {
    application.system = {2, major, minor};
    EXPECT_EQ(helper.ActiveXPTheme() == styleBlue, isXP) << major << minor;
  }
  application.theme.reset();
  EXPECT_EQ(helper.ActiveXPTheme(), styleClassic);
}

TEST_F(SpEvTest, ReturnsTheFirstPressedButtonOfThree) {
  // The first two were pressed and released since the last query. A query ends with the first key.
  application.keyStates = {{1, 1}, {2, 1}, {4, -32768}};
  for (const int button : {1, 2, 4, 4})
    EXPECT_EQ(static_cast<int>(helper.MouseButtonPressed()), button);
  application.keyStates.clear();
  EXPECT_EQ(static_cast<int>(helper.MouseButtonPressed()), 0);
}

}  // namespace
}  // namespace norvane
