#include "../Lists.h"

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>

namespace norvane {
namespace {

using Redraw = ListTest;

/// The texts drawn, top to bottom, each with its top edge: "a@3 b@16".
std::string rowsOf(const RecordingSurface& surface) {
  std::string result;
  for (const SurfaceCall& call : surface.image().calls)
    if (const auto* text = std::get_if<calls::DrawTextA>(&call))
      result +=
          (result.empty() ? "" : " ") + text->text + "@" + std::to_string(text->rectangle.Top);
  return result;
}

TEST_F(Redraw, PaintsARowCallByCall) {
  list.ItemsAdd("Vienna");
  EXPECT_EQ(headless.face(),
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
            "CurrentX 3\n");
}

TEST_F(Redraw, PaintsWholeRowsOnly) {
  add({"a", "b", "c"});
  headless.resize(200, 29);
  EXPECT_EQ(list.VisibleItems(), 2);
  headless.resize(200, 28);
  EXPECT_EQ(rowsOf(headless.surface()), "a@3");
  EXPECT_EQ(list.VisibleItems(), 1);
  headless.resize(200, 15);
  EXPECT_EQ(rowsOf(headless.surface()), "");
  EXPECT_EQ(list.VisibleItems(), 0);
}

TEST_F(Redraw, RowsAboveTheSurfaceArePassedOver) {
  list.AutoRedraw(false);
  for (int i = 0; i < 10'000; ++i) list.ItemsAdd(i);
  list.IndentTop(-130 * 13);
  list.Redraw();
  EXPECT_EQ(rowsOf(headless.surface()).substr(0, 30), "128@-26 129@-13 130@0 131@13 1");
  EXPECT_EQ(list.state().LoopIndex, 137);
  list.IndentTop(-1e9F);
  list.Redraw();
  EXPECT_LT(headless.surface().image().calls.size(), 50U);
  EXPECT_EQ(list.state().LoopIndex, 10'000);
}

TEST_F(Redraw, RowHeightsAreRoundedForCountingOnly) {
  add({"a", "b", "c"});
  list.MinHeight(16.5);
  EXPECT_EQ(rowsOf(headless.surface()), "a@5 b@21 c@38");
  EXPECT_EQ(list.VisibleItems(), 6);
  list.MinHeight(17.5);
  EXPECT_EQ(list.VisibleItems(), 5);
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
  reports();
  list.ItemsAdd("c");
  EXPECT_EQ(reports(), "11 ItemsAdd");
}

TEST_F(Redraw, RepairsATopIndexPastTheEnd) {
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  list.TopIndex(30);
  list.AutoRedraw(false);
  for (int i = 0; i < 38; ++i) list.ItemsRemove(0);
  list.AutoRedraw(true);
  EXPECT_EQ(list.TopIndex(), 0);
  EXPECT_EQ(rowsOf(headless.surface()), "38@3 39@16");
}

TEST_F(Redraw, RepairsATopIndexOfAListThatHasGrown) {
  headless.resize(200, 133);
  add({"0", "1"});
  list.TopIndex(0);
  list.Redraw();
  EXPECT_EQ(list.TopIndex(), -8);
  for (int i = 2; i < 40; ++i) list.ItemsAdd(i);
  list.Redraw();
  EXPECT_EQ(list.TopIndex(), 0);
  list.ListIndex(3);
  EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(Redraw, TopIndexKeepsTheLastRowInTheWindow) {
  for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
  list.TopIndex(5);
  EXPECT_EQ(rowsOf(headless.surface()).substr(0, 8), "5@3 6@16");
  list.TopIndex(1000);
  EXPECT_EQ(list.verticalBar().Value(), 33);
  list.TopIndex(-4);
  EXPECT_EQ(list.TopIndex(), 0);
  list.TopIndex(std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(reports(), "6 TopIndex");
}

TEST_F(Redraw, AShortListMayHaveANegativeTopIndexAndIsStillShown) {
  add({"a", "b"});
  list.TopIndex(0);
  EXPECT_EQ(list.TopIndex(), -5);
  EXPECT_EQ(rowsOf(headless.surface()), "a@3 b@16");
}

/// A list whose surface calls the host while a row is painted.
struct HostedList {
  struct Surface : RecordingSurface {
    using RecordingSurface::RecordingSurface;
    float TextHeight(std::string_view text) override {
      if (text != "A") onMeasure();
      return RecordingSurface::TextHeight(text);
    }
    void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                   const Rectangle& rectangle, TextFormat format) override {
      RecordingSurface::DrawTextA(hDC, text, length, rectangle, format);
      onText(text);
    }
    void ForeColor(Colour colour) override {
      RecordingSurface::ForeColor(colour);
      onColour();
    }
    std::function<void()> onMeasure = [] {};
    std::function<void()> onColour = [] {};
    std::function<void(std::string_view)> onText = [](std::string_view) {};
  } surface{200, 100};
  HeadlessContainer container{surface};
  nvList list{container};

  explicit HostedList(const std::vector<std::string>& texts) {
    list.UserControl_InitProperties();
    for (const std::string& text : texts) list.ItemsAdd(text);
  }
  int repaints() {
    const int before = surface.frames();
    list.Redraw();
    return surface.frames() - before;
  }
};

TEST_F(Redraw, AFailureLeavesTheRepaintInTheMiddle) {
  HostedList own({"a", "bad", "c"});
  own.surface.onText = [](std::string_view text) {
    if (text == "bad") throw std::runtime_error("no ink");
  };
  silent();
  own.list.Redraw();
  EXPECT_EQ(rowsOf(own.surface), "a@3 bad@16 c@29");
  EXPECT_FALSE(own.list.state().IsRedrawing);

  Error().SilentError(false);
  own.list.Redraw();
  EXPECT_EQ(reports(), "440 Redraw");
}

TEST_F(Redraw, AfterAFailedRepaintOnlyAnArrowOrTheWheelPaintsAgain) {
  HostedList own({"a", "b", "c"});
  bool isBroken = false;
  own.surface.onColour = [&] {
    if (isBroken) throw std::runtime_error("no ink");
  };
  const auto press = [&](std::int16_t key) { own.list.UserControl_KeyDown(key, 0); };
  const std::function<void()> repairs[] = {[&] { press(40); }, [&] { press(40); },
                                           [&] { press(38); },
                                           [&] { own.container.turnWheel(120); }};
  for (const auto& repair : repairs) {
    isBroken = true;
    own.list.Redraw();
    isBroken = false;
    EXPECT_EQ(own.repaints(), 0);
    const int before = own.surface.frames();
    repair();
    EXPECT_EQ(own.surface.frames(), before + 1);
  }
}

TEST_F(Redraw, ACallFromInsideARepaintIsDropped) {
  HostedList own({"a", "b"});
  own.surface.onText = [&](std::string_view) { own.list.Redraw(); };
  EXPECT_EQ(own.repaints(), 1);
  EXPECT_EQ(rowsOf(own.surface), "a@3 b@16");
}

TEST_F(Redraw, AHostThatChangesTheListInTheMiddleOfARowIsSurvived) {
  HostedList own({"a text too long to stand in the item itself", "b"});
  own.surface.onMeasure = [&] { own.list.ItemsClear(); };
  own.list.Redraw();
  // Only the blank slot is left; the position is back at the top.
  EXPECT_EQ(rowsOf(own.surface), "@0");
  EXPECT_EQ(own.list.ItemsCount(), 0);
}

TEST_F(Redraw, PropertiesReadAnewInTheMiddleOfARowEndTheRepaint) {
  for (const bool isBeforeText : {true, false}) {
    HostedList own({"a", "b"});
    const auto readAnew = [&] { own.list.UserControl_ReadProperties(propertiesOf("Font = 7")); };
    if (isBeforeText)
      own.surface.onColour = readAnew;
    else
      own.surface.onText = [&](std::string_view) { readAnew(); };
    own.list.Redraw();
    EXPECT_EQ(rowsOf(own.surface), isBeforeText ? "" : "a@3");
    EXPECT_FALSE(own.list.state().IsRedrawing);
  }
}

TEST_F(Redraw, ADesignerShowsASampleRowWithTheName) {
  list.ItemsAdd("hidden");
  headless.container().userMode = false;
  const auto preview = [&](cListStyle style) {
    list.Style(style);
    return headless.face();
  };
  const std::string name = "CurrentY 3\nPrint \"nvList1\"\n";
  const std::string box = "PaintPicture 13x13 \"check box\" at (3, 3)\n";
  EXPECT_EQ(preview(cDefault), "Cls\nCurrentX 3\n" + name);
  const std::string icon = "PaintPicture 32x32 \"sample icon\" at ";
  EXPECT_EQ(preview(cCheckBoxesIcons),
            "Cls\n" + box + icon + "(19, 1.5) as 16x16\nCurrentX 37\n" + name);
}

}  // namespace
}  // namespace norvane
