#include <nvlist/platform/MouseDispatcher.h>

#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/headless/HeadlessContainer.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

/// A form of 100 by 100 with the control `r`. In it, back to front: `a` of 40 by 40 at (10, 10)
/// with the child `c` of 10 by 10 at its (5, 5), and `b` of 40 by 40 at (30, 30).
class Form {
 public:
  Form() {
    r.emplace(*this, "r", place);
    a.emplace(*this, "a", place.addChild()).Move({10, 10, 40, 40});
    c.emplace(*this, "c", a->place().addChild()).Move({5, 5, 10, 10});
    b.emplace(*this, "b", place.addChild()).Move({30, 30, 40, 40});
  }

  /// Runs commands, separated by semicolons, and returns what the controls received. `press`,
  /// `double`, `move` and `release` take a position, followed by the button unless it is the left
  /// one.
  std::string run(const std::string& script) {
    std::istringstream commands(script);
    for (std::string command; std::getline(commands, command, ';');) runOne(command);
    return std::exchange(heard, {});
  }

 private:
  struct Control : UserControl {
    Control(Form& itsForm, const char* itsName, auto&& place)
        : UserControl(std::forward<decltype(place)>(place)), form(itsForm), name(itsName) {}
    using UserControl::listenToMouse;

    HeadlessContainer& place() { return static_cast<HeadlessContainer&>(container_); }
    void hear(const char* event, const std::string& details = "") {
      Form& all = form;
      const std::string what = name + event;
      all.heard += (all.heard.empty() ? "" : " ") + what + details;
      // This may be `a`: none of its members is used from here on.
      if (what == all.endsIn) all.c.reset(), all.a.reset();
      if (what == all.throwsIn) throw 1;
    }
    static std::string at(int button, float x, float y) {
      return " " + textOf(button) + "@" + textOf(x) + "," + textOf(y);
    }
    void UserControl_MouseDown(std::int16_t button, std::int16_t, float x, float y) override {
      hear(".down", at(button, x, y));
    }
    void UserControl_MouseMove(std::int16_t buttons, std::int16_t, float x, float y) override {
      hear(".move", at(buttons, x, y));
    }
    void UserControl_MouseUp(std::int16_t button, std::int16_t, float x, float y) override {
      hear(".up", at(button, x, y));
    }
    void UserControl_Click() override { hear(".click"); }
    bool UserControl_DblClick() override {
      if (name != "a") hear(".dbl");
      return name != "a";
    }

    Form& form;
    const std::string name;
  };

  void runOne(const std::string& command) {
    std::istringstream words(command);
    std::string verb, name;
    words >> verb;
    MouseDispatcher& mouse = place.mouse();
    const auto named = [&]() -> Control& {
      words >> name;
      return name == "a" ? *a : name == "b" ? *b : *r;
    };
    if (verb == "leave") return mouse.pointerLeft(0);
    if (verb == "lost") return mouse.holdLost();
    if (verb == "endIn") return void(words >> endsIn);
    if (verb == "throwIn") return void(words >> throwsIn);
    if (verb == "captured") return void(heard += mouse.captured() ? " some" : " none");
    if (verb == "capture") return mouse.capture(named().place());
    if (verb == "hide") return named().Visible(false);
    if (verb == "disable") return named().listenToMouse(false);
    float x = 0, y = 0;
    std::int16_t button = 1;
    words >> x >> y >> button;
    try {
      if (verb == "press") mouse.press({x, y}, button, 0);
      if (verb == "double") mouse.doubleClick({x, y}, button, 0);
      if (verb == "release") mouse.release({x, y}, button, 0);
      if (verb == "move") mouse.move({x, y}, 0, 0);
    } catch (int) {
    }
  }

  HeadlessContainer place{100, 100};
  std::optional<Control> r, a, b, c;
  std::string heard, endsIn, throwsIn;
};

