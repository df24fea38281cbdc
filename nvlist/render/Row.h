#pragma once

#include <string>

#include <nvlist/nvList.h>
#include <nvlist/render/RepaintValues.h>

namespace norvane {

/// Paints one row: the item at LoopIndex, with its top at CurrentY. Afterwards CurrentY is the top
/// of the next row, and the surface keeps the font flags of this item: the next row is measured
/// with them.
class nvList::Row {
 public:
  Row(nvList& list, Trap& on, RepaintValues& repaint);

  /// Returns false if SuppressRedraw was set meanwhile, which ends the repaint.
  bool paint();

 private:
  // render/rows.cpp
  StoredItem& item() { return list_.item(state_.LoopIndex); }
  float width() { return surface_.ScaleWidth(); }
  float height() const { return state_.ItemHeightValue; }
  /// A copy, because a surface call may run host code that removes the item.
  const std::string& text() { return repaint_.text = item().Text(); }
  float textWidth() { return surface_.TextWidth(text()); }
  float pictureColumn() const;
  float contentLeft() const;
  bool isScrollNeeded();
  void fill(float left, float right, Colour colour);
  void toTop();
  void markMoveTarget();
  void paintCheckBox();
  void paintIcon();
  void setTextColour();
  void paintGridLines();

  // render/rowSelection.cpp
  bool paintBackground();
  Variant selectColour();
  void selectWholeRow();
  void selectText();
  float selectionLeft();
  /// The right edge of the focus rectangle: that of the row, or the width of the text.
  enum class FocusRight { ofRow, ofText };
  void setFocusRect(float left, FocusRight right);
  void fillPictureColumn();

  // render/rowText.cpp
  void alignText();
  void setFontFlags();
  void paintText();
  void paintTwoColumns(Rectangle textRect, std::size_t marker);

  nvList& list_;
  Trap& on_;
  RepaintValues& repaint_;
  Surface& surface_;
  ListState& state_;
  float top_ = 0;
  Variant selectColour_;
};

}  // namespace norvane
