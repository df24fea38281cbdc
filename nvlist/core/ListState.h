#pragma once

#include <string>

#include <nvlist/core/ItemStore.h>
#include <nvlist/core/SelectionMarks.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Font.h>
#include <nvlist/values/Rectangle.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// The state of an nvList. A field with the name of a public property holds its value; the other
/// fields are internal. Lengths are in pixels.
///
/// Loop variables are members, not locals: if a handler called during a loop enters the control
/// again, its call advances the outer loop. They hold whole numbers only, except InsertIndex, which
/// holds the index as the host passed it.
struct ListState {
  std::int32_t TopIndex = 0;  ///< item in the top row; negative if the list is too short
  norvane::Font Font;         ///< a clone owned by the list
  Colour ForeColor = 0;
  Colour BackColor = colours::white;
  Boolean Enabled = true;
  Boolean ClickOnIndexChange = false;
  std::int32_t ListIndex = 0;  ///< the current item; -1: none
  cColorStyle ColorStyle = cXPBlue;
  Colour BorderColor = 0;
  Boolean HoverSelect = false;
  cListStyle Style = cDefault;
  Boolean FullRowSelect = true;
  Boolean AllowEdit = false;
  Colour ValueColor = 0xFF0000;  ///< selection colour in cCustom
  Boolean IconSelect = true;
  Boolean BorderVisible = true;
  float IndentTop = 3;
  float IndentLeft = 3;
  float IndentRight = 3;
  float IndentBottom = 3;
  float DistPicText = 2;
  Boolean AutoCheckScroll = true;
  float IconW = 16;
  float IconH = 16;
  cScrollColorStyle ScrollColorStyle = cXPScrollBlue;
  Boolean GridLines = false;
  Colour GridLineColor = 0xC0C0C0;
  Boolean MultiSelect = false;
  std::int32_t NewIndex = 0;  ///< of the item last added by ItemsAdd
  Boolean ShowFocusRect = false;
  cWheelFunction WheelFunction = cWheelScroll;
  std::int32_t WheelScrollLines = 1;
  float MinHeight = 0;  ///< row height; 0: the height of the font
  Ref<Object> Recordset;
  Boolean AutoRedraw = true;
  ScrollBarConstants ScrollBars = vbVertical;
  Boolean AllowItemMoving = false;
  Rectangle FocusRect;      ///< of the last selected row painted
  Colour RowBackColor = 0;  ///< of the row being painted
  ItemStore Items;
  Boolean IsRedrawing = false;
  std::int32_t HoverIndex = -1;  ///< where a dragged item would be dropped; -1: nowhere
  std::int32_t LoopIndex = 0;
  std::int32_t LoopIndex2 = 0;
  Boolean TopIndexRepair = false;  ///< Redraw is correcting an invalid TopIndex
  std::int32_t SweepIndex = 0;
  Variant InsertIndex;
  Boolean HasFocus = false;
  Boolean ItemsDimensioned = false;  ///< false: the list is empty and slot 0 holds no item
  Picture PaintIcon;                 ///< check box of the row being painted
  Variant MouseDownX;
  Variant MouseDownY;
  Boolean MouseDownActive = false;
  Boolean EditActive = false;
  std::uint32_t Edits = 0;  ///< texts that the edit box has written so far
  Boolean ShiftDown = false;
  Boolean CtrlDown = false;
  std::int32_t SelectAnchor = -1;  ///< where a range selection starts; -1: not set
  Boolean VisibleItemsChecked = false;
  Boolean SuppressRedraw = false;  ///< Redraw returns at once
  Boolean ClickPending = false;    ///< the next change of ListIndex scrolls it into view
  Ref<Object> ReadBag;
  Variant ReadBagContents;
  float ItemHeightValue = 0;      ///< cached row height, not rounded
  std::int32_t MaxItemWidth = 0;  ///< widest item measured
  Boolean WheelMoved = false;
  bool ClipsTexts = false;  ///< texts stay within their rows

  SelectionMarks Selection;  ///< sets and clears the Selected marks
};

}  // namespace norvane
