#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>

namespace norvane {

void nvList::raiseScroll() {
  sinks_.raise([](__nvList& sink) { sink.Scroll(); });
}

void nvList::Wheel1_WheelScroll(std::int16_t& Rotation, std::int16_t&, float&, float&) {
  trapped(here, "Wheel1_WheelScroll", [&](Trap& on) {
    if (ItemsCount() == 0) return;
    state_.SuppressRedraw = true;
    state_.WheelMoved = false;
    const bool isDown = Rotation < 1;
    if (state_.WheelFunction == cWheelScroll)
      isDown ? wheelScrollDown(on, Rotation) : wheelScrollUp(on);
    else if (state_.WheelFunction == cWheelListIndex)
      isDown ? wheelIndexDown(on, Rotation) : wheelIndexUp(on, Rotation);

    if (VScroll1.Visible()) {
      const auto isInRange = [&] {
        return VScroll1.Value() < checked::subtract(ItemsCount(), VisibleItems());
      };
      if (on.test(isInRange))
        state_.TopIndex = VScroll1.Value();
      else
        state_.TopIndex = VScroll1.Max();
    }
    if (state_.WheelMoved) on.step([&] { raiseScroll(); });
    state_.SuppressRedraw = false;
    state_.IsRedrawing = false;
    on.step([&] { Wheel1.hWndCapture(container_.hwnd()); });
    on.step([&] { Redraw(); });
    on.step([&] { container_.DoEvents(); });
  });
}

/// Moves the bar and then the list, because setting the value of a bar raises no event.
void nvList::scrollBarTo(Trap& on, std::int32_t value) {
  const bool isOther = VScroll1.Value() != value;
  on.step([&] { VScroll1.Value(value); });
  if (isOther) on.step([&] { VScroll1_Change(); });
}

/// A turn of less than half a notch scrolls to the end.
void nvList::wheelScrollDown(Trap& on, std::int16_t rotation) {
  const auto hasRoom = [&] {
    return rotation < 0 && VScroll1.Visible() &&
           checked::add(VScroll1.Value(), state_.WheelScrollLines) < VScroll1.Max();
  };
  if (on.test(hasRoom)) {
    std::int32_t next = VScroll1.Value();
    on.step([&] { next = checked::add(next, state_.WheelScrollLines); });
    scrollBarTo(on, next);
    state_.WheelMoved = true;
    return;
  }
  if (VScroll1.Value() != VScroll1.Max()) state_.WheelMoved = true;
  scrollBarTo(on, VScroll1.Max());
}

void nvList::wheelScrollUp(Trap& on) {
  const auto hasRoom = [&] {
    return VScroll1.Visible() && checked::subtract(VScroll1.Value(), state_.WheelScrollLines) >= 1;
  };
  if (on.test(hasRoom)) {
    std::int32_t next = VScroll1.Value();
    on.step([&] { next = checked::subtract(next, state_.WheelScrollLines); });
    scrollBarTo(on, next);
    state_.WheelMoved = true;
    return;
  }
  if (VScroll1.Value() != 0) state_.WheelMoved = true;
  scrollBarTo(on, 0);
}

void nvList::wheelIndexDown(Trap& on, std::int16_t rotation) {
  const std::int32_t last = ItemsCount() - 1;
  const auto isPastEnd = [&] {
    return rotation == 0 || checked::subtract(state_.ListIndex, std::int32_t{rotation}) >= last ||
           state_.ListIndex >= last;
  };
  if (on.test(isPastEnd)) {
    if (state_.ListIndex != last) state_.WheelMoved = true;
    on.step([&] { ListIndex(last); });
    return;
  }
  std::int32_t i = state_.ListIndex;
  for (;;) {
    on.step([&] { i = checked::add(i, 1); });
    if (i > state_.Items.upperBound()) return;
    if (on.test([&] { return static_cast<bool>(item(i).look().Enabled); })) break;
    on.step([&] { container_.DoEvents(); });
    if (i == state_.Items.upperBound()) return;
  }
  if (state_.ListIndex < state_.Items.upperBound()) wheelIndexTo(on, i);
}

void nvList::wheelIndexUp(Trap& on, std::int16_t rotation) {
  const auto isBeforeStart = [&] {
    return checked::add(state_.ListIndex, std::int32_t{rotation}) < 1 || state_.ListIndex < 1;
  };
  if (on.test(isBeforeStart)) {
    if (state_.ListIndex != 0) state_.WheelMoved = true;
    on.step([&] { ListIndex(0); });
    return;
  }
  std::int32_t i = state_.ListIndex;
  do {
    on.step([&] { i = checked::subtract(i, 1); });
    if (i < 0) break;
    if (on.test([&] { return static_cast<bool>(item(i).look().Enabled); })) {
      if (state_.ListIndex > 0) wheelIndexTo(on, i);
      break;
    }
    on.step([&] { container_.DoEvents(); });
  } while (i != 0);
  // wheelIndexDown needs no such step: there the current item scrolls into view by itself.
  if (state_.ListIndex < VScroll1.Value()) scrollBarTo(on, state_.ListIndex);
}

void nvList::wheelIndexTo(Trap& on, std::int32_t index) {
  on.step([&] { container_.DoEvents(); });
  state_.WheelMoved = true;
  on.step([&] { ListIndex(index); });
  on.step([&] { container_.DoEvents(); });
}

}  // namespace norvane