TEST(MouseDispatcher, DeliversByItsRules) {
  const struct {
    const char* name;
    const char* script;
    const char* expected;
  } cases[] = {
      {"the foremost control gets its own coordinates",
       "press 5 5;release 5 5;press 12 12;release 12 12;press 40 40;release 40 40;press 17 18;"
       "release 17 18",
       "r.down 1@5,5 r.up 1@5,5 r.click a.down 1@2,2 a.up 1@2,2 a.click "
       "b.down 1@10,10 b.up 1@10,10 b.click c.down 1@2,3 c.up 1@2,3 c.click"},
      {"right and bottom edges do not belong", "move 30 70;move 70 30;move 69 69;move 100 5",
       "r.move 0@30,70 r.move 0@70,30 b.move 0@39,39"},
      {"nothing outside of the form", "press -1 5;move -1 5;release -1 5", ""},
      {"a hidden control does not cover", "hide b;press 40 40", "a.down 1@30,30"},
      {"a disabled control covers", "disable a;press 12 12;move 16 16;press 40 40",
       "b.down 1@10,10"},
      {"a hold keeps everything, disabled or hidden",
       "press 12 12;disable a;move 90 90;hide a;press 90 90 2;release 90 90 2;release 91 91;"
       "move 91 91",
       "a.down 1@2,2 a.move 0@80,80 a.down 2@80,80 a.up 2@80,80 a.up 1@81,81 r.move 0@91,91"},
      {"a click ends over the same control", "press 12 12;release 17 17;press 12 12;release 11 11",
       "a.down 1@2,2 a.up 1@7,7 a.down 1@2,2 a.up 1@1,1 a.click"},
      {"only the left button clicks", "press 5 5 2;release 5 5 2;press 5 5 4;release 5 5 4",
       "r.down 2@5,5 r.up 2@5,5 r.down 4@5,5 r.up 4@5,5"},
      {"a double click has no press and no click", "double 40 40;move 5 5;release 40 40",
       "b.dbl b.move 0@-25,-25 b.up 1@10,10"},
      {"the next press clicks again", "double 40 40;release 40 40;press 40 40;release 40 40",
       "b.dbl b.up 1@10,10 b.down 1@10,10 b.up 1@10,10 b.click"},
      {"where it is unknown, and for other buttons, it is a press",
       "double 12 12;release 12 12;double 40 40 2;release 40 40 2",
       "a.down 1@2,2 a.up 1@2,2 a.click b.down 2@10,10 b.up 2@10,10"},
      {"a release without a press", "release 12 12;disable a;press 12 12;release 12 12", ""},
      {"the capture comes first, and once", "capture b;move 12 12;move 40 40;move -9 5",
       "b.move 0@-18,-18 a.move 0@2,2 b.move 0@10,10 b.move 0@-39,-25"},
      {"a hold silences the capture", "capture b;press 12 12;move 40 40;leave",
       "a.down 1@2,2 a.move 0@30,30"},
      {"the pointer leaves the capture", "leave;capture b;leave", "b.move 0@-1,-1"},
      {"a lost hold releases a child", "press 12 12;press 5 5 4;lost;release 5 5;move 5 5",
       "a.down 1@2,2 a.down 4@-5,-5 a.up 1@-1,-1 a.up 4@-1,-1 r.move 0@5,5"},
      {"and the outermost control silently", "press 5 5;lost;release 5 5;move 12 12",
       "r.down 1@5,5 a.move 0@2,2"},
      {"ended in the press", "endIn a.down;press 12 12;move 12 12;release 12 12;press 5 5",
       "a.down 1@2,2 r.move 0@12,12 r.down 1@5,5"},
      {"ended in the release", "endIn a.up;press 12 12;release 12 12;press 5 5",
       "a.down 1@2,2 a.up 1@2,2 r.down 1@5,5"},
      {"ended by the capture's move", "capture b;endIn b.move;move 12 12",
       "b.move 0@-18,-18 r.move 0@12,12"},
      {"ended with the capture", "capture a;captured;endIn r.down;press 5 5;captured",
       " some r.down 1@5,5 none"},
      {"a release that fails ends the hold", "throwIn b.up;press 40 40;release 40 40;move 5 5",
       "b.down 1@10,10 b.up 1@10,10 r.move 0@5,5"},
  };
  for (const auto& test : cases) EXPECT_EQ(Form().run(test.script), test.expected) << test.name;
}

}  // namespace
}  // namespace norvane
