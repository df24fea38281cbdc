#include <random>

#include <nvlist/files/windows1252.h>

#include "FileTest.h"

namespace norvane {
namespace {

using ListInput = FileTest;

TEST_F(ListInput, ReadsEveryVersion) {
  const std::string old = "12345678901    2ab", ab = text("ab"), properties = fields() + noIcons,
                    all = fields() + flagsAndKeys("k", "t") + noIcons;
  const std::string some = "|1100000 1 10 11 12 13 14 15||";
  const std::tuple<int, bool, std::string, std::string> cases[] = {
      {-1, false, "", ordinaryItem("")},
      {269, true, properties, some},
      {270, false, old, ordinaryItem("ab")},
      {270, true, old + properties, "ab" + some},
      {271, true, ab + properties, "ab" + some},
      {273, false, ab, ordinaryItem("ab")},
      {273, true, ab + all, "ab|1101101 1 10 11 12 13 14 15|k|t"}};
  for (const auto& [version, hasProperties, record, expected] : cases) {
    input(header(1, hasProperties, version) + record + record);
    EXPECT_EQ(events(), "") << version;
    ASSERT_EQ(list.ItemsCount(), 2) << version;
    for (const int i : {0, 1}) EXPECT_EQ(told(item(i)), expected) << version;
  }
}

TEST_F(ListInput, GivesDefaultsWithoutTheArgument) {
  const std::string record =
      text("a") + fields("no hex") + flagsAndKeys("", "") + "\1" + text("") + "\1" + text("y");
  input(header(1, true) + record + record, false);
  EXPECT_EQ(events() + texts() + fileOf(item(0).Icon), "a anone");
  EXPECT_EQ(told(item(0)), ordinaryItem("a"));
  // Keys and tags that are not requested stay in the file and are misread.
  const std::string readAsTagAndIcons = zeros(6), readAsText = zeros(6);
  input(header(1, true) + text("a") + fields() + flagsAndKeys(readAsTagAndIcons, "").substr(0, 14) +
            readAsText + zeros(52),
        false);
  EXPECT_EQ(events() + told(item(0)) + texts(), ordinaryItem("a") + "a ");
}

TEST_F(ListInput, ReadsTheSecondPictureAsIcon) {
  const auto icons = [&](const std::string& markers) {
    input(header(0, true) + text("a") + fields() + flagsAndKeys("", "") + markers);
    return fileOf(item(0).Icon) + " " + fileOf(item(0).IconSelected) + " " + events();
  };
  const std::string one = "\1" + text("one"), two = "\1" + text("two"), invalid = "\1" + text("");
  EXPECT_EQ(icons(one + two), "two none ");
  EXPECT_EQ(icons(byte(0) + two), "two none ");
  EXPECT_EQ(icons(one + byte(0)), "none none ");
  EXPECT_EQ(icons(invalid + two), "two none 481 GetStringPicture");
}

TEST_F(ListInput, GoesOnBehindAColourThatIsNone) {
  const auto colour = [&](const std::string& six) {
    input(header(0, true) + text("a") + fields(six) + zeros(12) + noIcons);
    const std::string reported = events();
    return item(0).BackColor.toText() + " " + item(0).ForeColor.toText() + " " + reported;
  };
  for (const auto& [six, read] :
       {std::pair("4080FF", "16744512 13 "), {"   def", "def 13 "}, {"DEFdef", "15728094 13 "}})
    EXPECT_EQ(colour(six), read);
  for (const char* bad : {"      ", "+1+1+1", "FF80G0"})
    EXPECT_EQ(colour(bad), " 13 13 HTML2VBColor") << bad;
  // Fields are read in order: a bad colour is reported although the record is cut short after it.
  input(header(0, true) + text("a") + "\1no hex000000");
  EXPECT_EQ(events(), "input! 13 HTML2VBColor");
  silent();
  EXPECT_EQ(colour("0A--0B"), std::to_string(0x0B000A) + " 13 ");
  // The disabled colours cannot be "def".
  const std::string six = "000000", mark = "   def";
  for (const auto& [back, fore] : {std::pair(mark, six), {six, mark}})
    expectRefused(header(0, true) + text("a") + "\1" + six + back + six + zeros(2) + six + fore +
                      six + "\1" + zeros(12) + noIcons,
                  back + fore);
}

TEST_F(ListInput, TouchesNothingButTheItems) {
  add({"a", "b", "c"});
  list.ListIndex(2);
  headless.surface().Cls();
  const std::string before = headless.face();
  input(header(-1, true));
  EXPECT_EQ(list.ItemsCount(), 0);
  list.ListInput("missing");
  EXPECT_EQ(events(), "input! ");
  EXPECT_EQ(headless.face(), before);
  const std::string record = text("new") + fields() + flagsAndKeys("", "");
  input(header(1, true) + record + noIcons + record + noIcons);
  EXPECT_TRUE(shows("new"));
  EXPECT_EQ(list.ListIndex(), 2);
  // A mark that was read is cleared like any other, even if another mark is known.
  for (const std::string& icons : {noIcons, "\1" + text("picture") + byte(0)}) {
    for (const int knownBefore : {-1, 1}) {
      list.ListIndex(knownBefore);
      input(header(1, true) + record + icons + record + icons);
      list.ItemEnabled(1, true);
      list.ListIndex(1);
      EXPECT_FALSE(item(0).Selected);
    }
  }
}

TEST_F(ListInput, RefusesAFileCutAnywhere) {
  list.ItemsAdd({.aText = "first", .aIcon = makeRef<BytePicture>("i"), .aTag = "tag", .aKey = "k"});
  list.ItemsAdd({.aText = "second", .aIconSelected = makeRef<BytePicture>("s")});
  for (const bool properties : {true, false}) {
    const std::string whole = save(properties);
    memory.missing = properties ? 0 : 100;
    events();
    for (std::size_t size = 0; size < whole.size(); ++size) {
      input(whole.substr(0, size));
      EXPECT_EQ(events(), "input! ") << size;
      // A file that ends before its items begin leaves the list unchanged.
      EXPECT_EQ(list.ItemsCount(), size < 7 ? 2 : 0) << size;
    }
    EXPECT_EQ(list.state().Items.upperBound(), 1);
    input(whole + "and more");
    EXPECT_EQ(texts() + events(), "first second");
  }
}

TEST_F(ListInput, OutlivesAHostThatClearsTheListInAReport) {
  struct Clearing final : Program {
    explicit Clearing(nvList& cleared) : list(cleared) {}
    nvList& list;
    void MsgBox(std::string_view, std::int32_t, std::string_view) override { list.ItemsClear(); }
  } clearing(list);
  const std::string record = text("a") + fields("no hex") + flagsAndKeys("k", "t") + noIcons;
  expectRefused(header(1, true) + record + record, "colour");
  add({"first"});
  list.ItemIcon(0, makeRef<BytePicture>("broken"));
  add({"second"});
  save();
  EXPECT_EQ(events(), "0 save! ");
}

TEST_F(ListInput, BringsBackWhatWasSaved) {
  std::mt19937 random(20);
  const auto below = [&](int end) { return static_cast<int>(random() % unsigned(end)); };
  const auto flag = [&] { return Boolean(below(2) == 1); };
  const auto colour = [&] { return below(4) == 0 ? Variant("def") : Variant(below(0x1000000)); };
  const auto word = [&] {
    const std::string_view characters[] = {"a", " ", "\u00fc", "\u20ac", "\u0178", {"", 1}};
    std::string result;
    for (int left = below(below(3) == 0 ? 400 : 8); left > 0; --left)
      result += characters[below(6)];
    return result;
  };
  for (int round = 0; round < 5; ++round) {
    list.ItemsClear();
    std::vector<std::string> expected;
    for (int i = below(300); i >= 0; --i) {
      const Picture icon = makeRef<BytePicture>("x" + word());
      list.ItemsAdd(word(), -1, flag() ? icon : nullptr, icon, flag(), colour(), colour(), flag(),
                    static_cast<cItemAlignment>(below(256)), colour(), colour(), flag(), word(),
                    below(0x1000000), below(0x1000000), flag(), flag(), flag(), word());
      list.ItemSelected(list.NewIndex(), flag());
      expected.push_back(told(item(list.NewIndex())) + fileOf(icon));
    }
    save();
    list.ItemsClear();
    events();
    list.ListInput("file", true);
    std::vector<std::string> got;
    for (int i = 0; i < list.ItemsCount(); ++i) got.push_back(told(item(i)) + fileOf(item(i).Icon));
    EXPECT_EQ(got, expected);
    EXPECT_EQ(events(), "");
  }
}

/// Items are created on first access; operations before that must not reveal it.
TEST_F(ListInput, ChangesItemsThatNobodyHasSeenLikeOthers) {
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"addition", [&] { list.ItemsAdd("last"); }},
      {"insertion", [&] { list.ItemsAdd("first", 0); }},
      {"removal and addition", [&] { list.ItemsRemove(Variant(29)), list.ItemsAdd("other"); }},
      {"sort", [&] { list.Sort(cDescending); }},
      {"move", [&] { list.MoveItemUp(20, 15); }},
      {"text", [&] { list.ItemText(7, "other"); }},
      {"removal of the selected", [&] { list.ItemsSelectedRemove(); }},
      {"repaint", [&] { list.AutoRedraw(true); }},
      {"save", [&] { save(); }},
  };
  std::string records, expected;
  for (int i = 0; i < 30; ++i) {
    expected += std::to_string(i * 37 % 30) + " ";
    records += text(std::to_string(i * 37 % 30)) + fields() + zeros(3) + byte(i == 12) +
               text(std::to_string(i)) + text("") + (i == 15 ? "\1" + text("picture") : "") +
               noIcons.substr(i == 15);
  }
  for (const auto& [name, change] : changes) {
    std::string results[2];
    for (const bool isSeen : {false, true}) {
      input(header(29, true) + records);
      if (isSeen) {
        EXPECT_EQ(texts() + " ", expected);
      }
      change();
      for (int i = 0; i < list.ItemsCount(); ++i) results[isSeen] += told(item(i)) + "\n";
    }
    EXPECT_EQ(results[false], results[true]) << name;
  }
}

