#include "../HearingList.h"

namespace norvane {
namespace {

/// A surface that does not know its width, if so told.
class NarrowSurface : public HeadlessSurface {
 public:
  using HeadlessSurface::HeadlessSurface;
  float ScaleWidth() const override {
    if (isBroken) throw Failure(1000, "own");
    return HeadlessSurface::ScaleWidth();
  }
  bool isBroken = false;
};

class Edit : public HearingListTest {
 protected:
  Edit() { open(0); }

  /// A list of forty items that may be edited, the box on the third one after its row was clicked.
  void open(int top) {
    fill(40);
    list.AllowEdit(true);
    for (int i = 0; i < 40; ++i) list.ItemAllowEdit(i, true);
    list.TopIndex(top);
    click(2), click(2);
    heard();
  }

  /// "closed", or the text and the place of the box.
  std::string editing() { return editing(list, box()); }
  static std::string editing(const nvList& of, const HeadlessTextBox& in) {
    EXPECT_EQ(static_cast<bool>(of.state().EditActive), in.Visible());
    const Bounds& place = in.place();
    return in.Visible() ? in.Text() + " (" + textOf(place.Left) + ", " + textOf(place.Top) + ") " +
                              textOf(place.Width) + "x" + textOf(place.Height)
                        : "closed";
  }
};

TEST_F(Edit, ThePressOfTheCurrentRowOpensTheBox) {
  EXPECT_EQ(editing(), "2 (1, 29) 197x14");
  click(3);
  EXPECT_EQ(editing(), "closed");
  EXPECT_FALSE(box().hasFocus);
  doubleClick(4);
  EXPECT_EQ(editing(), "4 (1, 55) 197x14");
  auto font = makeRef<FontObject>();
  font->Size = 20;
  list.Font(font);
  list.ForeColor(0x123456);
  list.ItemText(5, "Füße");
  list.SetEdit("5");
  EXPECT_EQ(editing(), "Füße (1, 55) 197x14");
  EXPECT_EQ(box().font->Size, 20);
  EXPECT_EQ(box().foreColor, 0x123456);
  EXPECT_TRUE(box().hasFocus);
  EXPECT_EQ(box().selectionStart, 0);
  EXPECT_EQ(box().selectionLength, 4);
}

TEST_F(Edit, TheListTheItemAndItsStateHaveToAllowIt) {
  for (int gates = 0; gates < 8; ++gates) {
    click(5 + gates % 2);
    list.AllowEdit((gates & 1) != 0);
    list.ItemAllowEdit(3, (gates & 2) != 0);
    list.ItemEnabled(3, (gates & 4) != 0);
    list.SetEdit(3);
    EXPECT_EQ(editing() == "closed", gates != 7) << gates;
  }
}

TEST_F(Edit, ThePlaceIsThatOfTheStyleAndOfTheLastPress) {
  HeadlessList other;
  other.list().BorderVisible(false);
  other.list().ItemsAdd({.aText = "a", .aAllowEdit = true});
  other.list().AllowEdit(true);
  const auto place = [&](cListStyle style) {
    other.list().Style(style);
    other.list().SetEdit(0);
    return editing(other.list(), *other.container().textBoxes()[0]);
  };
  EXPECT_EQ(place(cCheckBoxesIcons), "a (37, -10) 161x14");
  EXPECT_EQ(place(cDefault), "a (1, -10) 197x14");
  EXPECT_EQ(place(cCheckBoxesIcons), "a (1, -10) 197x14");
  other.container().press(50, 0);
  EXPECT_EQ(place(cCheckBoxes), "a (18, 3) 180x14");
  other.container().release(50, 50);
  other.list().IconW(20);
  other.list().IndentLeft(5);
  EXPECT_EQ(place(cIcons), "a (27, 42) 171x14");
  // Rows are higher than their text; the box goes by the text.
  other.list().MinHeight(20);
  EXPECT_EQ(place(cIcons), "a (27, 29) 171x14");
}

TEST_F(Edit, ReturnWritesTheTextIntoTheCurrentItem) {
  box().typeText("a text far too wide for the list");
  for (const std::int16_t other : {27, 10, 97, 9}) EXPECT_TRUE(box().typeCharacter(other));
  const std::int32_t width = list.state().MaxItemWidth;
  EXPECT_FALSE(box().typeCharacter(13));
  EXPECT_EQ(outcome(), "* | 2: a text far too wide for the list");
  EXPECT_EQ(editing(), "closed");
  EXPECT_EQ(list.state().MaxItemWidth, width);
  EXPECT_TRUE(box().typeCharacter(13));

  list.SetEdit(3);
  list.SetEdit(4);
  EXPECT_EQ(editing(), "4 (1, 29) 197x14");
  list.ListIndex(1);
  box().typeText("");
  box().typeCharacter(13);
  EXPECT_EQ(item(1).Text, "");
  EXPECT_EQ(item(4).Text, "4");
}

TEST_F(Edit, OnlyAPressOnTheRowsOrAScrollDropsTheText) {
  HeadlessContainer& form = headless.container();
  const auto buttonOf = [&](int bar) {
    HeadlessContainer& place = *form.children()[static_cast<std::size_t>(bar)];
    place.press(8, 8), place.release(8, 8);
  };
  const struct {
    std::function<void()> act;
    bool drops;
  } cases[] = {{[&] { click(5); }, true},
               {[&] { form.press(50, 2), form.release(50, 2); }, true},
               {[&] { buttonOf(0); }, true},
               {[&] { buttonOf(1); }, true},
               {[&] { form.turnWheel(-120); }, true},
               {[&] { form.turnWheel(120); }, false},
               {[&] { form.press(50, 40, 2), form.release(50, 40, 2); }, false},
               {[&] { list.UserControl_LostFocus(), list.UserControl_ExitFocus(); }, false},
               {[&] { key(27), key(down), key(34); }, false},
               {[&] { list.ListIndex(30), list.TopIndex(30), list.Redraw(); }, false},
               {[&] { list.AllowEdit(false), list.ItemEnabled(2, false); }, false},
               {[&] { drag(2), drag(3); }, false}};
  for (const auto& c : cases) {
    open(0);
    c.act();
    EXPECT_EQ(editing() == "closed", c.drops) << &c - cases;
    EXPECT_EQ(item(2).Text, "2");
  }
  fill(3);
  list.ItemAllowEdit(1, true);
  list.AllowEdit(true);
  click(1), click(1), click(8);
  EXPECT_EQ(editing().substr(0, 2), "1 ");
}

TEST_F(Edit, WhatFailsOnTheWay) {
  box().refusesFocus = true;
  list.SetEdit(3);
  EXPECT_EQ(reports(), "5 SetEdit");
  EXPECT_EQ(editing(), "3 (1, 29) 197x14");
  EXPECT_EQ(box().selectionLength, 1);
  click(1);
  for (const Variant& bad : {Variant(40), Variant(-1), Variant("x")}) list.SetEdit(bad);
  EXPECT_EQ(reports(), "9 SetEdit, 9 SetEdit, 13 SetEdit");
  EXPECT_EQ(editing(), "closed");
  silent();
  list.SetEdit(40);
  EXPECT_EQ(editing(), "closed");
  list.ItemText(3, "four");
  list.SetEdit(3);
  EXPECT_EQ(box().selectionLength, 4);
  Error().SilentError(false);

  // Without a current item there is nowhere to write: the key is the box's.
  list.ItemSelected(0, true);
  EXPECT_TRUE(box().typeCharacter(13));
  EXPECT_EQ(reports(), "9 Text1_KeyPress");
  EXPECT_NE(editing(), "closed");
  silent();
  EXPECT_FALSE(box().typeCharacter(13));
  EXPECT_EQ(editing(), "closed");
}

TEST_F(Edit, EachMeasureOfTheBoxIsAStepOfItsOwn) {
  NarrowSurface surface(200, 100);
  HeadlessContainer place(surface);
  nvList own(place);
  own.UserControl_InitProperties();
  own.ItemsAdd({.aText = "a", .aAllowEdit = true});
  own.AllowEdit(true);
  surface.isBroken = true;
  own.SetEdit(0);
  const HeadlessTextBox& ownBox = *place.textBoxes()[0];
  EXPECT_EQ(reports(), "1000 SetEdit");
  EXPECT_EQ(ownBox.place(), (Bounds{1, -10, 100, 14}));
  EXPECT_EQ(ownBox.Text(), "a");
  EXPECT_FALSE(ownBox.Visible());
  EXPECT_TRUE(own.state().EditActive.isTrue());
  silent();
  own.SetEdit(0);
  EXPECT_EQ(editing(own, ownBox), "a (1, -10) 100x14");
}

}  // namespace
}  // namespace norvane
