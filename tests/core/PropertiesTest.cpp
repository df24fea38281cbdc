#include "../HearingList.h"

namespace norvane {
namespace {

using Properties = HearingListTest;

TEST_F(Properties, EachIsMarkedAndPaintsInItsOwnWay) {
  fill(3);
  const auto font = makeRef<FontObject>();
  const struct {
    const char* names;
    std::function<void()> set;
    /// Repaints with AutoRedraw on and off.
    int on, off;
  } cases[] = {{"Font", [&] { list.Font(font); }, 1, 0},
               {"ForeColor", [&] { list.ForeColor(1); }, 1, 0},
               {"BackColor", [&] { list.BackColor(1); }, 1, 0},
               {"Enabled", [&] { list.Enabled(false); }, 1, 0},
               {"ClickOnIndexChange", [&] { list.ClickOnIndexChange(true); }, 1, 0},
               {"ScrollColorStyle ColorStyle", [&] { list.ColorStyle(cXPSilver); }, 1, 1},
               {"ColorStyle", [&] { list.ColorStyle(cCustom); }, 1, 1},
               {"BorderColor", [&] { list.BorderColor(1); }, 1, 1},
               {"HoverSelect", [&] { list.HoverSelect(true); }, 1, 0},
               {"Style", [&] { list.Style(cIcons); }, 1, 0},
               {"FullRowSelect", [&] { list.FullRowSelect(false); }, 1, 0},
               {"AllowEdit", [&] { list.AllowEdit(true); }, 1, 1},
               {"ValueColor", [&] { list.ValueColor(1); }, 1, 0},
               {"IconSelect", [&] { list.IconSelect(false); }, 1, 0},
               {"BorderVisible", [&] { list.BorderVisible(false); }, 1, 1},
               {"IndentTop", [&] { list.IndentTop(1); }, 1, 0},
               {"IndentLeft", [&] { list.IndentLeft(1); }, 1, 0},
               {"IndentRight", [&] { list.IndentRight(1); }, 1, 0},
               {"IndentBottom", [&] { list.IndentBottom(1); }, 1, 0},
               {"DistPicText", [&] { list.DistPicText(1); }, 1, 0},
               {"AutoCheckScroll", [&] { list.AutoCheckScroll(true); }, 0, 0},
               {"IconW", [&] { list.IconW(1); }, 1, 0},
               {"IconH", [&] { list.IconH(1); }, 1, 0},
               {"ScrollColorStyle", [&] { list.ScrollColorStyle(cXPScrollOlive); }, 0, 0},
               {"GridLines", [&] { list.GridLines(true); }, 1, 0},
               {"GridLineColor", [&] { list.GridLineColor(1); }, 1, 0},
               {"MultiSelect", [&] { list.MultiSelect(true); }, 0, 0},
               {"ShowFocusRect", [&] { list.ShowFocusRect(true); }, 0, 0},
               {"WheelFunction", [&] { list.WheelFunction(cWheelOff); }, 0, 0},
               {"WheelScrollLines", [&] { list.WheelScrollLines(2); }, 0, 0},
               {"MinHeight", [&] { list.MinHeight(14); }, 1, 0},
               {"ScrollBars", [&] { list.ScrollBars(vbBoth); }, 1, 0},
               {"AllowItemMoving", [&] { list.AllowItemMoving(true); }, 0, 0}};
  for (const bool autoRedraw : {true, false}) {
    list.AutoRedraw(autoRedraw);
    for (const auto& c : cases) {
      heard();
      c.set();
      const int repaints = autoRedraw ? c.on : c.off;
      EXPECT_EQ(heard(), c.names + std::string(static_cast<std::size_t>(repaints), '*'));
    }
  }
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
    heard();
    list.AutoCheckScroll(value);
    EXPECT_EQ(heard(), "AutoCheckScroll");
    EXPECT_EQ(width() > measured, value.isTrue());
    EXPECT_EQ(list.verticalBar().Visible(), value.isTrue());
    EXPECT_EQ(list.AutoCheckScroll(), value);
    list.Style(cIcons);  // another padding
    heard();
    const std::int32_t before = width();
    list.AutoRedraw(value);
    EXPECT_EQ(heard(), value.isTrue() ? "AutoRedraw*" : "AutoRedraw");
    EXPECT_EQ(width() == before, !value.isTrue());
    EXPECT_EQ(list.AutoRedraw(), value);
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
  EXPECT_NE(headless.picture().find("CurrentY 22\n"), std::string::npos);
  list.MinHeight(25.5);
  EXPECT_EQ(list.state().ItemHeightValue, 25.5F);
  list.Font(font);
  EXPECT_EQ(list.state().ItemHeightValue, 25.5F);
}

}  // namespace
}  // namespace norvane