TEST_F(ListInput, EndsInTheEventWhereverAFileFails) {
  for (const bool isSilent : {false, true}) {
    if (isSilent) silent();
    list.ItemsClear();
    add({"a", "b"});
    const std::string notFound = isSilent ? "[input! ]" : "[input! 57 FileExists]";
    const std::string unread = isSilent ? "[]" : "[57 TextRead]";
    // Open, write, close.
    EXPECT_EQ(eachFailing([&] { save(); }), "[save! ][0 1 save! ][0 1 save! ]");
    // Two existence checks, a check for the older format, and reading: open, header, size, the
    // rest, close.
    save();
    events();
    EXPECT_EQ(eachFailing([&] { list.ListInput("file", true); }),
              notFound + notFound + "[][][input! ][input! ][input! ][input! ][input! ]");
    memory.files["text"] = "a,b";
    EXPECT_EQ(eachFailing([&] { list.ListInput2("text", ","); }),
              notFound + unread + unread + unread + unread);
  }
}

class TextInput : public FileTest {
 protected:
  std::string pieces(const std::string& text, const Variant& delimiter) {
    list.ItemsClear();
    memory.files["text"] = text;
    EXPECT_EQ(list.ListInput2("text", delimiter), 0);
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i) result += "[" + item(i).Text + "]";
    return result + events();
  }
};

