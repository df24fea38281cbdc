#include "../HearingList.h"

namespace norvane {
namespace {

class Edit : public HearingListTest {
 protected:
  Edit() { open(); }

  /// A list of forty editable items, with the box open on the third one.
  void open() {
    fill(40);
    list.AllowEdit(true);
    for (int i = 0; i < 40; ++i) list.ItemAllowEdit(i, true);
    click(2), click(2);
    heard();
  }

  /// "closed", or the text and bounds of the box.
  std::string editing() { return editing(box()); }
  static std::string editing(const HeadlessTextBox& in) {
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
  doubleClick(4);
  EXPECT_EQ(editing(), "4 (1, 55) 197x14");
  list.ForeColor(0x123456);
  list.ItemText(5, "Füße");
  list.SetEdit("5");
  EXPECT_EQ(editing(), "Füße (1, 55) 197x14");
  EXPECT_EQ(box().font, list.Font());
  EXPECT_EQ(box().foreColor, 0x123456);
  EXPECT_TRUE(box().hasFocus);
  EXPECT_EQ(box().selectionLength, 4);
}

TEST_F(Edit, TheListTheItemAndItsStateHaveToAllowIt) {
  for (const int gates : {3, 5, 6, 7}) {
    click(5), click(6);
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
    return editing(*other.container().textBoxes()[0]);
  };
  EXPECT_EQ(place(cCheckBoxesIcons), "a (37, -10) 161x14");
  EXPECT_EQ(place(cDefault), "a (1, -10) 197x14");
  other.container().press(50, 0);
  EXPECT_EQ(place(cCheckBoxes), "a (18, 3) 180x14");
  other.container().release(50, 50);
  other.list().IconW(20);
  other.list().IndentLeft(5);
  // Rows are higher than their text; the box follows the text.
  other.list().MinHeight(20);
  EXPECT_EQ(place(cIcons), "a (27, 29) 171x14");
}

TEST_F(Edit, ReturnWritesTheTextIntoTheCurrentItem) {
  box().typeText("a text far too wide for the list");
  for (const auto other : std::initializer_list<std::int16_t>{27, 10, 97, 9})
    EXPECT_TRUE(box().typeCharacter(other));
  const std::int32_t width = list.state().MaxItemWidth;
  EXPECT_FALSE(box().typeCharacter(13));
  EXPECT_EQ(outcome(), "* | 2: a text far too wide for the list");
  EXPECT_EQ(editing(), "closed");
  EXPECT_EQ(list.state().MaxItemWidth, width);
  EXPECT_TRUE(box().typeCharacter(13));
  list.SetEdit(4);
  list.ListIndex(1);
  box().typeText("");
  box().typeCharacter(13);
  EXPECT_EQ(item(1).Text, "");
}

TEST_F(Edit, OnlyAPressOnTheRowsOrAScrollDropsTheText) {
  HeadlessContainer& form = headless.container();
  HeadlessContainer& bar = *form.children()[0];
  const struct {
    std::function<void()> act;
    bool drops;
  } cases[] = {{[&] { click(5); }, true},
               {[&] { form.press(50, 2), form.release(50, 2); }, true},
               {[&] { bar.press(8, 8), bar.release(8, 8); }, true},
               {[&] { form.turnWheel(-120); }, true},
               {[&] { form.turnWheel(120); }, false},
               {[&] { form.press(50, 40, 2), form.release(50, 40, 2); }, false},
               {[&] { list.UserControl_LostFocus(), list.UserControl_ExitFocus(); }, false},
               {[&] { key(27), key(down), key(34); }, false},
               {[&] { list.ListIndex(30), list.TopIndex(30), list.Redraw(); }, false},
               {[&] { drag(2), drag(3); }, false}};
  for (const auto& c : cases) {
    open();
    c.act();
    EXPECT_EQ(editing() == "closed", c.drops) << &c - cases;
    EXPECT_EQ(item(2).Text, "2");
  }
}

TEST_F(Edit, WhatFailsOnTheWay) {
  box().refusesFocus = true;
  list.SetEdit(3);
  EXPECT_EQ(reports(), "5 SetEdit");
  click(1);
  for (const Variant& bad : {Variant(40), Variant(-1), Variant("x")}) list.SetEdit(bad);
  EXPECT_EQ(reports(), "9 SetEdit, 9 SetEdit, 13 SetEdit");
  EXPECT_EQ(editing(), "closed");
  silent();
  list.SetEdit(3);
  Error().SilentError(false);
  // Without a current item there is nothing to write: the box keeps the key.
  list.ItemSelected(0, true);
  EXPECT_TRUE(box().typeCharacter(13));
  EXPECT_EQ(reports(), "9 Text1_KeyPress");
  silent();
  EXPECT_FALSE(box().typeCharacter(13));
  EXPECT_EQ(editing(), "closed");
}

}  // namespace
}  // namespace norvane
