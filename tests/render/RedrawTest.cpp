#include "../Lists.h"

#include <cmath>
#include <limits>

namespace norvane {
namespace {

using Redraw = ListTest;

/// The texts drawn, top to bottom, each with its top edge: "a@3 b@16".
std::string rowsOf(const HeadlessSurface& surface) {
  std::string result;
  for (const SurfaceCall& call : surface.image().calls)
    if (const auto* text = std::get_if<calls::DrawTextA>(&call))
      result +=
          (result.empty() ? "" : " ") + text->text + "@" + std::to_string(text->rectangle.Top);
  return result;
}

TEST_F(Redraw, PaintsARowCallByCall) {
  list.ItemsAdd("Vienna");
  list.ItemsAdd("two\nlines");
  EXPECT_EQ(headless.picture(),
            "Cls\n"
            "CurrentY 3\n"
            "CurrentX 3\n"
            "Line 38 (0, 3)-(200, 16) #FFFFFF\n"
            "CurrentY 3\n"
            "CurrentY 3\n"
            "CurrentX 3\n"
            "ForeColor #000000\n"
            "FontBold off\n"
            "FontItalic off\n"
            "FontUnderline off\n"
            "DrawTextA \"Vienna\" (3, 3)-(200, 100) 64\n"
            "CurrentY 16\n"
            "CurrentX 3\n"
            "CurrentX 3\n"
            "Line 38 (0, 16)-(200, 29) #FFFFFF\n"
            "CurrentY 16\n"
            "CurrentY 16\n"
            "CurrentX 3\n"
            "ForeColor #000000\n"
            "FontBold off\n"
            "FontItalic off\n"
            "FontUnderline off\n"
            "DrawTextA \"two\\x0Alines\" (3, 10)-(200, 100) 64\n"
            "CurrentY 29\n"
            "CurrentX 3\n");
}

TEST_F(Redraw, PaintsWholeRowsOnly) {
  add({"a", "b", "c"});
  headless.resize(200, 29);
  EXPECT_EQ(rowsOf(headless.surface()), "a@3 b@16");
  EXPECT_EQ(list.VisibleItems(), 2);
  headless.resize(200, 28);
  EXPECT_EQ(rowsOf(headless.surface()), "a@3");
  EXPECT_EQ(list.VisibleItems(), 1);
  headless.resize(200, 15);
  EXPECT_EQ(rowsOf(headless.surface()), "");
  EXPECT_EQ(list.VisibleItems(), 0);
  list.IndentTop(-1);
  EXPECT_EQ(rowsOf(headless.surface()), "a@-1");
}

TEST_F(Redraw, RowHeightsAreRoundedForCountingOnly) {
  add({"a", "b", "c"});
  list.MinHeight(16.5);
  EXPECT_EQ(rowsOf(headless.surface()), "a@5 b@21 c@38");
  EXPECT_EQ(list.state().ItemHeightValue, 16.5F);
  EXPECT_EQ(list.VisibleItems(), 6);
  list.MinHeight(17.5);
  EXPECT_EQ(list.VisibleItems(), 5);
  list.MinHeight(0);
  EXPECT_EQ(list.state().ItemHeightValue, 13);
}

TEST_F(Redraw, RowsWithoutHeightShowNothingAndEnd) {
  add({"a", "b"});
  for (const float height : {-5.0F, 0.25F, std::nanf(""), 1e30F}) {
    list.MinHeight(height);
    EXPECT_EQ(rowsOf(headless.surface()), "") << height;
    EXPECT_EQ(list.VisibleItems(), 0) << height;
  }
  headless.surface().fontMeasure({7, 8, 0});
  list.MinHeight(0);
  EXPECT_EQ(list.VisibleItems(), 0);
  application.boxes.clear();
  list.ItemsAdd("c");
  EXPECT_EQ(reports(), "11 ItemsAdd");
  EXPECT_EQ(list.ItemsCount(), 3);
}

TEST_F(Redraw, RepairsATopIndexPastTheEnd) {
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  list.TopIndex(30);
  list.AutoRedraw(false);
  for (int i = 0; i < 38; ++i) list.ItemsRemove(0);
  const std::int32_t barValue = list.verticalBar().Value();
  list.AutoRedraw(true);
  EXPECT_EQ(list.TopIndex(), 0);
  EXPECT_EQ(rowsOf(headless.surface()), "38@3 39@16");
  EXPECT_EQ(list.verticalBar().Value(), barValue);
  EXPECT_FALSE(list.state().TopIndexRepair);
}

TEST_F(Redraw, TopIndexKeepsTheLastRowInTheWindow) {
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  ASSERT_EQ(list.VisibleItems(), 7);
  list.TopIndex(5);
  EXPECT_EQ(rowsOf(headless.surface()).substr(0, 8), "5@3 6@16");
  EXPECT_EQ(list.verticalBar().Max(), 33);
  list.TopIndex(1000);
  EXPECT_EQ(list.TopIndex(), 33);
  EXPECT_EQ(list.verticalBar().Value(), 33);
  list.TopIndex(-4);
  EXPECT_EQ(list.TopIndex(), 0);
  list.TopIndex(std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(reports(), "6 TopIndex");
  EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(Redraw, AShortListMayHaveANegativeTopIndexAndIsStillShown) {
  add({"a", "b"});
  list.TopIndex(0);
  EXPECT_EQ(list.TopIndex(), -5);
  EXPECT_EQ(rowsOf(headless.surface()), "a@3 b@16");
  EXPECT_EQ(list.TopIndex(), -5);
}

TEST_F(Redraw, AFailureLeavesTheRepaintInTheMiddle) {
  class Broken : public HeadlessSurface {
   public:
    using HeadlessSurface::HeadlessSurface;
    void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                   const Rectangle& rectangle, TextFormat format) override {
      if (text == "bad") throw std::runtime_error("no ink");
      HeadlessSurface::DrawTextA(hDC, text, length, rectangle, format);
    }
  };
  Broken surface(200, 100);
  HeadlessContainer container(surface);
  nvList own(container);
  own.UserControl_InitProperties();
  silent();
  for (const char* text : {"a", "bad", "c"}) own.ItemsAdd(text);
  EXPECT_EQ(rowsOf(surface), "a@3 c@29");
  EXPECT_FALSE(own.state().IsRedrawing);

  Error().SilentError(false);
  own.Redraw();
  EXPECT_EQ(reports(), "440 Redraw");
  EXPECT_TRUE(own.state().IsRedrawing.isTrue());
  const int frames = surface.frames();
  own.Redraw();
  EXPECT_EQ(surface.frames(), frames);
}

TEST_F(Redraw, ACallFromInsideARepaintIsDropped) {
  class Reentrant : public HeadlessSurface {
   public:
    using HeadlessSurface::HeadlessSurface;
    void ForeColor(Colour colour) override {
      if (list) list->Redraw();
      HeadlessSurface::ForeColor(colour);
    }
    nvList* list = nullptr;
  };
  Reentrant surface(200, 100);
  HeadlessContainer container(surface);
  nvList own(container);
  own.UserControl_InitProperties();
  own.ItemsAdd("a");
  own.ItemsAdd("b");
  surface.list = &own;
  const int frames = surface.frames();
  own.AutoRedraw(false);
  own.Redraw();
  EXPECT_EQ(surface.frames(), frames + 1);
  EXPECT_EQ(rowsOf(surface), "a@3 b@16");
}

TEST_F(Redraw, AHostThatChangesTheListInTheMiddleOfARowIsSurvived) {
  class Hostile : public HeadlessSurface {
   public:
    using HeadlessSurface::HeadlessSurface;
    float TextHeight(std::string_view text) override {
      if (list && text != "A") list->ItemsClear();
      return HeadlessSurface::TextHeight(text);
    }
    nvList* list = nullptr;
  };
  Hostile surface(200, 100);
  HeadlessContainer container(surface);
  nvList own(container);
  own.UserControl_InitProperties();
  own.ItemsAdd("a text too long to stand in the item itself");
  own.ItemsAdd("b");
  surface.list = &own;
  own.Redraw();
  // What is left is the blank slot; the position is back at the top.
  EXPECT_EQ(rowsOf(surface), "@0");
  EXPECT_EQ(own.ItemsCount(), 0);
}

TEST_F(Redraw, ADesignerShowsASampleRowWithTheName) {
  list.ItemsAdd("hidden");
  headless.container().userMode = false;
  const auto preview = [&](cListStyle style) {
    list.Style(style);
    return headless.picture();
  };
  const std::string name = "CurrentY 3\nPrint \"nvList1\"\n";
  const std::string box = "PaintPicture 13x13 \"check box\" at (3, 3)\n";
  EXPECT_EQ(preview(cDefault), "Cls\nCurrentX 3\n" + name);
  EXPECT_EQ(preview(cCheckBoxes), "Cls\n" + box + "CurrentX 18\n" + name);
  const std::string icon = "PaintPicture 32x32 \"sample icon\" at ";
  EXPECT_EQ(preview(cIcons), "Cls\n" + icon + "(3, 1.5) as 16x16\nCurrentX 21\n" + name);
  EXPECT_EQ(preview(cCheckBoxesIcons),
            "Cls\n" + box + icon + "(19, 1.5) as 16x16\nCurrentX 37\n" + name);
}

}  // namespace
}  // namespace norvane
