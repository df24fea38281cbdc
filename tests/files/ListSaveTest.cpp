#include "FileTest.h"

#include <nvlist/files/colourTexts.h>

namespace norvane {
namespace {

using ListSave = FileTest;

/// What follows the text of an item with default properties.
const std::string ordinary = byte(0) + "   def160101   def" + byte(0) + byte(0xFF) +
                             "   def110101   def" + zeros(5) + text("") + text("") + zeros(2);

TEST_F(ListSave, WritesEveryProperty) {
  list.ItemsAdd({.aText = "\u00e4\u20ac\u0416\U0001F600!",
                 .aIcon = makeRef<BytePicture>("icon"),
                 .aIconSelected = makeRef<BytePicture>("selected"),
                 .aChecked = true,
                 .aForeColor = 0x010203,
                 .aBackColor = 0x0A0B0C,
                 .aAllowEdit = true,
                 .aAlignment = static_cast<cItemAlignment>(0x102),
                 .aForeColorSelected = 0xFF8040,
                 .aBackColorSelected = 0xFFFFFF,
                 .aEnabled = Boolean::ofNumber(0x100),
                 .aTag = 5,
                 .aForeColorDis = 1,
                 .aBackColorDis = 0x20000,
                 .aBold = true,
                 .aUnderline = Boolean::ofNumber(2),
                 .aKey = "\u0178"});
  list.ItemSelected(0, true);
  add({"second"});
  EXPECT_EQ(save(), header(1, true) + text("\xE4\x80?\?!") + byte(0xFF) + "0C0B0A000002FFFFFF" +
                        byte(0xFF) + byte(0) + "0302010100004080FF" + "\2\xFF" + byte(0) +
                        "\2\xFF" + text("\x9F") + text("5") + "\1" + text("icon") + "\1" +
                        text("selected") + text("second") + ordinary);
  EXPECT_EQ(events(), "0 1 ");
}

TEST_F(ListSave, WritesSixCharactersForAnyColour) {
  EXPECT_EQ(CHex(5, 2) + CHex(-2, 2) + RGB2HTML(1, 0xAB, 16), "05FFFFFFFE01AB10");
  EXPECT_EQ(VBColor2HTML(-1), "FF0000");
  const std::pair<Variant, const char*> cases[] = {
      {"255", "FF0000 0 "},    {"def", "   def 0 "},
      {"Def", "FFFFFF 0 "},    {"2.5", "020000 0 "},
      {"&HFF80", "800000 0 "}, {Variant(), "FFFFFF 0 "},
      {-256, "00FF00 0 "},     {"4294967295", "       0 6 GetCorrectColor"}};
  for (const auto& [colour, written] : cases) {
    list.ItemsClear();
    list.ItemsAdd({.aText = "", .aBackColor = colour});
    const std::string saved = save().substr(12, 6);
    EXPECT_EQ(saved + " " + events(), written) << colour.toText();
  }
}

TEST_F(ListSave, GoesOnBehindAPictureWithoutBytes) {
  for (const char* bytes : {"", "broken"}) {
    list.ItemsClear();
    list.ItemsAdd({.aText = "a", .aIcon = makeRef<BytePicture>(bytes)});
    add({"b"});
    EXPECT_EQ(save().substr(7 + 5 + 52), "\1" + zeros(5) + text("b") + ordinary);
    EXPECT_EQ(events(), *bytes ? "0 1 440 GetPictureString" : "0 1 481 GetPictureString");
  }
}

TEST_F(ListSave, EndsAtAnItemThatCannotBeWritten) {
  list.ItemsAdd({.aText = "a"});
  list.ItemsAdd({.aText = "b", .aTag = Ref<Object>(makeRef<Object>())});
  // What was written before the failure stays.
  EXPECT_EQ(save(), header(1, true) + text("a") + ordinary + text("b") +
                        ordinary.substr(0, ordinary.size() - 6));
  EXPECT_EQ(events(), "0 save! ");
}

TEST_F(ListSave, GoesOnFromWhereTheHostPutsIt) {
  add({"a", "b", "c", "d"});
  onProgress = [](Variant& Index) {
    if (Index.toInt32() == 0) Index = "2";
  };
  EXPECT_EQ(save(false), header(3, false) + text("a") + text("d"));
  const std::tuple<const char*, std::function<void(Variant&)>, const char*> cases[] = {
      {"no index", [](Variant& Index) { Index = "x"; }, "0 save! "},
      {"failure", [](Variant&) { throw 1; }, "0 save! "},
      // The index is shared by all loops of the list.
      {"another loop", [this](Variant&) { list.ItemsCheckCount(); }, "0 "},
      {"removal", [this](Variant&) { list.ItemsRemove(0); }, "0 save! "}};
  events();
  for (const auto& [name, host, expected] : cases) {
    onProgress = host;
    save();
    EXPECT_EQ(events(), expected) << name;
  }
}

/// Without a shortcut this would take hours.
TEST_F(ListSave, MayPutACountFarBelowTheFirstItem) {
  add({"a", "b"});
  list.ItemChecked(1, true);
  onProgress = [](Variant& Index) { Index = -2'000'000'000; };
  silent();
  headless.container().post([this] { save(); });
  EXPECT_EQ(list.ItemsCheckCount(), 1'999'999'999);
}

TEST_F(ListSave, WritesTextsAloneInBlocks) {
  EXPECT_EQ(save(false), std::string("\xFF\xFF\xFF\xFF\x00\x11\x01", 7));
  add({"ab"});
  EXPECT_EQ(save(false), std::string("\0\0\0\0\0\x11\x01\x02\0\0\0ab", 13));
  EXPECT_EQ(events(), "0 ");
  list.ItemsClear();
  memory.operations = 0;
  for (int i = 10000; i < 40000; ++i) list.ItemsAdd("an item of the list " + std::to_string(i));
  list.ItemText(77, std::string(300'000, 'x'));
  EXPECT_EQ(save(false).size(), 7U + 29999U * 29 + 300'004);
  EXPECT_EQ(memory.operations, 1 + 5 + 1);
}

TEST_F(ListSave, AHandlerOfAFailureMayFail) {
  struct Host : __nvList {
    void ErrorListSave() override { throw Failure(5, "host"); }
    void ErrorListInput() override { throw Failure(5, "host"); }
  } failing;
  list.addSink(failing);
  memory.failing = 1;
  save();
  EXPECT_EQ(events(), "save! 5 ListSave");
  input("cut");
  EXPECT_EQ(events(), "input! 5 ListInput");
  silent();
  input("cut");
  EXPECT_EQ(events(), "input! ");
  list.removeSink(failing);
}

}  // namespace
}  // namespace norvane
