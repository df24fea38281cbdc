#include <algorithm>

#include <nvlist/render/Row.h>
#include <nvlist/render/art.h>

namespace norvane {
namespace {

constexpr float gapBetweenPictures = 3;

float checkBoxWidth() { return art::checkBox(true, true)->width(); }

/// An empty reference and a picture object without a picture both count as no picture.
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

/// The right end of the column of check box and icon.
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

/// Computed for each row from the items, not from the bar, so that it is also true if ScrollBars
/// disables the bar.
bool nvList::Row::isScrollNeeded() { return list_.VisibleItems() < list_.ItemsCount(); }

/// Fills part of the row over its full height.
void nvList::Row::fill(float left, float right, Colour colour) {
  surface_.Line(LineMode::filledBox, left, top_, right, top_ + height(), colour);
}

void nvList::Row::toTop() {
  on_.step([&] { surface_.CurrentY(top_); });
}

/// Draws a black bar where an item being dragged would be dropped.
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
    // Copies, because Picture::handle may run host code.
    const bool isSelected = item().Selected() && item().look().Enabled;
    const Picture chosen = item().look().IconSelected;
    const Picture icon = isSelected && isShown(chosen) ? chosen : item().look().Icon;
    if (!isShown(icon)) return;
    auto x = static_cast<float>(repaint_.ItemLeft);
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
    const ItemLook& look = item().look();
    if (!look.Enabled)
      surface_.ForeColor(look.ForeColorDis);
    else if (item().Selected())
      surface_.ForeColor(own(look.ForeColorSelect, colours::white));
    else
      surface_.ForeColor(own(look.ForeColor, state_.ForeColor));
  });
}

/// Draws the lines above and below the row. The row is finished: CurrentY is at the top of the next
/// one.
void nvList::Row::paintGridLines() {
  on_.step([&] { top_ = surface_.CurrentY(); });
  const auto line = [&](float y) {
    surface_.Line(LineMode::plainLine, 0, y, width(), y, state_.GridLineColor);
  };
  // The first visible row has no line above.
  if (state_.LoopIndex > std::max(state_.TopIndex, 0)) on_.step([&] { line(top_ - height()); });
  // The line above leaves CurrentY at the top of this row, so that the line below is then drawn for
  // one row more.
  const auto isLineBelow = [&] {
    return surface_.ScaleHeight() - height() > surface_.CurrentY() &&
           state_.LoopIndex < state_.Items.upperBound();
  };
  if (on_.test(isLineBelow)) on_.step([&] { line(top_); });
  toTop();
}

}  // namespace norvane
