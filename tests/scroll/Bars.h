#pragma once

#include "../Lists.h"

#include <functional>
#include <memory>
#include <sstream>
#include <utility>

#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace scroll {

inline std::ostream& operator<<(std::ostream& out, Axis axis) {
  return out << (axis == Axis::vertical ? "Vertical" : "Horizontal");
}

}  // namespace scroll

/// The colour with which the last Cls filled a surface.
inline Colour background(HeadlessContainer& place) {
  struct Watcher : RecordingSurface {
    Watcher() : RecordingSurface(0, 0) {}
    void BackColor(Colour value) override { colour = value; }
    Colour colour = -1;
  } watcher;
  place.ownSurface().replay(watcher);
  return watcher.colour;
}

/// A bar of 200 pixels on a form, driven by scripts. Positions are along and across the bar, so
/// that one script serves both bars.
class BarTest : public ListTest, public nvVScrollEvents, public nvHScrollEvents {
 protected:
  explicit BarTest(scroll::Axis along) : axis(along) {
    headless.resize(200, 200);
    bar.UserControl_InitProperties();
    scroll::length(axis, bar, 200);
    bar.Visible(true);
  }

  template <class Value>
  Value either(Value vertical, Value horizontal) const {
    return axis == scroll::Axis::vertical ? vertical : horizontal;
  }

  /// Runs the commands of a script, separated by semicolons, and returns their outputs.
  std::string run(const std::string& script) {
    std::istringstream commands(script);
    std::string outputs;
    for (std::string command; std::getline(commands, command, ';');) {
      std::istringstream words(command);
      std::string verb;
      double a = 0, b = 8, c = 1;
      words >> verb >> a >> b >> c;
      const std::string output = perform(verb, a, b, c);
      if (!output.empty()) outputs += (outputs.empty() ? "" : " | ") + output;
    }
    return outputs;
  }

 private:
  /// The name of the last picture of a surface.
  static std::string picture(HeadlessContainer& place) {
    const std::string calls = place.ownSurface().image().text();
    const std::size_t name = calls.rfind(" \"") + 2;
    return calls.substr(name, calls.find('"', name) - name);
  }
  static std::string calls(HeadlessContainer& place, int first) {
    std::string result;
    forEachLine(place.ownSurface().image().text(), [&](std::string_view line) {
      if (first-- <= 0 && !line.empty()) result.append(result.empty() ? "" : ", ").append(line);
      return true;
    });
    return "<" + result + ">";
  }
  /// The mouse takes a position along, a position across and buttons, all else one number, which
  /// for `draw` and its kind is the first call to output. Events are output with the value, and
  /// times in milliseconds since their last output.
  std::string perform(const std::string& verb, double a, double b, double c) {
    const auto x = static_cast<float>(either(b, a));
    const auto y = static_cast<float>(either(a, b));
    const auto button = static_cast<std::int16_t>(c);
    const auto whole = static_cast<std::int32_t>(a);
    const bool on = whole != 0;
    std::ostringstream output;
    // clang-format off
    if (verb == "press" || verb == "click") place.press(x, y, button);
    if (verb == "release" || verb == "click") place.release(x, y, button);
    else if (verb == "move") place.moveTo(x, y, button);
    else if (verb == "hover") place.moveTo(x, y, 0);
    else if (verb == "wait") form.clock().advance(std::chrono::milliseconds(whole));
    else if (verb == "min") bar.Min(whole);
    else if (verb == "max") bar.Max(whole);
    else if (verb == "value") bar.Value(whole);
    else if (verb == "small") bar.SmallChange(whole);
    else if (verb == "large") bar.LargeChange(whole);
    else if (verb == "active") bar.ActiveScrolling(on);
    else if (verb == "gradient") bar.Gradient(on);
    else if (verb == "enable") bar.Enabled(on);
    else if (verb == "style") bar.ColorStyle(static_cast<cScrollColorStyle>(whole));
    else if (verb == "length") scroll::length(axis, bar, static_cast<float>(a));
    else if (verb == "breadth") scroll::breadth(axis, bar, static_cast<float>(a));
    else if (verb == "show") bar.Visible(false), bar.Visible(true);
    else if (verb == "paint") bar.UserControl_Paint();
    else if (verb == "failing") onEvent = [] { throw Failure::overflow(); };
    else if (verb == "slow") onEvent = [this] { run("wait 2000"); };
    else if (verb == "events") output << '<' << std::exchange(events, {}) << '>';
    else if (verb == "times") output << '<' << times << '>', times = {}, start = form.clock().now();
    else if (verb == "reports") output << '<' << reports() << '>';
    else if (verb == "thumb") output << scroll::along(axis, thumb.bounds().Left, thumb.bounds().Top)
        << '+' << scroll::along(axis, thumb.bounds().Width, thumb.bounds().Height);
    else if (verb == "visible") output << (thumb.isShown() ? "shown" : "hidden");
    else if (verb == "size") output << bar.Width() << "x" << bar.Height();
    else if (verb == "range") output << bar.Min() << ".." << bar.Max();
    else if (verb == "direction") output << bar.state().PageDirection;
    else if (verb == "near") output << picture(nearButton).substr(7);
    else if (verb == "far") output << picture(farButton).substr(7);
    else if (verb == "body") output << picture(thumb).substr(picture(thumb).find("thumb"));
    else if (verb == "draw") output << calls(place, whole);
    else if (verb == "drawThumb") output << calls(thumb, whole);
    else if (verb == "drawNear") output << calls(nearButton, whole);
    else if (verb == "drawFar") output << calls(farButton, whole);
    else if (verb == "forget") place.ownSurface().forget();
    else if (verb == "colours") output << background(place) << ' ' << background(thumb) << ' '
        << background(nearButton);
    else if (verb == "frames") output << thumb.ownSurface().frames();
    else if (verb == "capture") output << thumb.hasCapture() << farButton.hasCapture();
    else if (verb != "press") ADD_FAILURE() << "no verb " << verb;
    // clang-format on
    return output.str();
  }

  void VScroll1_Change() override { record("Change"); }
  void VScroll1_Scroll() override { record("Scroll"); }
  void HScroll1_Change() override { record("Change"); }
  void HScroll1_Scroll() override { record("Scroll"); }
  void record(const std::string& event) {
    events += (events.empty() ? "" : ", ") + event + " " + std::to_string(bar.Value());
    times += (times.empty() ? "" : " ") + std::to_string((form.clock().now() - start).count());
    std::exchange(onEvent, [] {})();
  }

  std::unique_ptr<scroll::Bar> make() {
    if (axis == scroll::Axis::vertical) return std::make_unique<nvVScroll>(form.addChild(), *this);
    return std::make_unique<nvHScroll>(form.addChild(), *this);
  }

 protected:
  const scroll::Axis axis;
  HeadlessContainer& form = headless.container();
  const std::unique_ptr<scroll::Bar> owned = make();
  scroll::Bar& bar = *owned;
  HeadlessContainer& place = *form.children().back();
  HeadlessContainer& thumb = *place.children()[0];
  HeadlessContainer& nearButton = *place.children()[1];
  HeadlessContainer& farButton = *place.children()[2];

  /// Runs with the next event only.
  std::function<void()> onEvent = [] {};
  std::string events;
  std::string times;
  HeadlessClock::Time start;
};

/// Runs each test with both bars.
class Bars : public BarTest, public testing::WithParamInterface<scroll::Axis> {
 protected:
  Bars() : BarTest(GetParam()) {}
};

}  // namespace norvane
