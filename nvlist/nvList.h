#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <nvlist/core/ListState.h>
#include <nvlist/core/NewItem.h>
#include <nvlist/input/Wheel.h>
#include <nvlist/input/events.h>
#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/render/BorderPiece.h>
#include <nvlist/render/MeasuringLabel.h>
#include <nvlist/render/colours.h>
#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>
#include <nvlist/values/PropertyBag.h>

namespace norvane {

class FileWriter;
class PropertyImage;
struct StoredProperty;

/// A visual list: items in rows that the control paints itself.
///
/// The control is created in a Container, which supplies its surface; a platform makes both
/// together (platform/headless/HeadlessList.h, platform/qt/NvListWidget.h). The container must
/// outlive the control. A control is used from one thread only.
///
/// Operations do not throw. A failure is reported, or ignored under SilentError (objects/Error.h);
/// each operation documents its result in that case. The exceptions are a failure of the reporter
/// itself and a failure in setting Text, which reach the caller.
///
/// An index is a number, a Boolean, Empty (0) or a text that reads as a number. It is rounded to
/// the nearest whole number.
///
/// This header is the map of the library: each group below names the file that defines it.
class nvList final : public UserControl,
                     private nvVScrollEvents,
                     private nvHScrollEvents,
                     private WheelEvents {
 public:
  /// Creates the control and its child controls in `place`, which must outlive it. It is ready
  /// after UserControl_InitProperties or UserControl_ReadProperties.
  explicit nvList(Container& place);
  ~nvList() override;

  // ---- start, end and property store: core/lifecycle.cpp, core/persistence.cpp ----

  /// Sets all properties to their defaults and paints the control. The platform calls either this
  /// or UserControl_ReadProperties once, before anything else.
  void UserControl_InitProperties() override;
  /// Sets every property to its stored value, or to its default. The list is empty afterwards,
  /// because items are not stored. A stored value that its property cannot take is a failure: the
  /// remaining properties are not read, and the list does not paint until properties are read
  /// again. Under SilentError the remaining properties are read.
  void UserControl_ReadProperties(const PropertyBag& PropBag) override;
  /// Writes every property that differs from its default. core/storedProperties.h lists them.
  void UserControl_WriteProperties(PropertyBag& PropBag) override;

  void UserControl_Terminate() override;

  // ---- input: input/mouse.cpp, hover.cpp, keyboard.cpp, focus.cpp, wheelScroll.cpp ----

  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Click() override;
  bool UserControl_DblClick() override;
  void UserControl_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override;
  void UserControl_KeyPress(std::int16_t& KeyAscii) override;
  void UserControl_KeyUp(std::int16_t KeyCode, std::int16_t Shift) override;
  // Changes of the focus and of the display name repaint regardless of AutoRedraw.
  void UserControl_EnterFocus() override;
  void UserControl_GotFocus() override;
  void UserControl_LostFocus() override;
  void UserControl_ExitFocus() override;
  void UserControl_AmbientChanged(std::string_view PropertyName) override;
  /// Handles a turn of the wheel as WheelFunction says. `Rotation` is in notches.
  void Wheel1_WheelScroll(std::int16_t& Rotation, std::int16_t& Keys, float& X, float& Y) override;

  /// The handle of the control's window, or 0 if the platform has no handles.
  std::int32_t hwnd();
  /// Shows a box with the name and the version of the control.
  void About();

  // ---- editing: input/edit.cpp ----

  /// Opens the edit box with the text of an item if AllowEdit is on, the item allows editing, and
  /// the item is enabled. The box appears over the row of the last mouse press, whatever the index
  /// is, or above the first row if there was no press. Return writes the text to the item that is
  /// current at that time; a mouse press or a scroll discards it. A bad index is a failure, and no
  /// box is opened.
  void SetEdit(const Variant& Index);

  // ---- for helpers that add keys and gestures: input/gestures.cpp ----
  //
  // They do what a user does with the mouse, so that programs can offer it by other means
  // (platform/qt/NvListKeys.h). The list itself calls none of them.

  /// Flips the check mark of the current item as a click on its box does: ItemCheck comes first and
  /// may refuse it. Does nothing if there is no current item or it is disabled.
  void userChecks();
  /// Selects the enabled items from `anchor` to `end`, both included, and no others, and makes
  /// `current` the current item; -1 for none. Indexes beyond the list mean its first or last item.
  /// Later presses with Shift select from `anchor`. Raises no event and does not scroll. Does
  /// nothing if the list is empty.
  void userSelects(std::int32_t anchor, std::int32_t end, std::int32_t current);
  /// Scrolls sideways as dragging the thumb of the horizontal bar does: `left` is the new value of
  /// the bar, limited to its range. Does nothing if the bar is not visible.
  void userScrollsTo(std::int32_t left);
  /// Flips the selection mark of an item and makes it the current one, as a press with Ctrl does
  /// under MultiSelect. Does nothing if the item is disabled or the index outside the list.
  void userToggles(std::int32_t index);
  /// Closes the edit box, if it is open, without writing its text.
  void closeEdit();
  /// Whether releasing the mouse moves the current item only if a drag has marked a target row.
  /// Otherwise a mere click moves it to the top under AllowItemMoving. Default: false.
  bool movesOnlyToMark() const { return movesOnlyToMark_; }
  void movesOnlyToMark(bool value) { movesOnlyToMark_ = value; }

  // ---- items: core/items.cpp ----

  /// Adds one item. `aIndex` is where to insert it; a negative value, or one not less than the
  /// number of items, appends it. The first item of an empty list is stored at 0 whatever `aIndex`
  /// is. A text that does not read as a number is a failure, which leaves a blank item at the end;
  /// under SilentError the item itself is appended. With a fractional index, items from the next
  /// whole index up are shifted, but the new item is stored at the rounded index: 0.5 overwrites
  /// item 0 and duplicates item 1.
  ///
  /// With AutoRedraw on, the selection is cleared and ListIndex becomes -1. With AutoRedraw off,
  /// both are kept, and after an insertion may refer to other items. The list is repainted only
  /// while it has few enough items for the new one to be visible.
  void ItemsAdd(Variant aText, Variant aIndex = -1, Picture aIcon = nullptr,
                Picture aIconSelected = nullptr, Boolean aChecked = false,
                Variant aForeColor = defaultMark, Variant aBackColor = defaultMark,
                Boolean aAllowEdit = false, cItemAlignment aAlignment = cLeft,
                Variant aForeColorSelected = defaultMark, Variant aBackColorSelected = defaultMark,
                Boolean aEnabled = true, Variant aTag = "",
                Variant aForeColorDis = colours::greyText, Variant aBackColorDis = colours::light3D,
                Boolean aBold = false, Boolean aItalic = false, Boolean aUnderline = false,
                Variant aKey = "") {
    ItemsAdd(NewItem{std::move(aText), std::move(aIndex), std::move(aIcon),
                     std::move(aIconSelected), aChecked, std::move(aForeColor),
                     std::move(aBackColor), aAllowEdit, aAlignment, std::move(aForeColorSelected),
                     std::move(aBackColorSelected), aEnabled, std::move(aTag),
                     std::move(aForeColorDis), std::move(aBackColorDis), aBold, aItalic, aUnderline,
                     std::move(aKey)});
  }
  /// The same with named arguments.
  void ItemsAdd(NewItem values);
  /// Appends an item with exactly these fields, for readers of files. Nothing else changes, not
  /// even NewIndex: the item is neither measured nor painted. Call AutoCheckScroll and AutoRedraw
  /// with true after the last one.
  void ItemsAppend(const ListItem& added);

  /// Removes one item and sets `Index` to the rounded 32-bit index. A bad index is ignored without
  /// a report; the bounds are checked before rounding. ListIndex, TopIndex, NewIndex and the anchor
  /// of a range selection are kept, and may afterwards refer to another item or to none.
  void ItemsRemove(Variant& Index);
  void ItemsRemove(Variant&& Index) { ItemsRemove(Index); }

  /// Removes all items. ListIndex becomes 0.
  void ItemsClear();

  /// Removes every selected item and scrolls to the top.
  void ItemsSelectedRemove();

  /// Number of items.
  std::int32_t ItemsCount() const;
  /// Number of selected or checked items. Waiting events are processed after each item, so handlers
  /// may run during the call.
  std::int32_t ItemsSelectCount();
  std::int32_t ItemsCheckCount();

  /// The index of the item last added by ItemsAdd. Removing items does not change it.
  std::int32_t NewIndex() const { return state_.NewIndex; }

  // ---- duplicates: core/duplicates.cpp ----

  /// Removes items whose text repeats an earlier one. Upper and lower case are distinguished only
  /// if `IgnoreLetterSize` is false. The texts kept so far are joined with a comma after each; a
  /// text counts as repeated if it, followed by a comma, occurs in them at the end of any part. So
  /// "bc" is removed after "abc", and "b,c" after the items "b" and "c".
  ///
  /// A duplicate at an index above 32767 is a failure, which ends the operation and leaves
  /// AutoRedraw and AutoCheckScroll off; under SilentError such items are kept.
  void ItemsRemoveDouble(Boolean IgnoreLetterSize = true);

  // ---- searching: core/search.cpp ----

  /// The index of the first item with the key, or -1. Texts are compared byte by byte. If `sKey` is
  /// a number, it is compared with the numeric value of each key; a key that does not read as a
  /// number is a failure and the result is -1 (under SilentError that item counts as found).
  std::int32_t IndexByKey(const Variant& sKey);

  /// The index of the first item whose text matches the pattern, or -1. In a pattern ? matches one
  /// character, * any sequence, # one digit, [abc] or [a-c] one character of a set, and [!abc] one
  /// character not in it. The pattern must match the whole text. Both comparisons are prepared: a
  /// pattern that is malformed in either is a failure, and the result is -1. Under SilentError only
  /// the requested comparison counts; a malformed pattern then matches nothing.
  std::int32_t IsInList(std::string_view sText, cFindCompare oCompare = cFindBinary);

  // ---- ordering: core/ordering.cpp ----
  //
  // Items are moved with all their values, including the selection mark. ListIndex, TopIndex,
  // NewIndex and the anchor of a range selection keep their numbers, except that MoveItemUp and
  // MoveItemDown change ListIndex. No event is raised.

  /// Sorts the items by text, byte by byte: upper-case letters come before lower-case ones, and
  /// "10" before "9". Any mode other than cAscending and cDescending keeps the order. The order of
  /// equal texts is not preserved, but is the same every time (core/partitionSort.h). Repaints
  /// regardless of AutoRedraw. Does nothing on an empty list.
  void Sort(cSortMode SortMode);

  /// Moves an item `lCount` positions towards 0, or to 0 if that is nearer, and subtracts the
  /// distance moved from ListIndex, whichever item is current. A bad `lItem` is ignored without a
  /// report. An `lCount` that is not a number is a failure, and nothing moves (under SilentError
  /// the item moves as far as it can).
  ///
  /// With a negative `lCount` no items are shifted: the item is also stored at the target position
  /// and overwrites the item there. A target outside the list is a failure and nothing moves (under
  /// SilentError ListIndex still changes). With fractions, each position involved is rounded
  /// separately.
  void MoveItemUp(const Variant& lItem, const Variant& lCount);
  /// The same in the other direction: towards the last item, and the distance is added to
  /// ListIndex. If both arguments are texts, they are concatenated to form the target index: "1"
  /// and "2" mean item 12.
  void MoveItemDown(const Variant& lItem, const Variant& lCount);

  // ---- events: input/events.h ----

  /// Registers a receiver of events. It must live until it is removed, or as long as the list.
  void addSink(__nvList& sink) { sinks_.add(sink); }
  void removeSink(__nvList& sink) { sinks_.remove(sink); }
  /// For a platform that destroys its part of the list during an event: no sink receives further
  /// events.
  void removeAllSinks() { sinks_.removeAll(); }

  // ---- the current item and the selection: core/selection.cpp ----

  /// Index of the current item: 0 on a new list and after ItemsClear, -1 after an item was added
  /// with AutoRedraw on. It may refer to no item.
  ///
  /// Setting it selects only that item and scrolls it into view. An index outside the list
  /// (including -1) or of a disabled item raises ErrorWrongIndex and changes nothing. On an empty
  /// list nothing happens.
  std::int32_t ListIndex() const { return state_.ListIndex; }
  void ListIndex(std::int32_t value);
  /// Whether an item is selected. Setting it does not change the marks of other items, but sets
  /// ListIndex to the number of `value`: -1 for true, 0 for false. If an item outside the visible
  /// rows is selected, it is scrolled to the top row. A bad index is a failure: reading returns
  /// false, setting changes nothing (under SilentError everything but the mark changes).
  Boolean ItemSelected(const Variant& Index);
  void ItemSelected(const Variant& Index, Boolean value);

  // For platforms, whose widgets offer more than the published operations:

  /// Clears the selection and repaints if AutoRedraw is on. ListIndex is kept.
  void clearSelection();
  /// The indexes of the selected items, in order. Without a selection, and usually with one
  /// selected item, takes constant time; otherwise visits every item. Empty after a failure.
  std::vector<std::int32_t> selectedIndexes();

  // ---- properties of items: core/itemProperties.cpp ----
  //
  // `Index` is rounded to the nearest whole number; keys are not looked up. An index that is not a
  // number or is outside the list is a failure: reading returns the zero value of the type, setting
  // changes nothing (under SilentError the container is still notified and the list repainted).
  // Slot 0 of an empty list can be read and written. Setters repaint if AutoRedraw is on, except
  // those of ItemTag and ItemKey.

  /// The check mark. Setting it raises no event.
  Boolean ItemChecked(const Variant& Index);
  void ItemChecked(const Variant& Index, Boolean value);
  /// Colours while the item is selected; "def" means that the item has no colour of its own.
  Variant ItemForeColorSelect(const Variant& Index);
  void ItemForeColorSelect(const Variant& Index, const Variant& value);
  Variant ItemBackColorSelect(const Variant& Index);
  void ItemBackColorSelect(const Variant& Index, const Variant& value);
  /// A value that the host may use freely.
  Variant ItemTag(const Variant& Index);
  void ItemTag(const Variant& Index, const Variant& value);
  /// The icon, shared by reference. Empty: no icon.
  Picture ItemIcon(const Variant& Index);
  void ItemIcon(const Variant& Index, const Picture& value);
  /// The icon while the item is selected. Empty: ItemIcon is used.
  Picture ItemIconSelected(const Variant& Index);
  void ItemIconSelected(const Variant& Index, const Picture& value);
  /// The horizontal alignment of the text. An unknown value is treated as cLeft.
  cItemAlignment ItemAlignment(const Variant& Index);
  void ItemAlignment(const Variant& Index, cItemAlignment value);
  /// Whether the user may edit the text. The list's AllowEdit must be on as well.
  Boolean ItemAllowEdit(const Variant& Index);
  void ItemAllowEdit(const Variant& Index, Boolean value);
  /// The text. `&` underlines the next character, and `&&` shows one &. The part after "|right="
  /// (in any case) is shown as a second column at the right. A wider text does not change the
  /// horizontal scroll range immediately.
  std::string ItemText(const Variant& Index);
  void ItemText(const Variant& Index, const std::string& value);
  /// Whether the item can become the current one.
  Boolean ItemEnabled(const Variant& Index);
  void ItemEnabled(const Variant& Index, Boolean value);
  /// Font flags. A row is measured with the flags of the row painted before it, so a bold text that
  /// is not left-aligned may be slightly off its position.
  Boolean ItemBold(const Variant& Index);
  void ItemBold(const Variant& Index, Boolean value);
  Boolean ItemItalic(const Variant& Index);
  void ItemItalic(const Variant& Index, Boolean value);
  Boolean ItemUnderline(const Variant& Index);
  void ItemUnderline(const Variant& Index, Boolean value);
  /// The key; converted to a text when set.
  Variant ItemKey(const Variant& Index);
  void ItemKey(const Variant& Index, const Variant& value);
  /// The colours of the item itself. Reading one that is still "def" is a failure and returns 0. A
  /// colour cannot be set back to "def".
  Colour ItemForeColor(const Variant& Index);
  void ItemForeColor(const Variant& Index, Colour value);
  Colour ItemBackColor(const Variant& Index);
  void ItemBackColor(const Variant& Index, Colour value);
  /// Colours while the item is disabled, as 32-bit numbers. Setting a value that is not a number is
  /// a failure, and the old colour is kept.
  Variant ItemForeColorDis(const Variant& Index);
  void ItemForeColorDis(const Variant& Index, const Variant& value);
  Variant ItemBackColorDis(const Variant& Index);
  void ItemBackColorDis(const Variant& Index, const Variant& value);

  /// The text of the current item, or an empty text if no item is current. Setting it does not
  /// change any item: it makes the first item with exactly that text the current one, or does
  /// nothing if there is no such item. A failure in the setter is thrown to the caller.
  std::string Text();
  void Text(std::string_view value);

  // ---- position: core/position.cpp ----

  /// Index of the item in the top row. A value is limited so that the list ends at the last visible
  /// row; on a list shorter than the window the result is negative, and is kept.
  std::int32_t TopIndex() const { return state_.TopIndex; }
  void TopIndex(std::int32_t value);

  // ---- properties: core/properties.cpp ----
  //
  // Every value is accepted. Each setter notifies the container of the change (PropertyChanged)
  // and, unless noted otherwise, repaints if AutoRedraw is on. A Boolean reads back the number it
  // was set to. Lengths are in pixels.

  /// Whether changes are painted, and added items measured, immediately. Default: true. Turning it
  /// on measures and repaints.
  Boolean AutoRedraw() const { return state_.AutoRedraw; }
  void AutoRedraw(Boolean value);
  /// Whether the scroll bars are adjusted immediately after each change of the items. Default:
  /// true. Turning it on measures the items and adjusts the scroll bars, without a repaint.
  Boolean AutoCheckScroll() const { return state_.AutoCheckScroll; }
  void AutoCheckScroll(Boolean value);
  /// The list's font; reading returns a reference to it. Setting stores a clone. Default: the
  /// ambient font.
  norvane::Font Font() const { return state_.Font; }
  void Font(const norvane::Font& value);
  /// Text colour of items that have none of their own. Default: black.
  Colour ForeColor() const { return state_.ForeColor; }
  void ForeColor(Colour value);
  /// Background colour of the list, and of items that have none of their own. Default: white.
  Colour BackColor() const { return state_.BackColor; }
  void BackColor(Colour value);
  /// A value for the host: the list looks and behaves the same either way. Default: true.
  Boolean Enabled() const { return state_.Enabled; }
  void Enabled(Boolean value);
  /// Whether setting ListIndex while a mouse press is being handled raises Click, before the
  /// change. Default: false.
  Boolean ClickOnIndexChange() const { return state_.ClickOnIndexChange; }
  void ClickOnIndexChange(Boolean value);

  /// The colour scheme of selection, frame and scroll bars. Every value except cCustom also sets
  /// ScrollColorStyle. With an unknown value the selection is black and the frame keeps its colour.
  /// Repaints regardless of AutoRedraw. Default: cXPBlue.
  cColorStyle ColorStyle() const { return state_.ColorStyle; }
  void ColorStyle(cColorStyle value);
  /// The colour scheme of the scroll bars. Does not repaint the list. Default: cXPScrollBlue.
  cScrollColorStyle ScrollColorStyle() const { return state_.ScrollColorStyle; }
  void ScrollColorStyle(cScrollColorStyle value);
  /// The selection colour if ColorStyle is cCustom. Default: blue, 0xFF0000.
  Colour ValueColor() const { return state_.ValueColor; }
  void ValueColor(Colour value);
  /// The frame colour if ColorStyle is cCustom. Repaints regardless of AutoRedraw. Default: black.
  Colour BorderColor() const { return state_.BorderColor; }
  void BorderColor(Colour value);
  /// Whether the list has a frame, one pixel wide. Repaints regardless of AutoRedraw. Default:
  /// true.
  Boolean BorderVisible() const { return state_.BorderVisible; }
  void BorderVisible(Boolean value);

  /// What is shown before the text of each row. Default: cDefault, nothing. With an unknown value
  /// no pictures are shown and the text starts at the very left.
  cListStyle Style() const { return state_.Style; }
  void Style(cListStyle value);
  /// Whether the selection fills the row or only the text. The difference is visible only for items
  /// with a BackColor of their own, because "def" is painted in the selection colour while an item
  /// is selected. Default: true.
  Boolean FullRowSelect() const { return state_.FullRowSelect; }
  void FullRowSelect(Boolean value);
  /// Whether the selection also covers the check box and icon. Like FullRowSelect, the difference
  /// is visible only for items with a BackColor of their own. Default: true.
  Boolean IconSelect() const { return state_.IconSelect; }
  void IconSelect(Boolean value);
  /// Whether selected rows have a dotted outline while the list has the focus. Setting it does not
  /// repaint. Default: false.
  Boolean ShowFocusRect() const { return state_.ShowFocusRect; }
  void ShowFocusRect(Boolean value);
  /// Whether lines are painted between the rows; only True (-1) shows them, other nonzero numbers
  /// do not. Default: false.
  Boolean GridLines() const { return state_.GridLines; }
  void GridLines(Boolean value);
  /// Colour of the grid lines. Default: 0xC0C0C0.
  Colour GridLineColor() const { return state_.GridLineColor; }
  void GridLineColor(Colour value);
  /// The size to which every icon is scaled. Default: 16 by 16.
  float IconW() const { return state_.IconW; }
  void IconW(float value);
  float IconH() const { return state_.IconH; }
  void IconH(float value);
  /// The gap between the pictures and the text. Default: 2.
  float DistPicText() const { return state_.DistPicText; }
  void DistPicText(float value);
  /// Space above the first row and left of the rows; may be negative. Default: 3.
  float IndentTop() const { return state_.IndentTop; }
  void IndentTop(float value);
  float IndentLeft() const { return state_.IndentLeft; }
  void IndentLeft(float value);
  /// Values for the host; they have no effect on the list. Default: 3.
  float IndentRight() const { return state_.IndentRight; }
  void IndentRight(float value);
  float IndentBottom() const { return state_.IndentBottom; }
  void IndentBottom(float value);
  /// Height of a row. 0, the default, uses the height of the font. Rows whose height rounds to 0
  /// are not shown.
  float MinHeight() const { return state_.MinHeight; }
  void MinHeight(float value);
  /// Which scroll bars the list may show; takes effect at the next CheckScroll. Default:
  /// vbVertical.
  ScrollBarConstants ScrollBars() const { return state_.ScrollBars; }
  void ScrollBars(ScrollBarConstants value);

  /// Whether the user may edit texts. The item must allow it as well. Repaints regardless of
  /// AutoRedraw. Default: false.
  Boolean AllowEdit() const { return state_.AllowEdit; }
  void AllowEdit(Boolean value);
  /// Whether the user may select several items. Turning it off keeps an existing selection of
  /// several items. Setting it does not repaint. Default: false.
  Boolean MultiSelect() const { return state_.MultiSelect; }
  void MultiSelect(Boolean value);
  /// Whether dragging moves the current item. Setting it does not repaint. Default: false.
  Boolean AllowItemMoving() const { return state_.AllowItemMoving; }
  void AllowItemMoving(Boolean value);
  /// A value for the host; it has no effect on the list. Default: false.
  Boolean HoverSelect() const { return state_.HoverSelect; }
  void HoverSelect(Boolean value);
  /// What the mouse wheel does; with an unknown value it does nothing. Setting it does not repaint.
  /// Default: cWheelScroll.
  cWheelFunction WheelFunction() const { return state_.WheelFunction; }
  void WheelFunction(cWheelFunction value);
  /// Number of rows scrolled by one wheel message. Setting it does not repaint. Default: 1.
  std::int32_t WheelScrollLines() const { return state_.WheelScrollLines; }
  void WheelScrollLines(std::int32_t value);

  // ---- painting: render/redraw.cpp, render/rows.cpp ----

  /// Repaints the whole list, regardless of AutoRedraw. The list itself suppresses painting
  /// (ListState::SuppressRedraw) while it reads its properties, and while it processes events
  /// during a scroll by the vertical bar or the wheel. If that ends with a failure, for example
  /// because a handler of the host throws, painting stays suppressed: the list keeps its last
  /// picture until a later scroll or reading of its properties succeeds. On Qt a host can prevent
  /// this (QtPlace::onYieldFailure).
  void Redraw();

  /// Number of whole rows that fit into the window, whatever the number of items. 0 if the row
  /// height is 0 or less.
  std::int32_t VisibleItems();

  /// Height of a row, rounded to whole pixels. The mouse is matched to rows of this height; they
  /// are painted with the unrounded height (ListState::ItemHeightValue).
  std::int32_t ItemHeight();

  /// Whether a text that is higher than its row begins at the top of the row and is clipped to it.
  /// Otherwise it is centred on the row and covers parts of the rows above and below. Does not
  /// repaint. Default: false.
  bool clipsTexts() const { return state_.ClipsTexts; }
  void clipsTexts(bool value) { state_.ClipsTexts = value; }

  // ---- size and scroll bars: render/scrollfit.cpp ----

  void UserControl_Resize() override;
  void UserControl_Paint() override { Redraw(); }
  /// Adjusts the scroll bars to the items: their visibility, ranges and positions.
  void CheckScroll();

  // ---- list files: files/listSave.cpp, files/listInput.cpp, files/imageInput.cpp ----
  //
  // File names are UTF-8. docs/list-files.md describes the formats and what they do not preserve.
  // An operation that fails is not reported but raises ErrorListSave or ErrorListInput, also under
  // SilentError. Only invalid colours and pictures are reported.

  /// Saves all items to a file. An existing file is rewritten in place and keeps its permissions;
  /// only a regular file that is not read-only can be saved to, and by one writer at a time. With
  /// `SaveItemProperties` everything of an item is saved, pictures included, which makes the file
  /// large; otherwise only its text. Raises ListSaving after each item. After ErrorListSave the
  /// file holds what was written so far; see Files::savesBeside for saving without losing the
  /// old file.
  void ListSave(const std::string& Filename, Boolean SaveItemProperties = false);

  /// Replaces all items by those of a list file, and paints. Without `ReadItemPropertiesIfExists`
  /// items get the properties of new items. ListIndex, TopIndex and the scroll bars stay as they
  /// are: call CheckScroll afterwards.
  ///
  /// After ErrorListInput the list is unchanged if the file is missing or its header is cut short,
  /// and otherwise empty. A property store image, the older form, leaves the list partly filled
  /// instead: the items read so far, the one that failed as far as it was read, and blank items for
  /// the rest; if the list was empty before, it reads as empty.
  ///
  /// Read a file that was saved with properties with `ReadItemPropertiesIfExists`; otherwise its
  /// keys and tags are mistaken for what follows them. The picture of IconSelected, or its absence,
  /// is read into Icon.
  void ListInput(const std::string& Filename, Boolean ReadItemPropertiesIfExists = false);

  /// The number of items in a property store image, the older form of list files; -1 if the file
  /// does not exist, 0 for any other file.
  std::int32_t ListFileItemsCount(const Variant& Filename);

  // ---- text files: files/textInput.cpp ----

  /// Splits a text file at a delimiter and adds an item for each piece; an empty delimiter does not
  /// split it. The bytes of the file are taken as UTF-8. Besides the items, the call takes as much
  /// memory as the file has bytes. AutoRedraw and AutoCheckScroll are off afterwards. Raises
  /// ErrorListInput if the file does not exist. A file that cannot be read is reported and counts
  /// as empty, which is one empty piece. Always returns 0.
  std::int32_t ListInput2(const std::string& Filename, const Variant& Delimiter);

  // ---- data: files/recordset.cpp ----

  /// The object last assigned. Assigning a norvane::Recordset replaces all items by the first
  /// fields of its rows, and repaints. If it has no rows, or does not know their number, the items
  /// are kept. Later changes of the rows have no effect.
  ///
  /// Null, an object that is not a Recordset, or one that lacks a member is a failure, which ends
  /// the operation; if adding had begun, AutoRedraw and AutoCheckScroll stay off. Under SilentError
  /// such an item gets an empty text and adding continues: a recordset without Eof is then read
  /// endlessly, as long as its other members can be called.
  Ref<Object> Recordset() const { return state_.Recordset; }
  void Recordset(const Ref<Object>& value);

  /// The whole state of the control, for inspection. The reference stays valid as long as the
  /// control; every operation may change what it refers to.
  const ListState& state() const { return state_; }
  /// The scroll bars. They exist as long as the list.
  const nvVScroll& verticalBar() const { return VScroll1; }
  const nvHScroll& horizontalBar() const { return HScroll1; }

 private:
  struct RepaintValues;
  class Row;

  static constexpr Module here{kinds::control, "nvList"};

  // input/
  std::int32_t rowAt(double y, std::int32_t origin, std::int32_t height);
  std::int32_t contentLeft() const;
  void pressItem(Trap& on, std::int32_t hit, double x);
  void selectRange(Trap& on);
  bool flipChecked(Trap& on);
  void drag(Trap& on, float y, std::int32_t row, std::int32_t height);
  void tmrMouseAction_Timer();
  void completeMove(Trap& on);
  void moveUp(Trap& on, std::int32_t visible);
  void moveDown(Trap& on, std::int32_t visible);
  void focusChanged(const char* procedure, Boolean hasFocus);
  void Text1_KeyPress(std::int16_t& KeyAscii);
  float editLeft(float before) const;
  void scrollBarTo(Trap& on, std::int32_t value);
  void wheelScrollDown(Trap& on, std::int16_t rotation);
  void wheelScrollUp(Trap& on);
  void wheelIndexDown(Trap& on, std::int16_t rotation);
  void wheelIndexUp(Trap& on, std::int16_t rotation);
  void wheelIndexTo(Trap& on, std::int32_t index);
  void raiseScroll();

  // core/items.cpp
  bool WrongIndex(const Variant& Index) const;
  bool WrongIndex(std::int32_t Index) const { return !state_.Items.holds(Index); }
  /// The item at an index. Throws Failure 9 outside the bounds; slot 0 of an empty list is within
  /// them.
  StoredItem& item(std::int32_t index) { return state_.Items.touch(index); }
  /// ItemsAdd. If `text` has a value, it replaces `values.aText`: a long text is then copied only
  /// once, into the item.
  void addItem(NewItem&& values, std::optional<std::string_view> text);
  void writeFields(Trap& on, StoredItem& item, NewItem& values) const;
  void moveLastTo(double index);
  std::int32_t shiftDownOnto(Trap& on, std::int32_t index);
  void removeSwept(Trap& on);
  bool sweepToLast(Trap& on);
  std::int32_t countItems(const char* procedure, Boolean (StoredItem::*mark)() const);
  void updateAfterChange(Trap& on);
  bool ArrDim() const { return true; }
  void yield() {
    if (container_.EventsWaiting()) container_.DoEvents();
  }

  // core/search.cpp
  /// Sets LoopIndex to the index at which a search stopped. Returns it, or -1 if that is one past
  /// the last item.
  std::int32_t stoppedAt(std::int32_t index) {
    state_.LoopIndex = index;
    return index <= state_.Items.upperBound() ? index : -1;
  }

  // core/ordering.cpp
  void QuickSortAsc() { sortTexts("QuickSortAsc", cAscending); }
  void QuickSortDesc() { sortTexts("QuickSortDesc", cDescending); }
  void sortTexts(const char* procedure, cSortMode mode);
  void moveItem(double from, double count, int direction);

  // core/selection.cpp
  void SetNewSelected(const Variant& Index);
  void SetNoneSelected();
  void clearMarks(Trap& on);
  void scrollIntoView(Trap& on);

  // core/itemProperties.cpp
  template <class Read>
  auto readItem(const char* name, const Variant& Index, Read&& read);
  enum class ItemRepaint { no, yes };
  template <class Write>
  void writeItem(const char* name, const Variant& Index, ItemRepaint repaints, Write&& write);
  template <class Value>
  Value readLook(const char* name, const Variant& Index, Value ItemLook::*field);
  template <class Write>
  void writeLook(const char* name, const Variant& Index, Write&& write);

  // core/persistence.cpp
  Variant storedDefault(const StoredProperty& property) const;

  // core/properties.cpp
  template <class Value>
  void assign(Trap& on, const char* name, Value ListState::*field, const Value& value);
  template <class Value>
  void assignOnly(const char* name, Value ListState::*field, const Value& value);
  template <class Value>
  void assignAndRepaint(const char* name, Value ListState::*field, const Value& value);
  void repaint(Trap& on);

  // render/redraw.cpp
  Boolean IsDesignMode();
  float unroundedItemHeight();
  void paintPreview(Trap& on);
  void paintFace(Trap& on);
  void passRowsAbove(Trap& on);
  void paintCorner(Trap& on);
  void paintRow(Trap& on, RepaintValues& repaint);

  // render/colours.h
  Colour aktValueColor() const { return selectionColour(state_.ColorStyle, state_.ValueColor); }

  // render/border.cpp
  void DrawBorder();

  // render/scrollfit.cpp
  void CheckItemWidth();
  void CheckItemWidth(const Variant& Index);
  void widenTo(StoredItem& item);
  void addPadding(Trap& on);
  void fitHorizontal(Trap& on);
  void fitVertical(Trap& on);
  void CheckScrollPlacement();
  void followBar(Trap& on);
  void VScroll1_Change() override;
  void VScroll1_Scroll() override;
  void HScroll1_Change() override;
  void HScroll1_Scroll() override;

  // files/listSave.cpp
  static std::string aktuelleSpeicherVersion() { return "273"; }
  void saveItems(const std::string& Filename, Boolean SaveItemProperties);
  void saveProperties(FileWriter& file, const Ref<StoredItem>& item);
  void saveIcon(FileWriter& file, const Picture& icon);

  // files/listInput.cpp
  class ListFile;
  void inputItems(const std::string& Filename, Boolean ReadItemPropertiesIfExists);
  Variant HTML2VBColor(std::string_view Text);

  // files/imageInput.cpp
  bool isImage(Trap& on, const std::string& Filename);
  void inputImage(Boolean ReadItemPropertiesIfExists);
  void inputImageItem(const PropertyImage& image, bool readsProperties);

  // files/pictures.cpp
  /// The bytes of the picture as a file, one per character; `length` gets their number.
  std::string GetPictureString(const Picture& picture, std::int32_t& length);
  Picture GetStringPicture(std::string_view file);

  // files/recordset.cpp
  void addRows(Trap& on, const Ref<Object>& rows);

  // files/fileEvents.cpp
  void raise(Trap& on, void (__nvList::*event)());
  /// Passes LoopIndex to the event and takes it back from the handler.
  void raiseAtLoopIndex(void (__nvList::*event)(Variant& Index));
  /// Advances LoopIndex. It never overflows, so a host that sets it far past the last item ends the
  /// loop.
  void toNextItem();
  /// Runs a body that has a trap of its own. Any failure in it ends the body and raises the event,
  /// also under SilentError. Returns whether the body succeeded.
  template <class Body>
  bool orRaise(Trap& on, void (__nvList::*event)(), Body&& body) {
    try {
      body();
      return true;
    } catch (...) {
      raise(on, event);
      return false;
    }
  }

  EventSinks sinks_;
  ListState state_;

  // The child controls, from back to front.
  nvVScroll VScroll1;
  nvHScroll HScroll1;
  static constexpr std::int32_t borderPieces = 4;
  std::array<BorderPiece, borderPieces> pBord;  ///< top, right, bottom, left
  MeasuringLabel lblWidth;
  /// The ambient font when the properties were read, or else the default font.
  norvane::Font lblFont = makeRef<FontObject>();
  std::unique_ptr<TextBox> Text1;
  std::unique_ptr<Timer> tmrMouseAction;
  enum class AutoScroll { none, up, down } autoScroll_ = AutoScroll::none;
  bool movesOnlyToMark_ = false;
  Wheel Wheel1;
};

}  // namespace norvane
