#include "FileTest.h"

namespace norvane {
namespace {

using ListSave = FileTest;

const std::string version = Bytes().int16(273);

/// The 58 bytes behind the text of an item that has nothing of its own.
const std::string ordinary = Bytes()
                                 .byte(0)
                                 .raw("   def160101   def")
                                 .byte(0)
                                 .byte(0xFF)
                                 .raw("   def110101   def")
                                 .raw(std::string(5, '\0'))
                                 .text("")
                                 .text("")
                                 .raw(std::string(2, '\0'));

TEST_F(ListSave, WritesAnEmptyListInSevenBytes) {
  EXPECT_EQ(save(false), std::string("\xFF\xFF\xFF\xFF\x00\x11\x01", 7));
  EXPECT_EQ(save(true), std::string("\xFF\xFF\xFF\xFF\xFF\x11\x01", 7));
  EXPECT_EQ(events(), "");
}

TEST_F(ListSave, WritesTextsAlone) {
  add({"ab"});
  EXPECT_EQ(save(false), std::string("\0\0\0\0\0\x11\x01\x02\0\0\0ab", 13));
  EXPECT_EQ(events(), "0 ");
  add({"", "c"});
  EXPECT_EQ(save(false),
            std::string(Bytes().int32(2).byte(0).raw(version).text("ab").text("").text("c")));
  EXPECT_EQ(events(), "0 1 2 ");
}

TEST_F(ListSave, WritesEveryProperty) {
  list.ItemsAdd({.aText = "first",
                 .aIcon = makeRef<BytePicture>("icon"),
                 .aIconSelected = makeRef<BytePicture>("selected"),
                 .aChecked = true,
                 .aForeColor = 0x010203,
                 .aBackColor = 0x0A0B0C,
                 .aAllowEdit = true,
                 .aAlignment = cRight,
                 .aForeColorSelected = 0xFF8040,
                 .aBackColorSelected = 0xFFFFFF,
                 .aEnabled = false,
                 .aTag = 5,
                 .aForeColorDis = 1,
                 .aBackColorDis = 0x20000,
                 .aBold = true,
                 .aUnderline = true,
                 .aKey = "K1"});
  list.ItemSelected(0, true);
  add({"second"});
  const std::string expected = Bytes()
                                   .int32(1)
                                   .byte(0xFF)
                                   .raw(version)
                                   .text("first")
                                   .byte(0xFF)
                                   .raw("0C0B0A000002FFFFFF")
                                   .byte(0xFF)
                                   .byte(0)
                                   .raw("0302010100004080FF")
                                   .byte(2)
                                   .byte(0xFF)
                                   .byte(0)
                                   .byte(0xFF)
                                   .byte(0xFF)
                                   .text("K1")
                                   .text("5")
                                   .byte(1)
                                   .text("icon")
                                   .byte(1)
                                   .text("selected")
                                   .text("second")
                                   .raw(ordinary);
  EXPECT_EQ(save(), expected);
  EXPECT_EQ(reports(), "");
}

TEST_F(ListSave, TakesLowBytes) {
  list.ItemsAdd(
      {.aText = "a", .aChecked = Boolean::ofNumber(0x100), .aBold = Boolean::ofNumber(2)});
  list.ItemAlignment(0, static_cast<cItemAlignment>(0x105));
  const std::string file = save();
  EXPECT_EQ(file[7 + 5 + 19], 0);
  EXPECT_EQ(file[7 + 5 + 39], 5);
  EXPECT_EQ(file[7 + 5 + 40], 2);
  list.ListSave("file", Boolean::ofNumber(0x100));
  EXPECT_EQ(memory.files["file"], std::string(Bytes().int32(0).byte(0).raw(version).text("a")));
}

TEST_F(ListSave, WritesSixCharactersForAnyColour) {
  const struct {
    Variant colour;
    std::string written;
    std::string report;
  } cases[] = {{"def", "   def", ""},
               {"Def", "FFFFFF", ""},
               {"abc", "FFFFFF", ""},
               {"255", "FF0000", ""},
               {Variant(), "FFFFFF", ""},
               {2.5F, "020000", ""},
               {std::int16_t{-1}, "FF0000", ""},
               {-1, "FF0000", ""},
               {-256, "00FF00", ""},
               {colours::greyText, "110101", ""},
               {true, "FFFFFF", ""},
               {"4294967295", "      ", "6 GetCorrectColor"}};
  for (const auto& [colour, written, report] : cases) {
    list.ItemsClear();
    list.ItemsAdd({.aText = "", .aBackColor = colour});
    EXPECT_EQ(save().substr(12, 6), written) << colour.toText();
    EXPECT_EQ(reports(), report);
  }
}

TEST_F(ListSave, WritesWindows1252) {
  list.ItemsAdd({.aText = "\u00e4\u20ac\u0416\U0001F600!", .aTag = "\xFF", .aKey = "\u0178"});
  const std::string file = save();
  EXPECT_EQ(file.substr(7, 9), std::string(Bytes().text("\xE4\x80?"
                                                        "?!")));
  EXPECT_EQ(file.substr(7 + 9 + 44), std::string(Bytes().text("\x9F").text("?").int16(0)));
}

TEST_F(ListSave, GoesOnBehindAPictureWithoutBytes) {
  for (const char* bytes : {"", "broken"}) {
    list.ItemsClear();
    list.ItemsAdd({.aText = "a", .aIcon = makeRef<BytePicture>(bytes)});
    add({"b"});
    const std::string file = save();
    EXPECT_EQ(file.substr(7 + 5 + 52),
              std::string(Bytes().byte(1).int32(0).byte(0).text("b").raw(ordinary)));
    EXPECT_EQ(reports(), *bytes ? "440 GetPictureString" : "481 GetPictureString");
    EXPECT_EQ(events(), "0 1 ");
  }
}

TEST_F(ListSave, EndsAtAnItemThatCannotBeWritten) {
  list.ItemsAdd({.aText = "a"});
  list.ItemsAdd({.aText = "b", .aTag = Ref<Object>(makeRef<Object>())});
  save();
  EXPECT_EQ(events(), "0 ErrorListSave ");
  EXPECT_EQ(save(false), std::string(Bytes().int32(1).byte(0).raw(version).text("a").text("b")));
  EXPECT_EQ(memory.open, 0);
  EXPECT_EQ(reports(), "");
}

TEST_F(ListSave, GoesOnFromWhereTheHostPutsIt) {
  add({"a", "b", "c", "d"});
  onProgress = [](Variant& Index) {
    if (Index.toInt32() == 0) Index = "2";
  };
  EXPECT_EQ(save(false), std::string(Bytes().int32(3).byte(0).raw(version).text("a").text("d")));
  EXPECT_EQ(events(), "0 3 ");
  // The position is the one by which all loops of the list go.
  onProgress = [this](Variant& Index) {
    if (Index.toInt32() == 0) list.ItemsCheckCount();
  };
  save();
  EXPECT_EQ(events(), "0 ");

  const struct {
    std::function<void(Variant&)> host;
    std::string heard;
  } cases[] = {{[](Variant& Index) { Index = "x"; }, "0 ErrorListSave "},
               {[](Variant& Index) { Index = -2; }, "0 ErrorListSave "},
               {[](Variant& Index) { Index = 2147483647; }, "0 ErrorListSave "},
               {[](Variant&) { throw 1; }, "0 ErrorListSave "},
               {[this](Variant&) { list.ItemsRemove(0); }, "0 ErrorListSave "}};
  for (const auto& [host, expected] : cases) {
    onProgress = host;
    save();
    EXPECT_EQ(events(), expected);
    EXPECT_EQ(memory.open, 0);
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(ListSave, WritesBigListsInBlocks) {
  for (int i = 0; i < 30000; ++i) list.ItemsAdd("a text of some length");
  save(false);
  EXPECT_EQ(memory.files["file"].size(), 7U + 30000U * 25);
  EXPECT_LE(memory.operations, 8);
}

/// A host that fails in the event is reported.
class BadHost : public ListSave {
 protected:
  void ErrorListSave() override { throw Failure(5, "host"); }
  void ErrorListInput() override { throw Failure(5, "host"); }
};

TEST_F(BadHost, IsReported) {
  memory.failing = 1;
  save();
  EXPECT_EQ(reports(), "5 ListSave");
  list.ListInput("missing");
  EXPECT_EQ(reports(), "5 ListInput");
  input("cut");
  EXPECT_EQ(reports(), "5 ListInput");
  list.ListInput2("missing", ",");
  EXPECT_EQ(reports(), "5 ListInput2");
  silent();
  input("cut");
  EXPECT_EQ(reports(), "");
}

}  // namespace
}  // namespace norvane