TEST_F(TextInput, SplitsAtTheDelimiter) {
  EXPECT_EQ(pieces("a\r\nb\r\n", "\r\n"), "[a][b][]");
  EXPECT_EQ(pieces("", ";"), "[]");
  EXPECT_EQ(pieces("aaa", "aa"), "[][a]");
  EXPECT_EQ(pieces("a1b", 1), "[a][b]");
  EXPECT_EQ(pieces(std::string("\xFF\0\u20ac;", 6), ";"), std::string("[\xFF\0\u20ac][]", 9));
  const Variant none = Ref<Object>(makeRef<Object>());
  EXPECT_EQ(pieces("a", none), "13 ListInput2");
  silent();
  EXPECT_EQ(pieces("a", none), "input! ");
}

TEST_F(TextInput, AddsToTheListAndLeavesBothFlagsOff) {
  add({"old"});
  list.AutoRedraw(true);
  headless.surface().Cls();
  memory.files["text"] = "a,b,c,d,e,f,g,h,i,j";
  list.ListInput2("text", ",");
  EXPECT_EQ(texts(), "old a b c d e f g h i j");
  EXPECT_FALSE(list.AutoRedraw() || list.AutoCheckScroll());
  EXPECT_TRUE(shows("old"));
  EXPECT_GT(list.verticalBar().Max(), 0);
}

TEST(Windows1252, BringsEveryByteBack) {
  std::string bytes, back;
  for (int number = 0; number < 256; ++number) bytes += static_cast<char>(number);
  windows1252::append(back, windows1252::textOf(bytes));
  EXPECT_EQ(back, bytes);
  EXPECT_EQ(windows1252::textOf("0123456\x80 01234567\x8A\x9F\xFF"),
            "0123456\u20ac 01234567\u0160\u0178\u00ff");
  back.clear();
  windows1252::append(back, "\u0100 \u0080 \xE4 \U0001F600.");
  EXPECT_EQ(back, "? ? ? ?.");
}

}  // namespace
}  // namespace norvane
