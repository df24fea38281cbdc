#include <random>

#include "FileTest.h"

namespace norvane {
namespace {

class ListInput : public FileTest {
 protected:
  /// Every field of an item, but for its pictures.
  static std::string told(const ListItem& item) {
    std::string flags;
    for (const Boolean flag : {item.Checked, item.AllowEdit, item.Enabled, item.Selected, item.Bold,
                               item.Italic, item.Underline})
      flags += flag.number() == -1 ? '1' : flag.number() == 0 ? '0' : '?';
    const auto colour = [](const Variant& value) {
      return (value.isText() ? "'" : "") + value.toText() + " ";
    };
    return item.Text + "|" + flags + " " + std::to_string(item.Alignment) + " " +
           colour(item.BackColor) + colour(item.BackColorDis) + colour(item.BackColorSelect) +
           colour(item.ForeColor) + colour(item.ForeColorDis) + colour(item.ForeColorSelect) + "|" +
           std::string(item.Key.view()) + "|" + item.Tag.toText();
  }
  static std::string ordinary(const std::string& text) {
    ListItem item;
    item.Text = text;
    item.BackColor = item.BackColorSelect = item.ForeColor = item.ForeColorSelect = defaultMark;
    item.BackColorDis = colours::light3D;
    item.ForeColorDis = colours::greyText;
    item.Enabled = true;
    return told(item);
  }

  static Bytes header(int last, bool properties, int version = 273) {
    return Bytes().int32(last).byte(properties ? 0xFF : 0).int16(version);
  }
  /// The fields that all versions have, but for the icons.
  static std::string fields(const std::string& backColor = "0A0000") {
    return Bytes()
        .byte(1)
        .raw(backColor + "0B00000C0000")
        .byte(0xFF)
        .byte(0)
        .raw("0D00000E00000F0000")
        .byte(1);
  }
  static constexpr const char* fieldsTold = "1100000 1 10 11 12 13 14 15 ||";
  static std::string noIcons() { return Bytes().int16(0); }
  static std::string flagsAndKeys(const std::string& key, const std::string& tag) {
    return Bytes().raw(std::string("\1\0\2\3", 4)).text(key).text(tag);
  }

