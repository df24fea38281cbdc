#include <nvlist/files/colourTexts.h>

#include "../Lists.h"

namespace norvane {
namespace {

using Colours = ListTest;

TEST_F(Colours, AreWrittenInHexadecimal) {
  EXPECT_EQ(CHex(5, 2), "05");
  EXPECT_EQ(CHex(-2, 2), "FFFFFFFE");
  EXPECT_EQ(RGB2HTML(1, 0xAB, 16), "01AB10");
  EXPECT_EQ(VBColor2HTML(0xFF8040), "4080FF");
  EXPECT_EQ(VBColor2HTML(-1), "FF0000");
}

TEST_F(Colours, GoToAListFile) {
  const struct {
    std::string_view text;
    std::string_view written;
  } cases[] = {{"def", "   def"},    {"Def", "FFFFFF"}, {"2.5", "020000"},
               {"&HFF80", "800000"}, {"-1", "FF0000"},  {"4227327", "FF8040"}};
  for (const auto& [text, written] : cases) EXPECT_EQ(GetCorrectColor(text), written) << text;
  EXPECT_EQ(GetCorrectColor("4294967295"), "");
  EXPECT_EQ(reports(), "6 GetCorrectColor");
}

}  // namespace
}  // namespace norvane
