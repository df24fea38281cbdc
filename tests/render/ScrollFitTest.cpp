#include "../Lists.h"

#include <random>
#include <sstream>
#include <tuple>

namespace norvane {
namespace {

using std::chrono::milliseconds;

/// "on 13 at 5, 182 1 17x98": whether the list shows the bar, its maximum, value and bounds.
template <class Bar>
std::string told(const Bar& bar) {
  EXPECT_EQ(static_cast<bool>(bar.Visible()), bar.Tag() == "True");
  std::ostringstream text;
  text << (bar.Tag() == "True" ? "on " : "off ") << bar.Max() << " at " << bar.Value() << ", "
       << bar.Left() << " " << bar.Top() << " " << bar.Width() << "x" << bar.Height();
  return text.str();
}
std::string range(const std::string& bar) { return bar.substr(0, bar.find(',')); }
std::string place(const std::string& bar) { return bar.substr(bar.find(',') + 2); }

/// A list of 200 by 100 pixels; a character is 7 wide and a row 13 high, which makes seven rows,
/// and six above a horizontal bar.
class ScrollFit : public ListTest, public __nvList {
 protected:
  ScrollFit() { list.addSink(*this); }

  void Scroll() override {
    ++scrolls;
    onScroll();
  }

  /// New items, the first one of so many characters, and everything fitted anew.
  void fill(int count, std::size_t width = 1) {
    list.AutoRedraw(false);
    list.AutoCheckScroll(false);
    list.ItemsClear();
    for (int i = 0; i < count; ++i) list.ItemsAdd(i == 0 ? std::string(width, 'm') : "i");
    scanAnew();
    list.AutoRedraw(true);
  }
  void scanAnew() { list.AutoCheckScroll(true); }

  std::string vertical() { return told(list.verticalBar()); }
  std::string horizontal() { return told(list.horizontalBar()); }
  std::int32_t contentWidth() { return list.state().MaxItemWidth; }
  /// The surface on which items are measured.
  RecordingSurface& label() { return form.children().at(6)->ownSurface(); }

  /// A part of a bar: 0 thumb, 1 near button, 2 far button.
  HeadlessContainer& part(int bar, int index) {
    return *form.children()[static_cast<std::size_t>(bar)]
                ->children()[static_cast<std::size_t>(index)];
  }
  void click(int bar, int index, int times = 1) {
    for (int i = 0; i < times; ++i) {
      part(bar, index).press(8, 3);
      form.release(0, 0);
    }
  }