  /// Whether nothing but the event is left of a list that could not be read.
  void expectRefused(const std::string& bytes, const std::string& what) {
    input(bytes);
    EXPECT_EQ(events(), "ErrorListInput ") << what;
    EXPECT_EQ(list.ItemsCount(), 0) << what;
    EXPECT_EQ(memory.open, 0) << what;
    EXPECT_EQ(reports(), "") << what;
  }
};

TEST_F(ListInput, ReadsEveryVersion) {
  const std::string old = "12345678901    2ab";
  const std::string text = Bytes().text("ab");
  const std::string properties = fields() + noIcons();
  const std::string all = fields() + flagsAndKeys("k", "t") + noIcons();
  const struct {
    int version;
    bool hasProperties;
    std::string record;
    std::string told;
  } cases[] = {
      {-1, false, "", ordinary("")},
      {269, false, "", ordinary("")},
      {269, true, properties, std::string("|") + fieldsTold},
      {270, false, old, ordinary("ab")},
      {270, true, old + properties, std::string("ab|") + fieldsTold},
      {271, false, text, ordinary("ab")},
      {271, true, text + properties, std::string("ab|") + fieldsTold},
      {272, true, text + properties, std::string("ab|") + fieldsTold},
      {273, false, text, ordinary("ab")},
      {273, true, text + all, "ab|1101101 1 10 11 12 13 14 15 |k|t"},
      {32767, true, text + all, "ab|1101101 1 10 11 12 13 14 15 |k|t"},
  };
  for (const auto& [version, hasProperties, record, expected] : cases) {
    input(header(1, hasProperties, version).raw(record).raw(record));
    ASSERT_EQ(list.ItemsCount(), 2) << version;
    EXPECT_EQ(told(item(0)), expected) << version;
    EXPECT_EQ(told(item(1)), expected) << version;
    EXPECT_EQ(events() + reports(), "");
  }
}

TEST_F(ListInput, GivesDefaultsWithoutTheArgument) {
  const auto icon = Bytes().byte(1).text("x").byte(1).text("y");
  input(header(1, true).text("a").raw(fields("       def")).raw(""), false);
  events();
  input(header(1, true)
            .text("a")
            .raw(fields("no hex"))
            .raw(flagsAndKeys("", ""))
            .raw(icon)
            .text("b")
            .raw(fields())
            .raw(flagsAndKeys("", ""))
            .raw(noIcons()),
        false);
  EXPECT_EQ(texts(), "a b");
  EXPECT_EQ(told(item(0)), ordinary("a"));
  EXPECT_EQ(told(item(1)), ordinary("b"));
  EXPECT_EQ(fileOf(item(0).Icon), "none");
  EXPECT_EQ(events() + reports(), "");
}

TEST_F(ListInput, LosesItsPlaceBehindAKeyWithoutTheArgument) {
  // The key's two characters are taken for the low half of the tag's length, and so on.
  input(header(0, true).text("a").raw(fields()).raw(flagsAndKeys("\1\0", "")).raw(noIcons()),
        false);
  EXPECT_EQ(texts(), "a");
  EXPECT_EQ(events(), "");
  input(header(0, true).text("a").raw(fields()).raw(flagsAndKeys("k", "\1")).raw(noIcons()), false);
  EXPECT_EQ(events(), "ErrorListInput ");
}

TEST_F(ListInput, ReadsTheSecondPictureAsIcon) {
  const auto icons = [&](const std::string& markers) {
    input(header(0, true).text("a").raw(fields()).raw(flagsAndKeys("", "")).raw(markers));
    EXPECT_EQ(fileOf(item(0).IconSelected), "none");
    return fileOf(item(0).Icon) + " " + events() + reports();
  };
  EXPECT_EQ(icons(Bytes().byte(1).text("one").byte(1).text("two")), "two ");
  EXPECT_EQ(icons(Bytes().byte(0).byte(1).text("two")), "two ");
  EXPECT_EQ(icons(Bytes().byte(1).text("one").byte(0)), "none ");
  EXPECT_EQ(icons(Bytes().byte(2).byte(0xFF)), "none ");
  // A picture that is none.
  EXPECT_EQ(icons(Bytes().byte(1).text("").byte(1).text("two")), "two 481 GetStringPicture");
  EXPECT_EQ(icons(Bytes().byte(1).text("one").byte(1).text("")), "none 481 GetStringPicture");
}

TEST_F(ListInput, GoesOnBehindAColourThatIsNone) {
  const auto colour = [&](const std::string& text) {
    input(header(0, true).text("a").raw(fields(text)).raw(flagsAndKeys("k", "")).raw(noIcons()));
    return item(0).BackColor.toText() + " " + item(0).ForeColor.toText() + " " + reports() +
           events();
  };
  EXPECT_EQ(colour("4080FF"), "16744512 13 ");
  EXPECT_EQ(colour("ff8040"), "4227327 13 ");
  EXPECT_EQ(colour("def   "), "def 13 ");
  EXPECT_EQ(colour("   def"), "def 13 ");
  for (const char* text :
       {"      ", "#FF804", "+1+1+1", "FF80 4", "FF80G0", "0x1020", "\0\0\0\0\0\0"})
    EXPECT_EQ(colour(std::string(text, 6)), " 13 13 HTML2VBColor") << text;
  silent();
  EXPECT_EQ(colour("0A--0B"), std::to_string(0x0B000A) + " 13 ");
  EXPECT_EQ(colour("#0A0B0"), std::to_string(0x000B0A) + " 13 ");
}

TEST_F(ListInput, RefusesTheMarkInADisabledColour) {
  add({"old"});
  const auto file = [&](const std::string& colours) {
    return Bytes(header(0, true))
        .text("a")
        .byte(0)
        .raw(colours)
        .int16(0)
        .raw("0000000000000000000" + flagsAndKeys("", "") + noIcons());
  };
  input(file("000000000001000000"));
  EXPECT_EQ(events(), "");
  expectRefused(file("000000   def000000"), "def");
  EXPECT_EQ(list.state().Items.upperBound(), 0);
}

TEST_F(ListInput, KeepsAllButTheItemsOfAnEmptyList) {
  add({"old", "older"});
  list.ListIndex(1);
  headless.surface().Cls();
  const std::string before = headless.picture();
  input(header(-1, true));
  EXPECT_EQ(events(), "");
  EXPECT_EQ(list.ItemsCount(), 0);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(item(1).Text, "older");
  EXPECT_EQ(headless.picture(), before);
  EXPECT_EQ(memory.open, 0);
}

TEST_F(ListInput, PaintsAndTouchesNothingElse) {
  add({"a", "b", "c"});
  list.ListIndex(2);
  headless.surface().Cls();
  input(header(0, false).text("new"));
  EXPECT_NE(headless.picture().find("new"), std::string::npos);
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(texts(), "new");
  EXPECT_EQ(events(), "");
  // A mark that was read is one that selecting another item takes away.
  input(header(1, true)
            .text("a")
            .raw(fields() + flagsAndKeys("", "") + noIcons())
            .text("b")
            .raw(Bytes().byte(0).raw(std::string(18, '0')).int16(-1).raw(std::string(19, '0')))
            .raw(std::string(4, '\0'))
            .text("")
            .text("")
            .raw(noIcons()));
  EXPECT_TRUE(item(0).Selected);
  list.ListIndex(1);
  EXPECT_FALSE(item(0).Selected);
}

TEST_F(ListInput, RaisesOneEventForAMissingFile) {
  add({"old"});
  list.ListInput("missing");
  EXPECT_EQ(events(), "ErrorListInput ");
  EXPECT_EQ(texts(), "old");
  // One that goes while it is looked at is missed twice.
  memory.nextAnswers = {true, false};
  list.ListInput("missing");
  EXPECT_EQ(events(), "ErrorListInput ErrorListInput ");
  EXPECT_EQ(reports(), "");
}

TEST_F(ListInput, RefusesAFileCutAnywhere) {
  list.ItemsAdd({.aText = "first", .aIcon = makeRef<BytePicture>("i"), .aTag = "tag", .aKey = "k"});
  list.ItemsAdd({.aText = "second", .aIconSelected = makeRef<BytePicture>("s")});
  for (const bool properties : {true, false}) {
    const std::string whole = save(properties);
    events();
    for (std::size_t size = 0; size < whole.size(); ++size) {
      input(whole.substr(0, size));
      EXPECT_EQ(events(), "ErrorListInput ") << size;
      // A file that ends before its items begin leaves those of the list.
      EXPECT_EQ(list.ItemsCount(), size < 7 ? 2 : 0) << size;
      EXPECT_EQ(memory.open, 0);
    }
    EXPECT_EQ(list.state().Items.upperBound(), 1);
    input(whole + "and more");
    EXPECT_EQ(texts(), "first second");
    EXPECT_EQ(events(), "");
  }
}

TEST_F(ListInput, BelievesNoLength) {
  const std::string some(64, '0');
  for (const int bad : {-2147483647 - 1, -1, 65, 1000, 2147483647}) {
    const std::string what = std::to_string(bad);
    const std::string record = Bytes().text("a").raw(fields());
    expectRefused(header(0, false).int32(bad).raw(some), "text " + what);
    expectRefused(header(0, true).raw(record).int32(0).int32(bad).raw(some), "key " + what);
    expectRefused(header(0, true).raw(record).int32(0).int32(0).int32(bad).raw(some),
                  "tag " + what);
    expectRefused(header(0, true, 271).raw(record).byte(1).int32(bad).raw(some), "icon " + what);
    expectRefused(header(0, true, 271).raw(record).byte(0).byte(1).int32(bad).raw(some),
                  "second icon " + what);
  }
  for (const char* digits : {"   -1", "99999", "abcde", "     ", "  1e9"})
    expectRefused(header(0, false, 270).raw("12345678901").raw(digits).raw(some), digits);
  EXPECT_LE(memory.largestRead, 1024U);
}

TEST_F(ListInput, BelievesNoCount) {
  for (const int last : {-2, -2147483647 - 1, 2000000000, 2147483647})
    for (const int version : {100, 270, 273})
      for (const bool properties : {false, true})
        expectRefused(header(last, properties, version).raw(std::string(1000, '\0')),
                      std::to_string(last));
  // As many as the bytes can hold, and one more.
  input(header(4999, false).raw(std::string(5000 * 4, '\0')));
  EXPECT_EQ(list.ItemsCount(), 5000);
  expectRefused(header(5000, false).raw(std::string(5001 * 4 - 1, '\0')), "one too many");
  // A few that take no bytes at all are possible.
  input(header(4095, false, 269));
  EXPECT_EQ(list.ItemsCount(), 4096);
  expectRefused(header(4096, false, 269), "too many of nothing");
}

TEST_F(ListInput, BringsBackWhatWasSaved) {
  std::mt19937 random(20);
  const auto below = [&](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  const auto flag = [&] { return Boolean(below(2) == 1); };
  const auto colour = [&] { return below(4) == 0 ? Variant("def") : Variant(below(0x1000000)); };
  const auto text = [&] {
    std::string result;
    // The first character decides whether the text is ASCII.
    const char* const characters[] = {"a", " ", "\u00fc", "\u20ac", "\u0178", "\x01"};
    for (int left = below(3) == 0 ? below(400) : below(8); left > 0; --left)
      result += characters[below(below(2) == 0 ? 2 : 6)];
    return result;
  };
  for (int round = 0; round < 20; ++round) {
    list.ItemsClear();
    std::vector<std::string> expected;
    for (int i = below(300); i >= 0; --i) {
      const Picture icon = makeRef<BytePicture>("x" + text());
      list.ItemsAdd({.aText = text(),
                     .aIcon = flag() ? icon : nullptr,
                     .aIconSelected = icon,
                     .aChecked = flag(),
                     .aForeColor = colour(),
                     .aBackColor = colour(),
                     .aAllowEdit = flag(),
                     .aAlignment = static_cast<cItemAlignment>(below(256)),
                     .aForeColorSelected = colour(),
                     .aBackColorSelected = colour(),
                     .aEnabled = flag(),
                     .aTag = text(),
                     .aForeColorDis = below(0x1000000),
                     .aBackColorDis = below(0x1000000),
                     .aBold = flag(),
                     .aItalic = flag(),
                     .aUnderline = flag(),
                     .aKey = text()});
      list.ItemSelected(list.NewIndex(), flag());
      expected.push_back(told(item(list.NewIndex())) + fileOf(icon));
    }
    const std::string file = save();
    list.ItemsClear();
    events();
    list.ListInput("file", true);
    ASSERT_EQ(list.ItemsCount(), static_cast<int>(expected.size()));
    for (int i = 0; i < list.ItemsCount(); ++i)
      EXPECT_EQ(told(item(i)) + fileOf(item(i).Icon), expected[static_cast<std::size_t>(i)]);
    EXPECT_EQ(events() + reports(), "");
  }
}

// ---- every file operation fails once ----

class FailingFiles : public ListInput, public testing::WithParamInterface<bool> {
 protected:
  FailingFiles() {
    if (GetParam()) silent();
  }

  /// Runs `operation` with the first, the second, ... file operation failing, until none does any
  /// more, and tells what was heard each time.
  template <class Operation>
  std::string eachFailing(Operation&& operation) {
    std::string result;
    for (int failing = 1;; ++failing) {
      memory.operations = 0;
      memory.failing = failing;
      operation();
      memory.failing = 0;
      EXPECT_EQ(memory.open, 0) << failing;
      const std::string heard = events() + reports();
      if (memory.operations < failing) return result;
      result += "[" + heard + "]";
    }
  }

  const std::string report = GetParam() ? "" : "57 FileExists";
};

TEST_P(FailingFiles, EndInTheEventOfSaving) {
  add({"a", "b"});
  // Deleting, opening, writing, closing.
  EXPECT_EQ(eachFailing([&] { save(); }),
            "[ErrorListSave ][ErrorListSave ][0 1 ErrorListSave ][0 1 ErrorListSave ]");
  for (int i = 0; i < 30000; ++i) list.ItemsAdd("twenty characters...");
  std::string heard;
  onProgress = [&](Variant&) { heard.clear(); };
  memory.failing = memory.operations + 3;
  save();
  EXPECT_TRUE(events().ends_with("ErrorListSave "));
  EXPECT_EQ(memory.open, 0);
}

TEST_P(FailingFiles, EndInTheEventOfReading) {
  add({"a", "b"});
  save();
  events();
  // A look that fails is no look at a list file of the older form: only then comes the reading.
  EXPECT_EQ(eachFailing([&] { list.ListInput("file", true); }),
            "[ErrorListInput " + report + "]" + "[ErrorListInput " + report + "]" +
                "[][][][ErrorListInput ][ErrorListInput ][ErrorListInput ][ErrorListInput ]");
}

TEST_P(FailingFiles, EndInAReportOfTheText) {
  memory.files["text"] = "a,b";
  const std::string textReport = GetParam() ? "[]" : "[57 TextRead]";
  EXPECT_EQ(eachFailing([&] { list.ListInput2("text", ","); }),
            "[ErrorListInput " + report + "]" + textReport + textReport + textReport + textReport);
}

INSTANTIATE_TEST_SUITE_P(BothWays, FailingFiles, testing::Bool());

}  // namespace
}  // namespace norvane
