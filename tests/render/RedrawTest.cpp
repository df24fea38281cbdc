#include "../ListScript.h"

#include <cmath>
#include <stdexcept>

namespace norvane {
namespace {

// clang-format off
const Scenario scenarios[] = {
  {"whole rows only",
   "resize 200 29; visible; resize 200 28; rows; visible; resize 200 15; rows; visible",
   "2 / <0@3> / 1 / <> / 0"},
  {"row heights are rounded for counting only",
   "fill 3; MinHeight 16.5; rows; visible; MinHeight 17.5; visible", "<0@5 1@21 2@38> / 8 / 7"},
  {"the top index keeps the last row in the window",
   "resize 200 55; fill 40; setTop 5; rows; setTop 1000; bar; setTop -4; top; setTop 2147483647;"
   "reports", "<5@3 6@16 7@29 8@42> / 36 / 0 / 6 TopIndex"},
  {"a short list may have a negative top index and is still shown",
   "resize 200 100; fill 2; setTop 0; top; rows", "-5 / <0@3 1@16>"},
  {"the top index of a list that has grown is repaired",
   "fill 2; setTop 0; redraw; top; many 38; redraw; top; setIndex 3; top", "-8 / 0 / 0"},
  {"a top index past the end is repaired",
   "fill 40; setTop 30; AutoRedraw 0; removeFirst 38; AutoRedraw 1; rows; top",
   "<38@3 39@16> / 0"},
  {"a new size is fitted and painted twice and measures nothing",
   "fill 20; add '0'; width; forget; resize 200 100; events; width; range", "22 / ** / 22 / 14"},
};
// clang-format on

using RedrawScenarios = ListScript;
TEST_P(RedrawScenarios, GiveTheirOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Render, RedrawScenarios, testing::ValuesIn(scenarios), nameOf);

using Redraw = ListTest;

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

/// A list whose surface calls the host after each text, and after each colour with "colour".
struct HostedList {
  struct Surface : RecordingSurface {
    using RecordingSurface::RecordingSurface;
    void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                   const Rectangle& rectangle, TextFormat format) override {
      RecordingSurface::DrawTextA(hDC, text, length, rectangle, format);
      onCall(text);
    }
    void ForeColor(Colour colour) override {
      RecordingSurface::ForeColor(colour);
      onCall("colour");
    }
    std::function<void(std::string_view)> onCall = [](std::string_view) {};
  } surface{200, 100};
  HeadlessContainer container{surface};
  nvList list{container};

  HostedList() {
    list.UserControl_InitProperties();
    for (const char* text : {"a", "b", "c"}) list.ItemsAdd(text);
  }
  /// The number of repaints after which a statement has ended.
  int repaintsOf(const std::function<void()>& statement) {
    const int before = surface.frames();
    statement();
    return surface.frames() - before;
  }
};

TEST_F(Redraw, AFailureLeavesTheRepaintInTheMiddle) {
  HostedList own;
  own.surface.onCall = [](std::string_view call) {
    if (call == "b") throw std::runtime_error("no ink");
  };
  silent();
  own.list.Redraw();
  EXPECT_EQ(rowsOf(own.surface), "a@3 b@16 c@29");
  EXPECT_FALSE(own.list.state().IsRedrawing);

  Error().SilentError(false);
  own.list.Redraw();
  EXPECT_EQ(reports(), "440 Redraw");
  // Only an arrow or the wheel paints again.
  const auto press = [&](std::int16_t key) { own.list.UserControl_KeyDown(key, 0); };
  const std::function<void()> repairs[] = {[&] { press(40); }, [&] { press(40); },
                                           [&] { press(38); },
                                           [&] { own.container.turnWheel(120); }};
  for (const auto& repair : repairs) {
    const auto failing = std::exchange(own.surface.onCall, [](std::string_view) {});
    EXPECT_EQ(own.repaintsOf([&] { own.list.Redraw(); }), 0);
    EXPECT_EQ(own.repaintsOf(repair), 1);
    own.surface.onCall = failing;
    own.list.Redraw();
  }
}

TEST_F(Redraw, ACallFromInsideARepaintIsDropped) {
  HostedList own;
  own.surface.onCall = [&](std::string_view) { own.list.Redraw(); };
  EXPECT_EQ(own.repaintsOf([&] { own.list.Redraw(); }), 1);
  EXPECT_EQ(rowsOf(own.surface), "a@3 b@16 c@29");
}

TEST_F(Redraw, PropertiesReadAnewInTheMiddleOfARowEndTheRepaint) {
  for (const std::string_view where : {"colour", "a"}) {
    HostedList own;
    own.surface.onCall = [&](std::string_view call) {
      if (call == where) own.list.UserControl_ReadProperties(propertiesOf("Font = 7"));
    };
    own.list.Redraw();
    EXPECT_EQ(rowsOf(own.surface), where == "a" ? "a@3" : "");
    EXPECT_FALSE(own.list.state().IsRedrawing);
  }
}

TEST_F(Redraw, ADesignerShowsASampleRowWithTheName) {
  list.ItemsAdd("hidden");
  headless.container().userMode = false;
  const std::string name = "CurrentY 3\nPrint \"nvList1\"\n";
  list.Style(cDefault);
  EXPECT_EQ(headless.face(), "Cls\nCurrentX 3\n" + name);
  list.Style(cCheckBoxesIcons);
  EXPECT_EQ(headless.face(),
            "Cls\nPaintPicture 13x13 \"check box\" at (3, 3)\n"
            "PaintPicture 32x32 \"sample icon\" at (19, 1.5) as 16x16\n"
            "CurrentX 37\n" +
                name);
}

}  // namespace
}  // namespace norvane