  HeadlessContainer& form = headless.container();
  int scrolls = 0;
  std::function<void()> onScroll = [] {};
};

TEST_F(ScrollFit, TheContentIsAsWideAsTheWidestItemAndWhatItsStylePutsBesideIt) {
  fill(3, 4);
  list.AutoRedraw(false);
  list.ItemBold(0, true);
  // Halves are rounded to even; an unknown style adds nothing; font flags do not count.
  for (const auto& [style, iconWidth, width] :
       {std::tuple(0, 16.0F, 32), {1, 16, 45}, {2, 16.5F, 48}, {3, 16, 61}, {7, 16, 28}}) {
    list.IconW(iconWidth);
    list.Style(static_cast<cListStyle>(style));
    scanAnew();
    EXPECT_EQ(contentWidth(), width) << style << " " << iconWidth;
  }
}

TEST_F(ScrollFit, EachItemAddedWidensTheContentByThePaddingAgain) {
  list.ScrollBars(vbBoth);
  for (int i = 0; i < 48; ++i) list.ItemsAdd("i");
  EXPECT_EQ(list.horizontalBar().Tag(), "False");
  list.ItemsAdd("i");
  EXPECT_EQ(list.horizontalBar().Tag(), "True");
  list.ItemsAdd(std::string(30, 'm'));
  EXPECT_EQ(contentWidth(), 210 + 4);
  list.ItemsRemove(49);
  EXPECT_EQ(contentWidth(), 11);
  EXPECT_EQ(list.horizontalBar().Tag(), "False");
}

TEST_F(ScrollFit, AWidthIsKeptUntilTheTextOrTheFontChanges) {
  fill(3, 10);
  label().fontMeasure({9, 9, 13});
  list.ItemText(0, "mmmmm");
  scanAnew();
  EXPECT_EQ(contentWidth(), 5 * 9 + 4);
  list.ItemsAdd("mmmmmmm");
  label().fontMeasure({20.5F, 20, 13});
  scanAnew();
  EXPECT_EQ(contentWidth(), 7 * 9 + 4);
  list.Font(list.Font());
  for (int i = 0; i < 2; ++i) {
    scanAnew();
    EXPECT_EQ(contentWidth(), 144 + 4);  // 143.5
  }
}

TEST_F(ScrollFit, TheWidestOfManyIsKnownWhateverBecomesOfThem) {
  std::mt19937 random(8);
  const auto upTo = [&](int most) {
    return static_cast<int>(random() % (static_cast<unsigned>(most) + 1));
  };
  list.AutoCheckScroll(false);
  for (int round = 0; round < 300; ++round) {
    const int last = list.ItemsCount() - 1;
    list.AutoRedraw(false);
    for (int deeds = upTo(3); deeds >= 0; --deeds) {
      const int deed = upTo(last < 2000 ? 9 : 6);
      if (deed > 6 || last < 2) {
        const std::string text(static_cast<std::size_t>(1 + upTo(upTo(60))), 'm');
        for (int i = upTo(50); i >= 0; --i) list.ItemsAdd(text, upTo(1) ? upTo(last + 1) : -1);
      }
      const int place = upTo(list.ItemsCount() - 1);
      if (deed == 0) list.ItemText(place, std::string(static_cast<std::size_t>(upTo(60)), 'm'));
      if (deed == 1) list.MoveItemDown(upTo(list.ItemsCount() - 1), place);
      if (deed == 2) list.MoveItemUp(place, upTo(9) == 0 ? -1 : 7);
      if (deed == 3 && upTo(99) == 0) list.Sort(cDescending);
      if (deed == 4) list.ItemSelected(place, true);
      if (deed == 5 && upTo(9) == 0) list.ItemsSelectedRemove();
      if (deed == 6) list.ItemsRemove(place);
    }
    list.AutoRedraw(true);
    std::size_t widest = 0;
    for (int i = 0; i < list.ItemsCount(); ++i) widest = std::max(widest, item(i).Text.size());
    ASSERT_EQ(contentWidth(), 7 * static_cast<int>(widest) + 4) << round;
  }
}

TEST_F(ScrollFit, TheChoiceOfBarsAndTheirRanges) {
  struct Case {
    ScrollBarConstants bars;
    int count;
    std::size_t width;
    const char* ranges;
  };
  constexpr Case cases[] = {
      {vbHorizontal, 20, 40, "off 0 at 0, on 84 at 0"},
      // The horizontal range includes the width of the vertical bar even without a horizontal bar.
      {vbVertical, 20, 40, "on 13 at 0, off 17 at 0"},
      {vbBoth, 7, 28, "off 0 at 0, off 0 at 0"},
      // One row fewer fits above the horizontal bar.
      {vbBoth, 7, 29, "on 1 at 0, on 24 at 0"},
  };
  for (const Case& c : cases) {
    list.ScrollBars(c.bars);
    fill(c.count, c.width);
    EXPECT_EQ(range(vertical()) + ", " + range(horizontal()), c.ranges) << c.bars << " " << c.width;
  }
  // A new choice takes effect at the next CheckScroll.
  list.ScrollBars(vbSBNone);
  EXPECT_EQ(list.verticalBar().Tag(), "True");
  scanAnew();
  EXPECT_EQ(range(vertical()), "off 0 at 0");
  // If no row fits, the range includes every item.
  list.ScrollBars(vbBoth);
  headless.resize(200, 10);
  EXPECT_EQ(list.verticalBar().Max(), 7);
}

TEST_F(ScrollFit, ThePlacesLieInsideTheFrameAndTheCornerIsTheLists) {
  // A hidden bar keeps its position and has no length.
  for (const auto& [bars, hasBorder, places] :
       {std::tuple(vbBoth, false, "183 0 17x83, 0 83 183x17"),
        {vbVertical, true, "182 1 17x98, 1 82 0x17"},
        {vbBoth, true, "182 1 17x81, 1 82 181x17"}}) {
    list.BorderVisible(hasBorder);
    list.ScrollBars(bars);
    fill(20, 40);
    EXPECT_EQ(place(vertical()) + ", " + place(horizontal()), places);
  }
  list.BackColor(0x00FF00);
  const std::string picture = headless.face();
  EXPECT_EQ(picture.substr(picture.rfind("Line")), "Line 38 (182, 82)-(200, 100) #00FF00\n");
  // Smaller than the bars themselves.
  headless.resize(10, 5);
  EXPECT_EQ(vertical(), "on 20 at 0, -8 1 17x0");
  EXPECT_EQ(reports(), "");
}

TEST_F(ScrollFit, AShrinkingRangeGoesBackToTheStart) {
  list.ScrollBars(vbHorizontal);
  fill(2, 40);
  click(1, 2, 5);
  list.CheckScroll();
  list.ItemsAdd(std::string(50, 'm'));
  EXPECT_EQ(range(horizontal()), "on 154 at 5");
  list.ItemsRemove(2);
  EXPECT_EQ(range(horizontal()), "on 84 at 0");
  list.ScrollBars(vbBoth);
  fill(20, 40);
  // The vertical value is kept, whatever the range.
  click(0, 2, 14);
  for (int i = 0; i < 4; ++i) list.ItemsRemove(1);
  EXPECT_EQ(range(vertical()), "on 10 at 14");
  EXPECT_EQ(list.TopIndex(), 14);
  // A bar that is hidden loses its value.
  click(1, 2, 5);
  fill(7);
  EXPECT_EQ(range(vertical()) + ", " + range(horizontal()), "off 0 at 0, off 0 at 0");
}

TEST_F(ScrollFit, TheListFollowsButtonsTrackAndThumb) {
  fill(1000);
  const auto heard = [&] {
    return std::to_string(std::exchange(scrolls, 0)) + " to " + std::to_string(list.TopIndex());
  };
  part(0, 2).press(8, 8);
  EXPECT_EQ(heard(), "1 to 1");
  form.release(0, 0);
  part(0, 0).press(8, 3);
  form.moveTo(190, 400, 1);
  EXPECT_EQ(heard(), "1 to 993");
  form.release(190, 400);
  EXPECT_EQ(heard(), "1 to 993");
  EXPECT_NE(headless.face().find("DrawTextA \"i\" (3, 3)"), std::string::npos);

  list.ScrollBars(vbBoth);
  fill(5, 40);
  click(1, 2);
  EXPECT_EQ(heard(), "1 to 0");
  EXPECT_NE(headless.face().find("(2, 3)-(284, 100)"), std::string::npos);
}

TEST_F(ScrollFit, AScrollStoresDropsTheEditYieldsPaintsAndTells) {
  list.ScrollBars(vbBoth);
  list.AllowEdit(true);
  for (const int bar : {0, 1}) {
    fill(20, 40);
    list.ItemAllowEdit(0, true);
    list.SetEdit(0);
    form.textBoxes().at(0)->typeText("typed");
    ASSERT_TRUE(list.state().EditActive.isTrue());
    const int frames = headless.surface().frames();
    std::string order;
    form.post([&] {
      order = "yield at " + std::to_string(list.TopIndex());
      EXPECT_FALSE(list.state().EditActive);
      EXPECT_TRUE(list.state().SuppressRedraw.isTrue());
      EXPECT_EQ(headless.surface().frames(), frames);
    });
    onScroll = [&] {
      order += ", Scroll";
      EXPECT_FALSE(list.state().SuppressRedraw);
      EXPECT_EQ(headless.surface().frames(), frames + 1);
    };
    click(bar, 2);
    onScroll = [] {};
    EXPECT_EQ(order, "yield at 1, Scroll");
    EXPECT_EQ(list.ItemText(0), std::string(40, 'm'));
  }
}

TEST_F(ScrollFit, WhateverIsDoneNoBoxComesUp) {
  std::mt19937 random(4);
  const auto upTo = [&](unsigned most) { return static_cast<int>(random() % (most + 1)); };
  const auto length = [&](unsigned most) { return static_cast<float>(upTo(most)); };
  for (int round = 0; round < 1000; ++round) {
    const int deed = upTo(7);
    if (deed == 0) headless.resize(length(300), length(200));
    if (deed == 1) list.ScrollBars(static_cast<ScrollBarConstants>(upTo(3)));
    if (deed == 2) list.ItemsRemove(upTo(60));
    if (deed == 3) list.TopIndex(upTo(80) - 20);
    if (deed == 4) {
      form.press(length(200), length(100));
      form.moveTo(length(200), length(100), 1);
      form.clock().advance(milliseconds(upTo(900)));
      form.release(0, 0);
    }
    if (deed > 4) list.ItemsAdd(std::string(static_cast<std::size_t>(upTo(40)), 'm'));
    ASSERT_EQ(reports(), "") << round;
    ASSERT_LE(list.verticalBar().Max(), list.ItemsCount());
  }
}

}  // namespace
}  // namespace norvane
