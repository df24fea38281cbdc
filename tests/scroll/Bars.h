#pragma once

#include "../Lists.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>

namespace norvane {

/// What the last Cls filled a surface with.
inline Colour background(HeadlessContainer& place) {
  struct Watcher : RecordingSurface {
    Watcher() : RecordingSurface(0, 0) {}
    void BackColor(Colour value) override { colour = value; }
    Colour colour = -1;
  } watcher;
  place.ownSurface().replay(watcher);
  return watcher.colour;
}

/// A bar of 200 pixels as its list has it, which writes down what it tells. Positions are given
/// along and across the bar, so that one test serves both.
template <class Bar>
class BarTest : public ListTest, protected nvVScrollEvents, protected nvHScrollEvents {
 protected:
  static constexpr bool isVertical = std::is_same_v<Bar, nvVScroll>;

  BarTest() {
    headless.resize(200, 200);
    bar.UserControl_InitProperties();
    length(200);
    bar.Visible(true);
  }

  void VScroll1_Change() override { tell("Change"); }
  void VScroll1_Scroll() override { tell("Scroll"); }
  void HScroll1_Change() override { tell("Change"); }
  void HScroll1_Scroll() override { tell("Scroll"); }

  void tell(const std::string& event) {
    told += (told.empty() ? "" : ", ") + event + " " + std::to_string(bar.Value());
    times += (times.empty() ? "" : " ") + std::to_string((clock().now() - start).count());
    std::exchange(onEvent, [] {})();
  }

  /// The events since the last call, each with the value of its time.
  std::string heard() { return std::exchange(told, {}); }
  /// The times of the events since the last call, in milliseconds from then on.
  std::string heardAt() {
    start = clock().now();
    told.clear();
    return std::exchange(times, {});
  }

  HeadlessClock& clock() { return form.clock(); }
  void wait(int milliseconds) { clock().advance(std::chrono::milliseconds(milliseconds)); }

  void length(float pixels) { isVertical ? bar.Height(pixels) : bar.Width(pixels); }
  void range(std::int32_t min, std::int32_t max) {
    bar.Min(std::min(bar.Min(), min));
    bar.Max(max);
    bar.Min(min);
    bar.Value(min);
  }
  /// A new placement runs the bar's Show only if it was hidden.
  void showAnew() {
    bar.Visible(false);
    bar.Visible(true);
  }

  static float along(const Bounds& bounds) { return isVertical ? bounds.Top : bounds.Left; }
  static float lengthOf(const Bounds& bounds) { return isVertical ? bounds.Height : bounds.Width; }
  float thumbAt() { return along(thumb.bounds()); }
  float thumbLength() { return lengthOf(thumb.bounds()); }

  void press(float along, float across = 8, std::int16_t button = 1) {
    isVertical ? place.press(across, along, button) : place.press(along, across, button);
  }
  void moveTo(float along, float across = 8, std::int16_t buttons = 1) {
    isVertical ? place.moveTo(across, along, buttons) : place.moveTo(along, across, buttons);
  }
  void release(float along = 0, float across = 8) {
    isVertical ? place.release(across, along) : place.release(along, across);
  }
  void click(float along) {
    press(along);
    release();
  }
  /// Takes the thumb three pixels from its near end and moves it.
  void drag(float by) {
    press(thumbAt() + 3);
    moveTo(thumbAt() + 3 + by);
  }

  std::string lastCall(HeadlessContainer& of) {
    const std::string calls = "\n" + of.ownSurface().image().text();
    return calls.substr(calls.rfind('\n', calls.size() - 2) + 1);
  }
  /// Of a button: the number of the picture it shows last.
  int shown(HeadlessContainer& button) {
    const std::string call = lastCall(button);
    const std::size_t end = call.rfind("\" at (0, 0)");
    return std::stoi(call.substr(call.rfind(' ', end - 1), end));
  }

  /// The colour of a surface that shows nothing but its background.
  static Colour flatColour(HeadlessContainer& place) {
    EXPECT_EQ(place.ownSurface().image().text(), "Cls\n");
    return background(place);
  }

  HeadlessContainer& form = headless.container();
  Bar bar{form.addChild(), *this};
  HeadlessContainer& place = *form.children().back();
  HeadlessContainer& thumb = *place.children()[0];
  HeadlessContainer& nearButton = *place.children()[1];
  HeadlessContainer& farButton = *place.children()[2];

  /// Runs with the next event only.
  std::function<void()> onEvent = [] {};
  std::string told;
  std::string times;
  HeadlessClock::Time start;
};

using BothBars = testing::Types<nvVScroll, nvHScroll>;

}  // namespace norvane
