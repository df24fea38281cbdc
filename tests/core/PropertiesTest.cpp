#include "../HearingList.h"

namespace norvane {
namespace {

using Properties = HearingListTest;

TEST_F(Properties, EachIsMarkedAndPaintsInItsOwnWay) {
  fill(3);
  const auto font = makeRef<FontObject>();
  const auto setAll = [&] {
    heard();
    list.Font(font), list.ForeColor(1), list.BackColor(1), list.Enabled(false);
    list.ClickOnIndexChange(true), list.ColorStyle(cXPSilver), list.ColorStyle(cCustom);
    list.BorderColor(1), list.HoverSelect(true), list.Style(cIcons), list.FullRowSelect(false);
    list.AllowEdit(true), list.ValueColor(1), list.IconSelect(false), list.BorderVisible(false);
    list.IndentTop(1), list.IndentLeft(1), list.IndentRight(1), list.IndentBottom(1);
    list.DistPicText(1), list.AutoCheckScroll(true), list.IconW(1), list.IconH(1);
    list.ScrollColorStyle(cXPScrollOlive), list.GridLines(true), list.GridLineColor(1);
    list.MultiSelect(true), list.ShowFocusRect(true), list.WheelFunction(cWheelOff);
    list.WheelScrollLines(2), list.MinHeight(14), list.ScrollBars(vbBoth);
    list.AllowItemMoving(true);
    return heard();
  };
  EXPECT_EQ(setAll(),
            "Font* ForeColor* BackColor* Enabled* ClickOnIndexChange* ScrollColorStyle ColorStyle* "
            "ColorStyle* BorderColor* HoverSelect* Style* FullRowSelect* AllowEdit* ValueColor* "
            "IconSelect* BorderVisible* IndentTop* IndentLeft* IndentRight* IndentBottom* "
            "DistPicText* AutoCheckScroll IconW* IconH* ScrollColorStyle GridLines* GridLineColor* "
            "MultiSelect ShowFocusRect WheelFunction WheelScrollLines MinHeight* ScrollBars* "
            "AllowItemMoving");
  list.AutoRedraw(false);
  EXPECT_EQ(setAll(),
            "Font ForeColor BackColor Enabled ClickOnIndexChange ScrollColorStyle ColorStyle* "
            "ColorStyle* BorderColor* HoverSelect Style FullRowSelect AllowEdit* ValueColor "
            "IconSelect BorderVisible* IndentTop IndentLeft IndentRight IndentBottom DistPicText "
            "AutoCheckScroll IconW IconH ScrollColorStyle GridLines GridLineColor MultiSelect "
            "ShowFocusRect WheelFunction WheelScrollLines MinHeight ScrollBars AllowItemMoving");
  EXPECT_EQ(reports(), "");
}

TEST_F(Properties, OnlyTrueItselfMeasuresAndFits) {
  fill(3);
  const std::int32_t measured = list.state().MaxItemWidth;
  for (const Boolean value : {Boolean(false), Boolean::ofNumber(1), Boolean(true)}) {
    list.AutoRedraw(false);
    list.AutoCheckScroll(false);
    list.Style(cDefault);
    for (int i = 0; i < 40; ++i) list.ItemsAdd("long");
    const auto width = [&] { return list.state().MaxItemWidth; };
    list.AutoCheckScroll(value);
    EXPECT_EQ(width() > measured, value.isTrue());
    EXPECT_EQ(list.verticalBar().Visible(), value.isTrue());
    list.Style(cIcons);  // another padding
    heard();
    const std::int32_t before = width();
    list.AutoRedraw(value);
    EXPECT_EQ(heard(), value.isTrue() ? "AutoRedraw*" : "AutoRedraw");
    EXPECT_EQ(width() == before, !value.isTrue());
  }
}

TEST_F(Properties, AFontIsClonedAndGivesTheRowsTheirHeight) {
  fill(2);
  const auto font = makeRef<FontObject>();
  font->Size = 12;
  headless.surface().fontMeasure({9, 10, 19});
  list.Font(font);
  font->Size = 30;
  EXPECT_EQ(list.Font()->Size, 12);
  EXPECT_EQ(list.state().ItemHeightValue, 19);
  EXPECT_NE(headless.face().find("CurrentY 22\n"), std::string::npos);
  list.MinHeight(25.5);
  list.Font(font);
  EXPECT_EQ(list.state().ItemHeightValue, 25.5F);
}

}  // namespace
}  // namespace norvane
