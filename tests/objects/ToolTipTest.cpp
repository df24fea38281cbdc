#include <nvlist/objects/QI.h>
#include <nvlist/objects/nvToolTip.h>
#include <nvlist/platform/HostWindow.h>
#include <nvlist/values/numbers.h>

#include "../Lists.h"

namespace norvane {
namespace {

/// A form, or a control in a container.
struct Window final : HostWindow {
  explicit Window(std::int32_t itsHandle, std::optional<Ref<HostWindow>> itsContainer = {})
      : handle(itsHandle), container(std::move(itsContainer)) {}
  bool isForm() const override { return !container; }
  std::int32_t hwnd() override { return handle; }
  Ref<HostWindow> Container() override { return container ? *container : HostWindow::Container(); }

  std::int32_t handle;
  std::optional<Ref<HostWindow>> container;
};

class ToolTipTest : public ListTest {
 protected:
  Variant control(std::int32_t handle) { return Variant(makeRef<Window>(handle, owner)); }
  /// The tip window created last.
  std::shared_ptr<TipStore> window() { return application.tipWindows.back().lock(); }

  Ref<Window> owner = makeRef<Window>(7);
  Variant form = Variant(owner);
  Variant one = control(1);
  Variant two = control(2);
  nvToolTip tips;
};

TEST_F(ToolTipTest, MakesOneWindowForAForm) {
  EXPECT_FALSE(tips.Create(one));
  EXPECT_FALSE(tips.Create(Variant(makeRef<Object>())));
  application.hasTipWindows = false;
  EXPECT_FALSE(tips.Create(form));
  // Without a window everything is ignored.
  EXPECT_FALSE(tips.AddTool("no control", "text"));
  tips.ToolText("no control", "text");
  tips.BackColor(1);
  EXPECT_EQ(tips.BackColor() + tips.DelayTime(2) + tips.Margin(0) + tips.ToolCount(), 0);

  application.hasTipWindows = true;
  EXPECT_TRUE(tips.Create(form).isTrue());
  EXPECT_EQ(tips.hwnd(), window()->handle());
  EXPECT_TRUE(tips.Create(Variant(makeRef<Window>(8))));
  EXPECT_EQ(application.tipWindows.size(), 1U);
  nvToolTip().Create(form);
  EXPECT_EQ(application.tipWindows.size(), 2U);
  EXPECT_FALSE(window());
  EXPECT_EQ(reports(), "");
}

TEST_F(ToolTipTest, AddsAToolOnceAndReadsItsTextBackWhole) {
  tips.Create(form);
  EXPECT_TRUE(tips.AddTool(one, "first").isTrue());
  EXPECT_FALSE(tips.AddTool(one, "again"));
  EXPECT_TRUE(tips.AddTool(two, ""));
  const TipTool& tool = window()->tools()[0];
  EXPECT_EQ(textOf(tool.owner) + " " + textOf(tool.id), "7 1");
  EXPECT_EQ(tool.flags, TipTool::isWindow | TipTool::receivesMouse);
  tips.ToolText(one, std::string(1000, 'x') + "ü");
  tips.ToolText(two, std::string("cut\0off", 7));
  tips.ToolText(control(3), "nobody's");
  EXPECT_EQ(tips.ToolText(one), std::string(1000, 'x') + "ü");
  EXPECT_EQ(tips.ToolText(two), "cut");
  EXPECT_EQ(tips.ToolText(control(3)), "");

  EXPECT_TRUE(tips.RemoveTool(one).isTrue());
  EXPECT_FALSE(tips.RemoveTool(one));
  // The number of tools has 16 bits.
  for (int id = 100; id < 100 + 32766; ++id) window()->addTool({.owner = 7, .id = id});
  EXPECT_EQ(window()->tools()[0].id, 2);
  EXPECT_EQ(tips.ToolCount(), 32767);
  EXPECT_TRUE(tips.AddTool(one, "one too many"));
  EXPECT_EQ(tips.ToolCount(), 0);
  EXPECT_EQ(reports(), "6 ToolCount");
}

TEST_F(ToolTipTest, PassesOnTimesColoursWidthAndMargins) {
  tips.Create(form);
  const std::tuple<int, int, const char*> delays[] = {
      {2, -1, "500 100 5000 500 "},      {2, 70000, "500 100 70000 500 "},
      {1 + 4, 30, "500 30 70000 500 "},  {-1, 40, "40 30 70000 40 "},
      {4, 1000, "1000 200 10000 1000 "}, {1, -1, "1000 100 10000 1000 "},
      {2, -1, "1000 100 5000 1000 "},    {3, -1, "500 100 5000 500 "}};
  for (const auto& [changed, time, expected] : delays) {
    tips.DelayTime(changed, time);
    std::string times;
    for (const int kind : {0, 1, 2, 3}) times += textOf(tips.DelayTime(kind)) + " ";
    EXPECT_EQ(times, expected);
  }

  tips.ForeColor(0x445566);
  EXPECT_EQ(window()->textColour(), 0x445566);
  EXPECT_EQ(tips.ForeColor() + window()->textColour(), 0) << "reading sets it to black";
  tips.BackColor(0x778899);
  EXPECT_EQ(tips.BackColor(), 0x778899);
  for (const auto& [value, width] : {std::pair(32767, 32767), {1, 1}, {0, -1}, {-32768, -1}}) {
    tips.MaxTipWidth(static_cast<std::int16_t>(value));
    EXPECT_EQ(window()->maxTipWidth(), width);
    EXPECT_EQ(tips.MaxTipWidth(), width);
  }
  for (const int side : {-1, 0, 1, 2, 3, 4}) tips.Margin(side, 10 + side);
  EXPECT_EQ(window()->margin(), (Rectangle{10, 11, 12, 13}));
  EXPECT_EQ(tips.Margin(2), 12);
  EXPECT_EQ(tips.Margin(4), 0);
}

TEST_F(ToolTipTest, ControlsWithoutAWindowTakeNoTips) {
  tips.Create(form);
  EXPECT_FALSE(tips.AddTool(Variant(makeRef<HostWindow>()), "text"));
  EXPECT_FALSE(tips.AddTool(form, "a form is in no container"));
  EXPECT_FALSE(tips.RemoveTool("no control"));
  tips.ToolText(Variant(makeRef<Object>()), "text");
  EXPECT_FALSE(tips.AddTool(Variant(makeRef<Window>(1, nullptr)), "text"));
  EXPECT_EQ(reports(), "438 AddTool, 438 AddTool, 424 RemoveTool, 438 ToolText, 91 AddTool");
}

TEST_F(ToolTipTest, QuickTipsTakeOneCall) {
  QI quick;
  quick.Create(one, one, "no form", 3000, 200);
  quick.Remove(one);
  EXPECT_EQ(reports(), "");
  quick.Create(form, one, "first", 3000, 200);
  const auto state = [&] {
    std::string result;
    for (const TipTool& tool : window()->tools()) result += textOf(tool.id) + tool.text + " ";
    return result + textOf(window()->delay(TipDelay::autopop)) + " " +
           textOf(window()->maxTipWidth());
  };
  EXPECT_EQ(state(), "1first 3000 200");
  quick.Create(form, two, "second", 4000, 0);
  EXPECT_EQ(state(), "1first 2second 4000 -1");
  quick.Create(form, one, "another", 5000, 100);
  EXPECT_EQ(state(), "1another 2second 5000 100");
  // A failing step does not stop the others.
  quick.Create(form, "no control", "text", 3000, 200);
  EXPECT_EQ(reports(), "424 AddTool, 424 ToolText");
  quick.Remove(one);
  EXPECT_EQ(state(), "2second 3000 200");
  EXPECT_EQ(application.tipWindows.size(), 1U);
}

}  // namespace
}  // namespace norvane
