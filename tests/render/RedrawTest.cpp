#include "../HearingList.h"

#include <cmath>
#include <stdexcept>

namespace norvane {
namespace {

using Redraw = ListTest;

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

using Rows = ListTest;

TEST_F(Rows, ASelectedRowWithPicturesCallByCall) {
  list.Style(cCheckBoxesIcons);
  list.ShowFocusRect(true);
  list.UserControl_GotFocus();
  list.ItemsAdd({.aText = "ab", .aIcon = makeRef<NamedPicture>("flag")});
  list.ItemSelected(0, true);
  EXPECT_EQ(headless.face(),
            "Cls\n"
            "CurrentY 3\n"
            "CurrentX 37\n"
            "Line 38 (37, 3)-(200, 16) #316AC5\n"
            "DrawFocusRect (21, 3)-(200, 16)\n"
            "Line 38 (0, 3)-(37, 16) #316AC5\n"
            "CurrentY 3\n"
            "CurrentY 3\n"
            "CurrentX 37\n"
            "PaintPicture 13x13 \"check box\" at (3, 3)\n"
            "PaintPicture 32x24 \"flag\" at (19, 1.5) as 16x16\n"
            "ForeColor #FFFFFF\n"
            "FontBold off\n"
            "FontItalic off\n"
            "FontUnderline off\n"
            "DrawTextA \"ab\" (37, 3)-(200, 100) 64\n"
            "CurrentY 16\n"
            "CurrentX 37\n");
  list.UserControl_LostFocus();
  EXPECT_FALSE(shows("DrawFocusRect"));
}

TEST_F(Rows, PicturesThatAreNoneAreSkipped) {
  struct Broken final : PictureObject {
    std::uintptr_t handle() const override { throw std::runtime_error("no handle"); }
    float width() const override { return 1; }
    float height() const override { return 1; }
  };
  list.Style(cIcons);
  list.ItemsAdd("a");
  list.ItemsAdd({.aText = "b",
                 .aIcon = makeRef<NamedPicture>("flag"),
                 .aIconSelected = makeRef<NamedPicture>("empty", 0U)});
  list.ItemsAdd({.aText = "c", .aIcon = makeRef<Broken>()});
  list.ItemSelected(1, true);
  const std::string face = headless.face();
  EXPECT_EQ(face.find("PaintPicture"), face.find("PaintPicture 32x24 \"flag\" at (3, 14.5)"));
  EXPECT_EQ(reports(), "");
}

using ScrollFit = HearingListTest;

TEST_F(ScrollFit, AWidthIsKeptUntilTheTextOrTheFontChanges) {
  // Measures the items.
  RecordingSurface& label = headless.container().children().at(6)->ownSurface();
  const auto widthNow = [&] {
    list.AutoCheckScroll(true);
    return list.state().MaxItemWidth;
  };
  list.AutoRedraw(false);
  add({"mmmmmmmmmm", "i", "i"});
  widthNow();
  list.AutoRedraw(true);
  label.fontMeasure({9, 9, 13});
  list.ItemText(0, "mmmmm");
  EXPECT_EQ(widthNow(), 5 * 9 + 4);
  list.ItemsAdd("mmmmmmm");
  label.fontMeasure({20.5F, 20, 13});
  EXPECT_EQ(widthNow(), 7 * 9 + 4);
  list.Font(list.Font());
  for (int i = 0; i < 2; ++i) EXPECT_EQ(widthNow(), 144 + 4);  // 143.5
}

}  // namespace
}  // namespace norvane
