#include <nvlist/render/Row.h>
#include <nvlist/values/numbers.h>

namespace norvane {

using checked::nearest;

/// Returns false if SuppressRedraw was set meanwhile.
bool nvList::Row::paintBackground() {
  if (on_.test([&] { return !item().look().Enabled; })) {
    on_.step([&] { top_ = surface_.CurrentY(); });
    on_.step([&] { fill(0, width(), item().look().BackColorDis); });
    toTop();
    return true;
  }

  on_.step([&] { selectColour_ = selectColour(); });
  on_.step([&] {
    const Variant& own = item().look().BackColor;
    if (!isDefaultMark(own))
      state_.RowBackColor = own.toInt32();
    else if (item().Selected())
      state_.RowBackColor = selectColour_.toInt32();
    else
      state_.RowBackColor = state_.BackColor;
  });
  on_.step([&] { top_ = surface_.CurrentY(); });
  if (on_.test([&] { return !item().Selected(); })) {
    on_.step([&] { fill(0, width(), state_.RowBackColor); });
    toTop();
    return true;
  }

  on_.step([&] { selectColour_ = selectColour(); });
  if (state_.FullRowSelect)
    selectWholeRow();
  else
    selectText();
  if (state_.ShowFocusRect && state_.HasFocus)
    on_.step([&] { surface_.DrawFocusRect(surface_.hDC(), state_.FocusRect); });
  if (state_.SuppressRedraw) return false;
  // Both branches end with a filled box, which leaves CurrentY at the bottom of the row.
  on_.step([&] { top_ = surface_.CurrentY() - height(); });
  fillPictureColumn();
  toTop();
  return true;
}

Variant nvList::Row::selectColour() {
  const Variant& own = item().look().BackColorSelect;
  return isDefaultMark(own) ? Variant(list_.aktValueColor()) : own;
}

void nvList::Row::setFocusRect(float left, FocusRight right) {
  Rectangle& rect = state_.FocusRect;
  on_.step([&] { rect.Left = nearest<std::int32_t>(left); });
  on_.step([&] { rect.Top = nearest<std::int32_t>(top_); });
  on_.step([&] {
    rect.Right = nearest<std::int32_t>(right == FocusRight::ofRow ? width() : textWidth());
  });
  on_.step([&] { rect.Bottom = nearest<std::int32_t>(top_ + height()); });
}

void nvList::Row::selectWholeRow() {
  const float left = pictureColumn();
  on_.step([&] { fill(left, width(), selectColour_.toInt32()); });
  // With check box and icon, the selection includes the check box but the focus rectangle does not.
  const float focusLeft =
      state_.Style == cCheckBoxesIcons
          ? state_.IconW + static_cast<float>(repaint_.ItemLeft) + state_.DistPicText
          : left;
  setFocusRect(focusLeft, FocusRight::ofRow);
}

/// Selects only the text. The boxes ignore horizontal scrolling, and the space that pictures take
/// from a centred text.
void nvList::Row::selectText() {
  float left = 0;
  on_.step([&] { left = selectionLeft(); });
  const bool isLeft = on_.test(
      [&] { return item().look().Alignment != cCenter && item().look().Alignment != cRight; });
  if (isLeft)
    on_.step([&] { fill(left + textWidth(), width(), state_.RowBackColor); });
  else
    on_.step([&] { fill(0, width(), state_.RowBackColor); });
  toTop();
  on_.step([&] {
    const float right = left + textWidth() + (isLeft ? 1.0F : 0.0F);
    fill(left, right, selectColour_.toInt32());
  });
  // Starts at the left edge, whatever the alignment.
  setFocusRect(0, FocusRight::ofText);
}

float nvList::Row::selectionLeft() {
  const cItemAlignment alignment = item().look().Alignment;
  if (alignment != cCenter && alignment != cRight) return pictureColumn();
  const float right = width() - (isScrollNeeded() ? list_.VScroll1.Width() : 0);
  return alignment == cCenter ? (right - textWidth()) / 2 : right - textWidth() - 3;
}

void nvList::Row::fillPictureColumn() {
  if (state_.Style == cDefault) return;
  on_.step([&] {
    fill(0, pictureColumn(), state_.IconSelect ? selectColour_.toInt32() : state_.RowBackColor);
  });
}

}  // namespace norvane
