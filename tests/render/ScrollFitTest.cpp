#include "../Lists.h"

#include <random>
#include <sstream>
#include <stdexcept>

namespace norvane {
namespace {

using std::chrono::milliseconds;

/// "on 13 at 5, 182 1 17x98": what the list wants of a bar, its maximum and value, and its place.
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
  void fill(int count, int width = 1) {
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
  /// What the items are measured on.
  HeadlessSurface& label() { return form.children().at(6)->ownSurface(); }

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
  scanAnew();
  EXPECT_EQ(contentWidth(), 0);
  fill(3, 4);
  list.AutoRedraw(false);
  list.ItemBold(0, true);
  struct Case {
    int style;
    float iconWidth;
    std::int32_t width;
  };
  // Halves go to the even number, an unknown style adds nothing, and no flag of the font counts.
  constexpr Case cases[] = {{0, 16, 32},    {1, 16, 45},   {2, 16, 48}, {3, 16, 61}, {2, 16.5F, 48},
                            {2, 15.5F, 48}, {3, 0.5F, 46}, {7, 16, 28}, {-1, 16, 28}};
  for (const Case& c : cases) {
    list.IconW(c.iconWidth);
    list.Style(static_cast<cListStyle>(c.style));
    scanAnew();
    EXPECT_EQ(contentWidth(), c.width) << c.style << " " << c.iconWidth;
  }
  list.Style(cIcons);
  list.IconW(3e9F);
  scanAnew();
  EXPECT_EQ(reports(), "6 CheckItemWidth");
  EXPECT_EQ(contentWidth(), 28);
}

TEST_F(ScrollFit, EachItemAddedWidensTheContentByThePaddingAgain) {
  list.ScrollBars(vbBoth);
  for (int i = 0; i < 48; ++i) list.ItemsAdd("i");
  EXPECT_EQ(contentWidth(), 7 + 48 * 4);
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
  list.ItemsRemove(1);
  EXPECT_EQ(contentWidth(), 74);
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

TEST_F(ScrollFit, AFailingMeasureEndsTheScanOrIsPassedOver) {
  for (const bool isSilent : {false, true}) {
    fill(3, 3);
    list.ItemText(2, "mmmmm");
    scanAnew();
    list.ItemText(1, "mm");
    label().fontMeasure({2e9F, 1, 13});
    Error().SilentError(isSilent);
    scanAnew();
    EXPECT_EQ(contentWidth(), isSilent ? 39 : 21);
    EXPECT_EQ(reports(), isSilent ? "" : "6 CheckItemWidth");
    label().fontMeasure({});
  }
}

TEST_F(ScrollFit, TheChoiceOfBarsAndTheirRanges) {
  struct Case {
    ScrollBarConstants bars;
    int count, width;
    const char *vertical, *horizontal;
  };
  constexpr int wide = 40;  // 284 pixels with the padding
  const Case cases[] = {
      {vbSBNone, 20, wide, "off 0 at 0", "off 0 at 0"},
      {vbHorizontal, 20, wide, "off 0 at 0", "on 84 at 0"},
      // The range makes up for the vertical bar also where there is no horizontal one.
      {vbVertical, 20, wide, "on 13 at 0", "off 17 at 0"},
      {vbBoth, 20, wide, "on 14 at 0", "on 101 at 0"},
      {vbBoth, 7, 28, "off 0 at 0", "off 0 at 0"},
      {vbBoth, 8, 28, "on 1 at 0", "off 17 at 0"},
      // A row less fits above the horizontal bar.
      {vbBoth, 6, 29, "off 0 at 0", "on 7 at 0"},
      {vbBoth, 7, 29, "on 1 at 0", "on 24 at 0"},
  };
  for (const Case& c : cases) {
    list.ScrollBars(c.bars);
    fill(c.count, c.width);
    EXPECT_EQ(range(vertical()), c.vertical) << c.bars << " " << c.count;
    EXPECT_EQ(range(horizontal()), c.horizontal) << c.bars << " " << c.count;
  }
  // Another choice counts from the next fit on. Turning AutoCheckScroll off is none.
  list.ScrollBars(vbSBNone);
  list.AutoCheckScroll(false);
  EXPECT_EQ(list.verticalBar().Tag(), "True");
  scanAnew();
  EXPECT_EQ(range(vertical()), "off 0 at 0");
  // Where no row fits every item is in the range.
  list.ScrollBars(vbBoth);
  headless.resize(200, 10);
  EXPECT_EQ(list.verticalBar().Max(), 7);
  list.ItemsClear();
  EXPECT_EQ(range(vertical()), "off 0 at 0");
}

TEST_F(ScrollFit, ThePlacesLieInsideTheFrameAndTheCornerIsTheLists) {
  struct Case {
    ScrollBarConstants bars;
    bool hasBorder;
    const char *vertical, *horizontal;
  };
  // A bar that is off keeps its place, and has no length.
  constexpr Case cases[] = {{vbBoth, true, "182 1 17x81", "1 82 181x17"},
                            {vbBoth, false, "183 0 17x83", "0 83 183x17"},
                            {vbVertical, true, "182 1 17x98", "1 82 0x17"},
                            {vbHorizontal, true, "182 1 17x0", "1 82 198x17"},
                            {vbSBNone, false, "182 1 17x0", "0 83 0x17"}};
  for (const Case& c : cases) {
    list.BorderVisible(c.hasBorder);
    list.ScrollBars(c.bars);
    fill(20, 40);
    EXPECT_EQ(place(vertical()), c.vertical);
    EXPECT_EQ(place(horizontal()), c.horizontal);
  }
  list.ScrollBars(vbBoth);
  list.BorderVisible(true);
  list.BackColor(0x00FF00);
  const std::string picture = headless.picture();
  EXPECT_EQ(picture.substr(picture.rfind("Line")), "Line 38 (182, 82)-(200, 100) #00FF00\n");
  // Smaller than the bars themselves.
  headless.resize(10, 5);
  EXPECT_EQ(vertical(), "on 20 at 0, -8 1 17x0");
  EXPECT_EQ(reports(), "");
}

TEST_F(ScrollFit, TheThumbGetsItsLengthWhenTheBarShowsAndWithTheNextRange) {
  fill(20);
  const Bounds& thumb = part(0, 0).bounds();
  EXPECT_EQ(thumb.Height, 98 - 34 - 13);
  headless.resize(200, 113);
  EXPECT_EQ(thumb.Height, 98 - 34 - 12);
  list.CheckScroll();
  EXPECT_EQ(thumb.Height, 111 - 34 - 12);
  // The list moves the bar also where nobody fits it.
  list.AutoCheckScroll(false);
  for (int i = 0; i < 5; ++i) list.ItemsAdd("i");
  list.TopIndex(16);
  EXPECT_EQ(range(vertical()), "on 17 at 16");
  EXPECT_EQ(thumb.Height, 111 - 34 - 17);
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
  // The width that the vertical bar added last time counts as part of the old range.
  list.ScrollBars(vbBoth);
  fill(20, 40);
  click(1, 2, 5);
  list.CheckScroll();
  EXPECT_EQ(range(horizontal()), "on 101 at 0");
  // The vertical value stays, whatever the range does.
  click(0, 2, 14);
  for (int i = 0; i < 4; ++i) list.ItemsRemove(1);
  EXPECT_EQ(range(vertical()), "on 10 at 14");
  EXPECT_EQ(list.TopIndex(), 14);
  // A bar that goes forgets where it stood.
  click(1, 2, 5);
  fill(7);
  EXPECT_EQ(range(vertical()), "off 0 at 0");
  EXPECT_EQ(range(horizontal()), "off 0 at 0");
}

TEST_F(ScrollFit, TheListFollowsButtonsTrackAndThumb) {
  fill(1000);
  const auto heard = [&] {
    return std::to_string(std::exchange(scrolls, 0)) + " to " + std::to_string(list.TopIndex());
  };
  part(0, 2).press(8, 8);
  EXPECT_EQ(heard(), "1 to 1");
  form.clock().advance(milliseconds(800));
  EXPECT_EQ(heard(), "3 to 4");
  form.release(0, 0);
  click(0, 1);
  EXPECT_EQ(heard(), "1 to 3");
  // The track, below the thumb.
  form.press(190, 75);
  form.clock().advance(milliseconds(700));
  form.release(190, 75);
  EXPECT_EQ(heard(), "3 to 6");

  part(0, 0).press(8, 3);
  for (const float y : {28.0F, 35.0F, 43.0F}) {
    const std::int32_t before = list.TopIndex();
    form.moveTo(190, y, 1);
    EXPECT_GT(list.TopIndex(), before);
    EXPECT_EQ(list.TopIndex(), list.verticalBar().Value());
  }
  form.moveTo(400, 90, 1);
  EXPECT_EQ(scrolls, 3);
  form.moveTo(190, 400, 1);
  EXPECT_EQ(heard(), "4 to 993");
  form.release(190, 400);
  EXPECT_EQ(heard(), "1 to 993");
  EXPECT_NE(headless.picture().find("DrawTextA \"i\" (3, 3)"), std::string::npos);

  list.ScrollBars(vbBoth);
  fill(5, 40);
  click(1, 2);
  EXPECT_EQ(heard(), "1 to 0");
  EXPECT_NE(headless.picture().find("(2, 3)-(284, 100)"), std::string::npos);
}

TEST_F(ScrollFit, AScrollStoresDropsTheEditYieldsPaintsAndTells) {
  list.ScrollBars(vbBoth);
  list.AllowEdit(true);
  std::string marked;
  form.onPropertyChanged = [&](std::string_view name) { marked += name; };
  for (const int bar : {0, 1}) {
    fill(20, 40);
    list.ItemAllowEdit(0, true);
    list.SetEdit(0);
    form.textBoxes().at(0)->typeText("typed");
    ASSERT_TRUE(list.state().EditActive.isTrue());
    marked.clear();
    const int frames = headless.surface().frames();
    std::string order;
    form.post([&] {
      order = "yield at " + std::to_string(list.TopIndex());
      EXPECT_FALSE(list.state().EditActive);
      EXPECT_FALSE(form.textBoxes()[0]->Visible());
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
    EXPECT_EQ(marked, "");
  }
}

/// A surface whose width cannot be had for a while.
class Unmeasurable : public HeadlessSurface {
 public:
  using HeadlessSurface::HeadlessSurface;
  float ScaleWidth() const override {
    if (isBroken) throw std::runtime_error("no width");
    return HeadlessSurface::ScaleWidth();
  }
  bool isBroken = false;
};

TEST_F(ScrollFit, WithoutAWidthTheFitEndsOrGoesOnWithWhatThereIs) {
  for (const bool isSilent : {false, true}) {
    Unmeasurable surface(200, 100);
    HeadlessContainer container(surface);
    nvList own(container);
    own.UserControl_InitProperties();
    own.AutoRedraw(false);
    for (int i = 0; i < 20; ++i) own.ItemsAdd(i);
    own.ScrollBars(vbBoth);
    surface.isBroken = true;
    Error().SilentError(isSilent);
    own.BorderVisible(false);
    own.CheckScroll();
    surface.isBroken = false;
    // Silent, a question that fails counts as answered by yes, and what needs the width stays.
    EXPECT_EQ(told(own.horizontalBar()),
              isSilent ? "on 51 at 0, 0 83 0x17" : "off 17 at 0, 0 0 0x17");
    EXPECT_EQ(told(own.verticalBar()),
              isSilent ? "on 14 at 0, 182 0 17x83" : "on 13 at 0, 182 1 17x98");
    EXPECT_EQ(reports(), isSilent ? "" : "440 DrawBorder, 440 CheckScroll");
  }
}

TEST_F(ScrollFit, WhateverIsDoneNoBoxComesUp) {
  std::mt19937 random(4);
  const auto upTo = [&](unsigned most) { return static_cast<int>(random() % (most + 1)); };
  const auto length = [&](unsigned most) { return static_cast<float>(upTo(most)); };
  for (int round = 0; round < 1000; ++round) {
    const int deed = upTo(8);
    if (deed == 0) headless.resize(length(300), length(200));
    if (deed == 1) list.ScrollBars(static_cast<ScrollBarConstants>(upTo(3)));
    if (deed == 2) list.ItemsRemove(upTo(60));
    if (deed == 3) list.TopIndex(upTo(80) - 20);
    if (deed == 4) list.BorderVisible(upTo(1) == 1);
    if (deed == 5) {
      form.press(length(200), length(100));
      form.moveTo(length(200), length(100), 1);
      form.clock().advance(milliseconds(upTo(900)));
      form.release(0, 0);
    }
    if (deed > 5) list.ItemsAdd(std::string(static_cast<std::size_t>(upTo(40)), 'm'));
    ASSERT_EQ(reports(), "") << round;
    ASSERT_GE(list.verticalBar().Max(), 0);
    ASSERT_LE(list.verticalBar().Max(), list.ItemsCount());
  }
}

}  // namespace
}  // namespace norvane
