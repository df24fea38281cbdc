#include <algorithm>

#include <nvlist/render/Row.h>
#include <nvlist/render/art.h>

namespace norvane {
namespace {

constexpr float gapBetweenPictures = 3;

float checkBoxWidth() { return art::checkBox(true, true)->width(); }

/// An empty reference and a picture object that holds no picture both have no handle.
bool isShown(const Picture& picture) { return picture && picture->handle() != 0; }

}  // namespace

void nvList::paintRow(Trap& on, RepaintValues& repaint) {
  if (Row(*this, on, repaint).paint()) ++state_.LoopIndex;
}

nvList::Row::Row(nvList& list, Trap& on, RepaintValues& repaint)
    : list_(list), on_(on), repaint_(repaint), surface_(list.surface_), state_(list.state_) {}

bool nvList::Row::paint() {
  on_.step([&] { surface_.CurrentX(contentLeft()); });
  if (!paintBackground()) return false;
  markMoveTarget();
  on_.step([&] { surface_.CurrentX(contentLeft()); });
  if (state_.SuppressRedraw) return false;
  if (hasCheckBox(state_.Style)) paintCheckBox();
  if (hasIcon(state_.Style)) paintIcon();
  setTextColour();
  if (state_.SuppressRedraw) return false;

  float contentX = 0;
  on_.step([&] { contentX = surface_.CurrentX(); });
  alignText();
  paintText();
  on_.step([&] { surface_.CurrentY(surface_.CurrentY() + height()); });
  on_.step([&] { surface_.CurrentX(contentX); });
  if (state_.GridLines.isTrue()) paintGridLines();
  return true;
}

/// Where the column of check box and icon ends.
float nvList::Row::pictureColumn() const {
  const auto left = static_cast<float>(repaint_.ItemLeft);
  switch (state_.Style) {
    case cCheckBoxes:
      return checkBoxWidth() + left + state_.DistPicText;
    case cIcons:
      return state_.IconW + left + state_.DistPicText;
    case cCheckBoxesIcons:
      return checkBoxWidth() + left + gapBetweenPictures + state_.IconW + state_.DistPicText;
    default:
      return 0;
  }
}

float nvList::Row::contentLeft() const {
  return state_.Style == cDefault ? static_cast<float>(repaint_.ItemLeft) : pictureColumn();
}

/// Asked anew for each row, and not of the bar: a list whose bar is switched off counts too.
bool nvList::Row::isScrollNeeded() { return list_.VisibleItems() < list_.ItemsCount(); }

/// Fills a part of the row, over its whole height.
void nvList::Row::fill(float left, float right, Colour colour) {
  surface_.Line(LineMode::filledBox, left, top_, right, top_ + height(), colour);
}

void nvList::Row::toTop() {
  on_.step([&] { surface_.CurrentY(top_); });
}

/// A black bar where an item that is being moved would land.
void nvList::Row::markMoveTarget() {
  on_.step([&] { top_ = surface_.CurrentY(); });
  if (state_.AllowItemMoving && state_.LoopIndex == state_.HoverIndex)
    on_.step([&] { surface_.Line(LineMode::outlineBox, 0, top_, width(), top_ + 1, 0); });
  toTop();
}

void nvList::Row::paintCheckBox() {
  on_.step([&] {
    const bool isChecked = static_cast<bool>(list_.ItemChecked(state_.LoopIndex));
    const bool isEnabled = static_cast<bool>(list_.ItemEnabled(state_.LoopIndex));
    state_.PaintIcon = art::checkBox(isChecked, isEnabled);
  });
  on_.step([&] {
    const float y = (height() - art::checkBox(false, true)->height()) / 2 + surface_.CurrentY();
    surface_.PaintPicture(state_.PaintIcon, static_cast<float>(repaint_.ItemLeft), y);
  });
}

void nvList::Row::paintIcon() {
  on_.ignoring([&] {
    // Copies: asking a picture for its handle may let the host in.
    const bool isSelected = item().Selected && item().Enabled;
    const Picture chosen = item().IconSelected;
    const Picture icon = isSelected && isShown(chosen) ? chosen : item().Icon;
    if (!isShown(icon)) return;
    float x = static_cast<float>(repaint_.ItemLeft);
    if (hasCheckBox(state_.Style)) x += checkBoxWidth() + gapBetweenPictures;
    surface_.PaintPicture(icon, x, (height() - state_.IconH) / 2 + surface_.CurrentY(),
                          state_.IconW, state_.IconH);
  });
}

void nvList::Row::setTextColour() {
  const auto own = [](const Variant& colour, Colour otherwise) {
    return isDefaultMark(colour) ? otherwise : colour.toInt32();
  };
  on_.step([&] {
    const ListItem& current = item();
    if (!current.Enabled)
      surface_.ForeColor(current.ForeColorDis);
    else if (current.Selected)
      surface_.ForeColor(own(current.ForeColorSelect, colours::white));
    else
      surface_.ForeColor(own(current.ForeColor, state_.ForeColor));
  });
}

/// The lines above and below the row, which is done: CurrentY is at the top of the next one.
void nvList::Row::paintGridLines() {
  on_.step([&] { top_ = surface_.CurrentY(); });
  const auto line = [&](float y) {
    surface_.Line(LineMode::plainLine, 0, y, width(), y, state_.GridLineColor);
  };
  // The first row shown has none.
  if (state_.LoopIndex > std::max(state_.TopIndex, 0)) on_.step([&] { line(top_ - height()); });
  // Where the line above was drawn, CurrentY is at this row's own top; so the line below is there
  // for one row more.
  const auto isLineBelow = [&] {
    return surface_.ScaleHeight() - height() > surface_.CurrentY() &&
           state_.LoopIndex < state_.Items.upperBound();
  };
  if (on_.test(isLineBelow)) on_.step([&] { line(top_); });
  toTop();
}

}  // namespace norvane
