#include <nvlist/nvList.h>

namespace norvane {

/// The first half of every setter: stores the value and tells the container.
template <class Value>
void nvList::assign(Trap& on, const char* name, Value ListState::*field, const Value& value) {
  state_.*field = value;
  on.step([&] { container_.PropertyChanged(name); });
}

void nvList::repaint(Trap& on) {
  if (state_.AutoRedraw) on.step([&] { Redraw(); });
}

Boolean nvList::AutoRedraw() { return state_.AutoRedraw; }

void nvList::AutoRedraw(Boolean value) {
  trapped(here, "AutoRedraw", [&](Trap& on) {
    assign(on, "AutoRedraw", &ListState::AutoRedraw, value);
    if (!value.isTrue()) return;
    on.step([&] { CheckItemWidth(); });
    on.step([&] { Redraw(); });
  });
}

Boolean nvList::AutoCheckScroll() { return state_.AutoCheckScroll; }

void nvList::AutoCheckScroll(Boolean value) {
  trapped(here, "AutoCheckScroll", [&](Trap& on) {
    assign(on, "AutoCheckScroll", &ListState::AutoCheckScroll, value);
    if (!value.isTrue()) return;
    on.step([&] { CheckItemWidth(); });
    on.step([&] { CheckScroll(); });
  });
}

norvane::Font nvList::Font() { return state_.Font; }

void nvList::Font(const norvane::Font& value) {
  trapped(here, "Font", [&](Trap& on) {
    on.step([&] { state_.Font = CloneFont(value); });
    on.step([&] { surface_.Font(state_.Font); });
    on.step([&] { container_.PropertyChanged("Font"); });
    on.step([&] { state_.ItemHeightValue = unroundedItemHeight(); });
    repaint(on);
  });
}

Colour nvList::ForeColor() { return state_.ForeColor; }

void nvList::ForeColor(Colour value) {
  trapped(here, "ForeColor", [&](Trap& on) {
    assign(on, "ForeColor", &ListState::ForeColor, value);
    repaint(on);
  });
}

Colour nvList::BackColor() { return state_.BackColor; }

void nvList::BackColor(Colour value) {
  trapped(here, "BackColor", [&](Trap& on) {
    assign(on, "BackColor", &ListState::BackColor, value);
    // The face below the last row belongs to the list too.
    on.step([&] { surface_.BackColor(value); });
    repaint(on);
  });
}

cListStyle nvList::Style() { return state_.Style; }

void nvList::Style(cListStyle value) {
  trapped(here, "Style", [&](Trap& on) {
    assign(on, "Style", &ListState::Style, value);
    repaint(on);
  });
}

float nvList::IndentTop() { return state_.IndentTop; }

void nvList::IndentTop(float value) {
  trapped(here, "IndentTop", [&](Trap& on) {
    assign(on, "IndentTop", &ListState::IndentTop, value);
    repaint(on);
  });
}

float nvList::IndentLeft() { return state_.IndentLeft; }

void nvList::IndentLeft(float value) {
  trapped(here, "IndentLeft", [&](Trap& on) {
    assign(on, "IndentLeft", &ListState::IndentLeft, value);
    repaint(on);
  });
}

float nvList::MinHeight() { return state_.MinHeight; }

void nvList::MinHeight(float value) {
  trapped(here, "MinHeight", [&](Trap& on) {
    state_.MinHeight = value;
    on.step([&] { state_.ItemHeightValue = unroundedItemHeight(); });
    on.step([&] { container_.PropertyChanged("MinHeight"); });
    repaint(on);
  });
}

Boolean nvList::MultiSelect() { return state_.MultiSelect; }

void nvList::MultiSelect(Boolean value) {
  trapped(here, "MultiSelect",
          [&](Trap& on) { assign(on, "MultiSelect", &ListState::MultiSelect, value); });
}

}  // namespace norvane
