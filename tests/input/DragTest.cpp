#include "../HearingList.h"

#include <algorithm>

namespace norvane {
namespace {

class Drag : public HearingListTest {
 protected:
  Drag() { fill(5); }

  HeadlessContainer& form = headless.container();

  /// A press on a row of a longer list, then a move past an edge.
  void dragPast(float y, int top) {
    fill(40);
    list.TopIndex(top);
    press(3);
    heard();
    form.moveTo(besideZone, y, 1);
  }
  static constexpr float above = -1;
  static constexpr float below = 130.5;

  /// "top, timer's state" after some milliseconds.
  std::string after(int milliseconds) {
    wait(milliseconds);
    return std::to_string(list.TopIndex()) + ", " + std::to_string(list.state().HoverIndex);
  }
  /// Number of repaints in the next milliseconds.
  std::size_t ticks(int milliseconds) {
    heard();
    wait(milliseconds);
    const std::string events = heard();
    return static_cast<std::size_t>(std::ranges::count(events, '*'));
  }
};

TEST_F(Drag, MovesTellTheRowUnderThePointer) {
  form.moveTo(50, 20), form.moveTo(50, 300), form.moveTo(50, 131);
  EXPECT_EQ(heard(), "MouseMove(1 1) MouseMove(10 )");
  list.ItemsClear();
  form.press(50, 90);
  heard();
  form.moveTo(50, 10, 1), form.moveTo(50, -1, 1);
  EXPECT_EQ(heard(), "MouseMove(0 ) MouseMove(-1 )");
  EXPECT_EQ(ticks(10), 0U);
}

TEST_F(Drag, APlainDragSweepsTheCurrentRowAlong) {
  disable({3});
  press(1);
  drag(2), drag(2), drag(3), drag(5), drag(0);
  EXPECT_EQ(outcome(),
            "MouseDown* ListIndex* MouseMove(2 2) ListIndex* MouseMove(2 2)(3) MouseMove(3 3)"
            "(5) MouseMove(5 ) ListIndex* MouseMove(0 0) | 0: 0");
  drag(4, 3), drag(4, 0);
  EXPECT_EQ(outcome(), "MouseMove(4 4) MouseMove(4 4) | 0: 0");
}

TEST_F(Drag, TheDropLandsBeforeTheMarkedRow) {
  const auto move = [&](int from, std::initializer_list<int> over, int to) {
    fill(5);
    list.AllowItemMoving(true);
    heard();
    press(from);
    for (const int row : over) drag(row);
    heard();
    release(to);
    return heard() + " | " + texts() + " | " + now();
  };
  EXPECT_EQ(move(1, {2, 3}, 3), "** MouseUp Click | 0 2 1 3 4 | 2: 1");
  // A host may have made the marked row current.
  press(1), drag(3), list.ListIndex(3), heard();
  release(3);
  EXPECT_EQ(outcome(), "* MouseUp Click | 3: 3");
  EXPECT_EQ(move(0, {5}, 5), "** MouseUp Click | 1 2 3 4 0 | 4: 0");
  EXPECT_EQ(move(3, {1}, 1), "** MouseUp Click | 0 3 1 2 4 | 1: 3");
  // A drop without a mark moves the item to the top.
  EXPECT_EQ(move(3, {}, 3), "** MouseUp Click | 3 0 1 2 4 | 0: 3");
  EXPECT_EQ(reports(), "");
}

TEST_F(Drag, TheTargetHasABlackMarkUntilTheNextRepaint) {
  const std::string mark = "Line 22 (0, 42)-(200, 43) #000000\n";
  const auto isMarked = [&] { return headless.face().find(mark) != std::string::npos; };
  disable({3});
  list.AllowItemMoving(true);
  press(1);
  heard();
  drag(3), drag(3);
  EXPECT_EQ(heard(), "* MouseMove(3 3)* MouseMove(3 3)");
  EXPECT_EQ(list.state().HoverIndex, 3);
  drag(1);
  EXPECT_EQ(list.state().HoverIndex, -1);
  EXPECT_TRUE(isMarked());
  list.Redraw();
  EXPECT_FALSE(isMarked());
}

TEST_F(Drag, PastTheTopItScrollsUntilTheFirstRowIsNext) {
  dragPast(above, 5);
  wait(20);
  EXPECT_EQ(outcome(), "MouseMove(4 4) TopIndex* TopIndex* TopIndex* TopIndex* | 8: 8, top 1");
  release(0);
  list.AllowItemMoving(true);
  dragPast(above, 5);
  EXPECT_EQ(after(9), "1, 1");
}

TEST_F(Drag, PastTheBottomItScrollsToTheEndAndOn) {
  dragPast(below, 26);
  EXPECT_EQ(after(9), "30, -1");
  EXPECT_EQ(ticks(5), 5U);
  release(0);
  EXPECT_EQ(ticks(5), 0U);
  list.AllowItemMoving(true);
  dragPast(below, 20);
  EXPECT_EQ(after(3), "23, 32");
  // Releasing another button meanwhile stops it as long as the pointer does not move.
  dragPast(below, 10);
  form.press(besideZone, below, 2), form.release(besideZone, below, 2);
  EXPECT_EQ(ticks(5), 0U);
}

TEST_F(Drag, BackInsideItEndsWithTheNextTick) {
  dragPast(below, 10);
  wait(1);
  drag(4);
  EXPECT_EQ(now(), "15: 15, top 11");
  EXPECT_EQ(ticks(5), 0U);
}

}  // namespace
}  // namespace norvane
