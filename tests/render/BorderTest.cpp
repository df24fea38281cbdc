#include "../HearingList.h"
#include "../scroll/Bars.h"

namespace norvane {
namespace {

class Border : public HearingListTest {
 protected:
  /// Top, right, bottom, left; the bars stand behind them.
  HeadlessContainer& piece(int index) {
    return *headless.container().children().at(2 + static_cast<std::size_t>(index));
  }
  /// The colour of all pieces.
  Colour colour() {
    const Colour first = background(piece(0));
    for (int i = 1; i < 4; ++i) EXPECT_EQ(background(piece(i)), first) << i;
    return first;
  }
};

TEST_F(Border, TheFamilyGivesTheColour) {
  // An unknown style leaves the colour unchanged.
  for (const auto& [style, expected] :
       {std::pair(2, 0x7FB9A4), {1, 0xB99D7F}, {99, 0x0000FF}, {50, 0x0000FF}}) {
    list.ColorStyle(static_cast<cColorStyle>(style));
    list.BorderColor(0x0000FF);
    EXPECT_EQ(colour(), expected) << style;
  }
}

TEST_F(Border, ThePiecesLieOnTheEdgesAlsoWhileTheyAreHidden) {
  const auto expectAround = [&](float w, float h) {
    const Bounds edges[] = {{0, 0, w, 1}, {w - 1, 0, 1, h}, {0, h - 1, w, 1}, {0, 0, 1, h}};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(piece(i).bounds(), edges[i]) << i;
  };
  expectAround(200, 133);
  // Mouse events on them do not reach the list.
  for (const auto& [x, y] : {std::pair(0.5F, 50.0F), {100, 132.5F}, {199.5F, 10}, {1, 1}}) {
    headless.container().press(x, y);
    headless.container().release(x, y);
  }
  EXPECT_EQ(heard(), "MouseDown MouseUp Click");
  list.BorderVisible(false);
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(piece(i).isShown());
  headless.resize(201, 134);
  expectAround(201, 134);
  headless.resize(0, 0);
  EXPECT_EQ(reports(), "");
}

}  // namespace
}  // namespace norvane
