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
};

TEST_F(Edit, TheBoxLooksLikeItsRow) {
  list.ForeColor(0x123456);
  list.ItemText(5, "Füße");
  list.SetEdit("5");
  EXPECT_EQ(editing(box()), "Füße (1, 29) 197x14");
  EXPECT_EQ(box().font, list.Font());
  EXPECT_EQ(box().foreColor, 0x123456);
  EXPECT_TRUE(box().hasFocus);
  EXPECT_EQ(box().selectionLength, 4);
  box().refusesFocus = true;
  list.SetEdit(3);
  EXPECT_EQ(reports(), "5 SetEdit");
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
    EXPECT_EQ(editing(box()) == "closed", c.drops) << &c - cases;
    EXPECT_EQ(item(2).Text, "2");
  }
}

}  // namespace
}  // namespace norvane
