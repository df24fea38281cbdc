#include "FileTest.h"

#include <nvlist/files/windows1252.h>

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
  EXPECT_FALSE(list.AutoRedraw());
  EXPECT_FALSE(list.AutoCheckScroll());
  EXPECT_TRUE(shows("old"));
  EXPECT_GT(list.verticalBar().Max(), 0);
  list.ListInput2("missing", ",");
  EXPECT_EQ(events(), "input! ");
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
