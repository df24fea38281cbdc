#include "../Lists.h"

#include <nvlist/input/Wheel.h>

namespace norvane {
namespace {

/// A form whose calls fail when told to.
struct FailingForm : HeadlessContainer {
  FailingForm() : HeadlessContainer(200, 133) {}

  void attach(UserControl* control) override {
    if (isEnding) throw Failure::invalidCall();
    HeadlessContainer::attach(control);
  }
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override {
    if (isEnding) throw Failure::invalidCall();
    HeadlessContainer::hookWheel(std::move(procedure));
  }
  Boolean UserMode() override {
    return hasAmbient ? HeadlessContainer::UserMode() : throw Failure::invalidCall();
  }
  norvane::Font AmbientFont() override {
    return hasAmbient ? HeadlessContainer::AmbientFont() : throw Failure::invalidCall();
  }

  bool isEnding = false;
  bool hasAmbient = true;
};

/// A program that cannot show its reports.
struct FailingProgram : HeadlessApplication {
  void MsgBox(std::string_view, std::int32_t, std::string_view) override {
    throw Failure::invalidCall();
  }
};

TEST(Trouble, NeitherAnEndNorATickThrows) {
  FailingProgram program;
  FailingForm form;
  struct : WheelEvents {
    void Wheel1_WheelScroll(std::int16_t&, std::int16_t&, float&, float&) override {}
  } owner;
  {
    Wheel wheel(form, owner);
    wheel.hWndCapture(1);
    nvList list(form);
    list.UserControl_InitProperties();
    for (int i = 0; i < 40; ++i) list.ItemsAdd(i);
    list.AllowItemMoving(true);
    form.press(50, 60);
    form.moveTo(50, 150, 1);
    const int top = list.TopIndex();
    // A repaint asks for the mode of the form.
    form.hasAmbient = false;
    EXPECT_NO_THROW(form.clock().advance(std::chrono::milliseconds(20)));
    EXPECT_NE(list.TopIndex(), top);
    form.hasAmbient = true;
    wheel.EnableWheel();
    form.isEnding = true;
  }
}

TEST(Trouble, AFormWithoutAmbientPropertiesIsServed) {
  HeadlessApplication program;
  FailingForm form;
  form.hasAmbient = false;
  nvList list(form);
  list.UserControl_InitProperties();
  EXPECT_TRUE(form.turnWheel(120));
  ASSERT_TRUE(list.Font());
  EXPECT_EQ(list.Font()->Name, "Tahoma");
  FailingForm empty;
  empty.ambientFont = nullptr;
  nvList other(empty);
  other.UserControl_InitProperties();
  EXPECT_TRUE(other.Font());
}

}  // namespace
}  // namespace norvane
