#include <nvlist/nvList.h>

namespace norvane {

/// The first part of every setter: stores the value and notifies the container.
template <class Value>
void nvList::assign(Trap& on, const char* name, Value ListState::*field, const Value& value) {
  state_.*field = value;
  on.step([&] { container_.PropertyChanged(name); });
}

template <class Value>
void nvList::assignOnly(const char* name, Value ListState::*field, const Value& value) {
  trapped(here, name, [&](Trap& on) { assign(on, name, field, value); });
}

template <class Value>
void nvList::assignAndRepaint(const char* name, Value ListState::*field, const Value& value) {
  trapped(here, name, [&](Trap& on) {
    assign(on, name, field, value);
    repaint(on);
  });
}

void nvList::repaint(Trap& on) {
  if (state_.AutoRedraw) on.step([&] { Redraw(); });
}

// Properties without further effects.

void nvList::Enabled(Boolean value) { assignAndRepaint("Enabled", &ListState::Enabled, value); }
void nvList::ForeColor(Colour value) {
  assignAndRepaint("ForeColor", &ListState::ForeColor, value);
}
void nvList::ClickOnIndexChange(Boolean value) {
  assignAndRepaint("ClickOnIndexChange", &ListState::ClickOnIndexChange, value);
}
void nvList::HoverSelect(Boolean value) {
  assignAndRepaint("HoverSelect", &ListState::HoverSelect, value);
}
void nvList::Style(cListStyle value) { assignAndRepaint("Style", &ListState::Style, value); }
void nvList::FullRowSelect(Boolean value) {
  assignAndRepaint("FullRowSelect", &ListState::FullRowSelect, value);
}
void nvList::ValueColor(Colour value) {
  assignAndRepaint("ValueColor", &ListState::ValueColor, value);
}
void nvList::IconSelect(Boolean value) {
  assignAndRepaint("IconSelect", &ListState::IconSelect, value);
}
void nvList::IndentTop(float value) { assignAndRepaint("IndentTop", &ListState::IndentTop, value); }
void nvList::IndentLeft(float value) {
  assignAndRepaint("IndentLeft", &ListState::IndentLeft, value);
}
void nvList::IndentRight(float value) {
  assignAndRepaint("IndentRight", &ListState::IndentRight, value);
}
void nvList::IndentBottom(float value) {
  assignAndRepaint("IndentBottom", &ListState::IndentBottom, value);
}
void nvList::DistPicText(float value) {
  assignAndRepaint("DistPicText", &ListState::DistPicText, value);
}
void nvList::IconW(float value) { assignAndRepaint("IconW", &ListState::IconW, value); }
void nvList::IconH(float value) { assignAndRepaint("IconH", &ListState::IconH, value); }
void nvList::GridLines(Boolean value) {
  assignAndRepaint("GridLines", &ListState::GridLines, value);
}
void nvList::GridLineColor(Colour value) {
  assignAndRepaint("GridLineColor", &ListState::GridLineColor, value);
}
void nvList::ScrollBars(ScrollBarConstants value) {
  assignAndRepaint("ScrollBars", &ListState::ScrollBars, value);
}

void nvList::MultiSelect(Boolean value) {
  assignOnly("MultiSelect", &ListState::MultiSelect, value);
}
void nvList::ShowFocusRect(Boolean value) {
  assignOnly("ShowFocusRect", &ListState::ShowFocusRect, value);
}
void nvList::WheelFunction(cWheelFunction value) {
  assignOnly("WheelFunction", &ListState::WheelFunction, value);
}
void nvList::WheelScrollLines(std::int32_t value) {
  assignOnly("WheelScrollLines", &ListState::WheelScrollLines, value);
}
void nvList::AllowItemMoving(Boolean value) {
  assignOnly("AllowItemMoving", &ListState::AllowItemMoving, value);
}

// Properties with further effects.

void nvList::BackColor(Colour value) {
  trapped(here, "BackColor", [&](Trap& on) {
    assign(on, "BackColor", &ListState::BackColor, value);
    // Cls also fills the area below the last row.
    on.step([&] { surface_.BackColor(value); });
    repaint(on);
  });
}

void nvList::Font(const norvane::Font& value) {
  trapped(here, "Font", [&](Trap& on) {
    on.step([&] { state_.Font = CloneFont(value); });
    on.step([&] { surface_.Font(state_.Font); });
    on.step([&] { lblWidth.Font(state_.Font); });
    state_.Items.forgetTextWidths();
    on.step([&] { container_.PropertyChanged("Font"); });
    on.step([&] { state_.ItemHeightValue = unroundedItemHeight(); });
    repaint(on);
  });
}

void nvList::MinHeight(float value) {
  trapped(here, "MinHeight", [&](Trap& on) {
    state_.MinHeight = value;
    on.step([&] { state_.ItemHeightValue = unroundedItemHeight(); });
    on.step([&] { container_.PropertyChanged("MinHeight"); });
    repaint(on);
  });
}

void nvList::ColorStyle(cColorStyle value) {
  trapped(here, "ColorStyle", [&](Trap& on) {
    state_.ColorStyle = value;
    if (value != cCustom) on.step([&] { ScrollColorStyle(static_cast<cScrollColorStyle>(value)); });
    on.step([&] { container_.PropertyChanged("ColorStyle"); });
    on.step([&] { DrawBorder(); });
  });
}

void nvList::ScrollColorStyle(cScrollColorStyle value) {
  trapped(here, "ScrollColorStyle", [&](Trap& on) {
    state_.ScrollColorStyle = value;
    on.step([&] { VScroll1.ColorStyle(value); });
    on.step([&] { HScroll1.ColorStyle(value); });
    on.step([&] { container_.PropertyChanged("ScrollColorStyle"); });
  });
}

void nvList::BorderColor(Colour value) {
  trapped(here, "BorderColor", [&](Trap& on) {
    assign(on, "BorderColor", &ListState::BorderColor, value);
    on.step([&] { DrawBorder(); });
  });
}

void nvList::BorderVisible(Boolean value) {
  trapped(here, "BorderVisible", [&](Trap& on) {
    assign(on, "BorderVisible", &ListState::BorderVisible, value);
    on.step([&] { DrawBorder(); });
  });
}

void nvList::AllowEdit(Boolean value) {
  trapped(here, "AllowEdit", [&](Trap& on) {
    assign(on, "AllowEdit", &ListState::AllowEdit, value);
    on.step([&] { Redraw(); });
  });
}

void nvList::AutoRedraw(Boolean value) {
  trapped(here, "AutoRedraw", [&](Trap& on) {
    assign(on, "AutoRedraw", &ListState::AutoRedraw, value);
    if (!value.isTrue()) return;
    on.step([&] { CheckItemWidth(); });
    on.step([&] { Redraw(); });
  });
}

void nvList::AutoCheckScroll(Boolean value) {
  trapped(here, "AutoCheckScroll", [&](Trap& on) {
    assign(on, "AutoCheckScroll", &ListState::AutoCheckScroll, value);
    if (!value.isTrue()) return;
    on.step([&] { CheckItemWidth(); });
    on.step([&] { CheckScroll(); });
  });
}

}  // namespace norvane
