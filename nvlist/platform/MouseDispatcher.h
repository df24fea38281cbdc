#pragma once

#include <cstdint>

#include <nvlist/platform/Bounds.h>

namespace norvane {

class Place;

/// Delivers the mouse to the controls of a form: decides which control gets which notification.
///
/// Each outermost place has one (Place::mouse). The platform reports what the mouse does, in pixels
/// of that place; `button` is 1 for left, 2 for right, 4 for middle, and `shift` the sum of 1 for
/// Shift, 2 for Ctrl and 4 for Alt. The rules:
///
/// - A press goes to the foremost visible control under the pointer. A disabled control gets
///   nothing, and neither does what it covers.
/// - While a button is down, everything goes to the control that was pressed, disabled or not,
///   wherever the pointer is.
/// - A release of the left button over the pressed control is a click. It follows the release.
/// - The second press of a double click with the left button is offered as a double click; a
///   control that does not know double clicks gets it as a press. After a double click, the release
///   is not a click.
/// - A move goes to the control under the pointer, and before that to the one that holds the
///   capture if that is another one.
///
/// Any notification may destroy controls and their places, but not the outermost place.
class MouseDispatcher {
 public:
  explicit MouseDispatcher(Place& root) : root_(root) {}
  MouseDispatcher(const MouseDispatcher&) = delete;
  MouseDispatcher& operator=(const MouseDispatcher&) = delete;

  void press(Point at, std::int16_t button, std::int16_t shift);
  /// The second press of a double click, in place of `press`.
  void doubleClick(Point at, std::int16_t button, std::int16_t shift);
  /// `buttons` is the sum of those that are down.
  void move(Point at, std::int16_t buttons, std::int16_t shift);
  void release(Point at, std::int16_t button, std::int16_t shift);
  /// The pointer has left the form and its moves are no longer reported: the control with the
  /// capture gets one move at (-1, -1). Ignored while a button is down.
  void pointerLeft(std::int16_t shift);
  /// The releases of the buttons that are down will not be reported, for example because a modal
  /// dialog has opened. A child control gets its releases at (-1, -1), so that it stops repeating.
  /// The outermost control gets none: it would complete a pending move of an item.
  void holdLost();

  /// The foremost place at a point of the form that takes the mouse, or nullptr.
  Place* hit(Point at) const;
  /// The place of the control that was pressed, while a button is down; nullptr otherwise.
  Place* pressed() const { return pressed_; }
  /// The place with the capture, or nullptr.
  Place* captured() const { return captured_; }
  void capture(Place& place) { captured_ = &place; }
  void releaseCapture() { captured_ = nullptr; }
  /// A place that is about to end.
  void forget(const Place& place);

 private:
  struct EndOfHold;

  void notifyMove(Place* target, Point at, std::int16_t buttons, std::int16_t shift);

  Place& root_;
  Place* pressed_ = nullptr;
  Place* captured_ = nullptr;
  int buttonsDown_ = 0;
  bool isDoubleClick_ = false;
};

}  // namespace norvane
