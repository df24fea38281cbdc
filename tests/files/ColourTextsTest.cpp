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

}  // namespace
}  // namespace norvane
