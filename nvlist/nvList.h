#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
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
/// The control needs a place to stand in, with a surface to draw on; a platform makes both together
/// (platform/headless/HeadlessList.h, platform/qt/NvListWidget.h). The place must outlive it. One
/// control belongs to one thread.
///
/// No operation fails towards its caller: a failure is reported or passed over, as the switch
/// SilentError says (objects/Error.h), and the result is then what is told at the operation. Only
/// a failure of the reporter itself comes out, and one in setting Text. An index is a number, a
/// truth value, nothing (0) or a text that reads as a number; it is rounded to the nearest whole
/// number.
///
/// This header is the map of the house. Each group below names the file it is defined in.
class nvList final : public UserControl,
                     private nvVScrollEvents,
                     private nvHScrollEvents,
                     private WheelEvents {
 public:
  explicit nvList(Container& place);
  ~nvList() override;

  // ---- start, end and property store: core/lifecycle.cpp, core/persistence.cpp ----

  /// Brings a new control to its defaults and paints it. The platform calls this or
  /// UserControl_ReadProperties once, before anything else.
  void UserControl_InitProperties() override;
  /// Sets every property of this control to what is stored, or to its default. The list is empty
  /// afterwards: items are not stored. A stored value that its property cannot take is a failure,
  /// which ends the reading there; nothing is painted then until the properties are read again.
  /// (Under SilentError the rest is read.)
  void UserControl_ReadProperties(const PropertyBag& PropBag) override;
  /// Stores every property that differs from its default. core/storedProperties.h lists them.
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
  // The focus and the name paint whatever AutoRedraw says.
  void UserControl_EnterFocus() override;
  void UserControl_GotFocus() override;
  void UserControl_LostFocus() override;
  void UserControl_ExitFocus() override;
  void UserControl_AmbientChanged(std::string_view PropertyName) override;
  void Wheel1_WheelScroll(std::int16_t& Rotation, std::int16_t& Keys, float& X, float& Y) override;

  /// The handle of the control's window; 0 where the platform has none.
  std::int32_t hwnd();
  /// Shows a box with the name and the version of the control.
  void About();

  // ---- editing: input/edit.cpp ----

  /// Opens the edit box with the text of an item, given that AllowEdit and the item allow it and
  /// the item is enabled. It stands over the row where the mouse was last pressed, above the first
  /// row where it never was. Return writes the text into the item that is current then; a press or
  /// a scroll drops it. A bad index is a failure, which opens nothing.
  void SetEdit(const Variant& Index);

  // ---- items: core/items.cpp ----

  /// Adds one item. `aIndex` is where it goes: -1, anything negative and anything from the number
  /// of items up mean the end; a text counts as the number it reads as, and one that reads as none
  /// is a failure, which leaves a blank item at the end (under SilentError the item itself). The
  /// first item goes to 0 whatever `aIndex`. Of a fraction the items behind it make room, and then
  /// it is rounded: 0.5 puts the new item in the place of item 0, which is lost, and item 1 stands
  /// twice.
  ///
  /// With AutoRedraw on the selection is dropped and ListIndex becomes -1; with AutoRedraw off both
  /// stay, even where an insert moves the items under them. The list is painted only while it holds
  /// few enough items for the new one to be in view.
  void ItemsAdd(Variant aText, Variant aIndex = -1, Picture aIcon = nullptr,
                Picture aIconSelected = nullptr, Boolean aChecked = false,
                Variant aForeColor = defaultMark, Variant aBackColor = defaultMark,
                Boolean aAllowEdit = false, cItemAlignment aAlignment = cLeft,
                Variant aForeColorSelected = defaultMark, Variant aBackColorSelected = defaultMark,
                Boolean aEnabled = true, Variant aTag = "",
                Variant aForeColorDis = colours::greyText, Variant aBackColorDis = colours::light3D,
                Boolean aBold = false, Boolean aItalic = false, Boolean aUnderline = false,
                Variant aKey = "");
  /// The same with the arguments by name.
  void ItemsAdd(NewItem item);

  /// Removes one item; `Index` is rewritten as the 32-bit number it counts as. A bad index does
  /// nothing and is not reported; it is tested before it is rounded. ListIndex, TopIndex, NewIndex
  /// and the anchor of a range stay as they are, and may name another item or none afterwards.
  void ItemsRemove(Variant& Index);
  void ItemsRemove(Variant&& Index) { ItemsRemove(Index); }

  /// Removes all items. ListIndex becomes 0.
  void ItemsClear();

  /// Removes every selected item and goes to the top of the list.
  void ItemsSelectedRemove();

  /// Number of items, from 0.
  std::int32_t ItemsCount() const;
  /// Number of items that are selected, or checked. Pending events run once an item.
  std::int32_t ItemsSelectCount();
  std::int32_t ItemsCheckCount();

  /// Where ItemsAdd last put an item; removing items leaves it as it is.
  std::int32_t NewIndex() const { return state_.NewIndex; }

  // ---- duplicates: core/duplicates.cpp ----

  /// Removes all but the first of items whose text was there before; the case of letters counts
  /// only if `IgnoreLetterSize` is false. A text was there if, with a comma behind it, it ends any
  /// part of the texts kept so far, joined with commas: "bc" goes behind "abc", and "b,c" behind
  /// the items "b" and "c".
  ///
  /// A duplicate past item 32767 is a failure, which ends the operation with AutoRedraw and
  /// AutoCheckScroll left off; under SilentError such items stay.
  void ItemsRemoveDouble(Boolean IgnoreLetterSize = true);

  // ---- searching: core/search.cpp ----

  /// The first item with the key, or -1. Texts are compared byte by byte. A number is compared with
  /// each key's number: a key that reads as none is a failure, which gives -1 (under SilentError it
  /// counts as found).
  std::int32_t IndexByKey(const Variant& sKey);

  /// The first item whose text matches the pattern, or -1: ? is one character, * any run, # one
  /// digit, [abc] or [a-c] one of a set, [!abc] none of it. A pattern without these matches the
  /// whole text only. A pattern that is malformed in either comparison is a failure, which gives -1
  /// (under SilentError it matches nothing where that is the one asked for).
  std::int32_t IsInList(std::string_view sText, cFindCompare oCompare = cFindBinary);

  // ---- ordering: core/ordering.cpp ----
  //
  // What an item holds travels with it, its mark of the selection too. ListIndex, TopIndex,
  // NewIndex and the anchor of a range stay as numbers, but for what is said of ListIndex at the
  // moves. No event is raised.

  /// Orders the items by text, byte by byte: upper-case letters stand before lower-case ones, and
  /// "10" before "9". Any other mode leaves the order as it is. Equal texts may change places, in
  /// the same way each time (core/partitionSort.h). Paints whatever AutoRedraw says. An empty list
  /// is left alone.
  void Sort(cSortMode SortMode);

  /// Moves an item `lCount` places towards 0, where it stops, and takes `lCount` off ListIndex,
  /// whichever item is the current one. A bad `lItem` does nothing and is not reported. An `lCount`
  /// of no number is a failure, which does nothing (under SilentError the item goes all the way).
  ///
  /// A negative `lCount` moves nothing along: the item then stands at the far place too, and the
  /// one that stood there is lost. A far place outside the list is a failure, which changes nothing
  /// (under SilentError it still changes ListIndex). Fractions are rounded slot by slot.
  void MoveItemUp(const Variant& lItem, const Variant& lCount);
  /// The same in the other direction: away from 0, the last item being the end, and ListIndex grows
  /// by `lCount`. Of two texts the far place is what they read as one behind the other: "1" and "2"
  /// name item 12.
  void MoveItemDown(const Variant& lItem, const Variant& lCount);

  // ---- events: input/events.h ----

  /// Registers a host for the events; it has to live until it is removed, or as long as the list.
  void addSink(__nvList& sink) { sinks_.add(sink); }
  void removeSink(__nvList& sink) { sinks_.remove(sink); }
  /// For a platform whose part of the list ends in the middle of an event: no host hears more.
  void removeAllSinks() { sinks_.removeAll(); }

  // ---- the current item and the selection: core/selection.cpp ----

  /// The current item: 0 on a new list, -1 after items were added. May name no item.
  ///
  /// Setting it selects that item alone and scrolls it into view. An index of no item, -1 among
  /// them, and that of a disabled item are refused with ErrorWrongIndex. On an empty list nothing
  /// happens.
  std::int32_t ListIndex() const { return state_.ListIndex; }
  void ListIndex(std::int32_t value);
  /// Whether an item is selected. Setting it leaves the other items as they are, and ListIndex at
  /// -1 for true and 0 for false; an item selected outside the window becomes the top row. A bad
  /// index is a failure: reading gives false, setting changes nothing (under SilentError all but
  /// the mark).
  Boolean ItemSelected(const Variant& Index);
  void ItemSelected(const Variant& Index, Boolean value);

  // ---- properties of items: core/itemProperties.cpp ----
  //
  // `Index` is rounded to the nearest whole number; no key is looked up. One that is no number or
  // outside the list is a failure: reading then gives the zero value of the type, setting changes
  // nothing (under SilentError it still marks the property and repaints). Slot 0 of an empty list
  // can be read and written. All but ItemTag and ItemKey repaint under AutoRedraw.

  /// The check mark. Setting it raises no event.
  Boolean ItemChecked(const Variant& Index);
  void ItemChecked(const Variant& Index, Boolean value);
  /// Colours while selected; "def": the list's own.
  Variant ItemForeColorSelect(const Variant& Index);
  void ItemForeColorSelect(const Variant& Index, const Variant& value);
  Variant ItemBackColorSelect(const Variant& Index);
  void ItemBackColorSelect(const Variant& Index, const Variant& value);
  /// A free value of the host.
  Variant ItemTag(const Variant& Index);
  void ItemTag(const Variant& Index, const Variant& value);
  /// The icon, shared by reference; empty: none.
  Picture ItemIcon(const Variant& Index);
  void ItemIcon(const Variant& Index, const Picture& value);
  /// The icon while selected; empty: ItemIcon serves.
  Picture ItemIconSelected(const Variant& Index);
  void ItemIconSelected(const Variant& Index, const Picture& value);
  /// Where the text stands; an unknown value counts as cLeft.
  cItemAlignment ItemAlignment(const Variant& Index);
  void ItemAlignment(const Variant& Index, cItemAlignment value);
  /// Whether the user may edit the text, given the list's AllowEdit too.
  Boolean ItemAllowEdit(const Variant& Index);
  void ItemAllowEdit(const Variant& Index, Boolean value);
  /// The text. A `&` underlines the character behind it, two show one; what stands behind
  /// "|right=", in any capitalisation, is a second column at the right. A wider text does not
  /// change the horizontal range at once.
  std::string ItemText(const Variant& Index);
  void ItemText(const Variant& Index, const std::string& value);
  /// Whether the item can become the current one.
  Boolean ItemEnabled(const Variant& Index);
  void ItemEnabled(const Variant& Index, Boolean value);
  /// Flags of the font. A row is measured with the flags of the row painted before it, so a bold
  /// text that is not left-aligned may stand a little to the side.
  Boolean ItemBold(const Variant& Index);
  void ItemBold(const Variant& Index, Boolean value);
  Boolean ItemItalic(const Variant& Index);
  void ItemItalic(const Variant& Index, Boolean value);
  Boolean ItemUnderline(const Variant& Index);
  void ItemUnderline(const Variant& Index, Boolean value);
  /// The key, as a text.
  Variant ItemKey(const Variant& Index);
  void ItemKey(const Variant& Index, const Variant& value);
  /// Own colours. Reading one that is still "def" is a failure, which gives 0; there is no way back
  /// to "def".
  Colour ItemForeColor(const Variant& Index);
  void ItemForeColor(const Variant& Index, Colour value);
  Colour ItemBackColor(const Variant& Index);
  void ItemBackColor(const Variant& Index, Colour value);
  /// Colours while disabled, as 32-bit numbers. A value that is no number is a failure, which keeps
  /// the old one.
  Variant ItemForeColorDis(const Variant& Index);
  void ItemForeColorDis(const Variant& Index, const Variant& value);
  Variant ItemBackColorDis(const Variant& Index);
  void ItemBackColorDis(const Variant& Index, const Variant& value);

  /// The text of the current item; empty where there is none. Setting it makes the first item with
  /// that text the current one, byte by byte, and changes no item; without one nothing happens. A
  /// failure in setting it goes to the caller.
  std::string Text();
  void Text(std::string_view value);

  // ---- position: core/position.cpp ----

  /// The item in the top row. A value is brought into the range in which the last row shown is the
  /// last item; on a list shorter than the window that is a negative number, which is kept.
  std::int32_t TopIndex() const { return state_.TopIndex; }
  void TopIndex(std::int32_t value);

  // ---- properties: core/properties.cpp ----
  //
  // No value is refused. Each setter tells the container the name of its property; all but those
  // that say otherwise then repaint under AutoRedraw. Truth values are read back as they were
  // given. Lengths are pixels.

  /// Whether changes are painted, and added items measured, at once. Default: true. Turning it on
  /// measures and paints.
  Boolean AutoRedraw() const { return state_.AutoRedraw; }
  void AutoRedraw(Boolean value);
  /// Whether the scroll bars are fitted at once after each change of the items. Default: true.
  /// Turning it on measures and fits them, and does not repaint.
  Boolean AutoCheckScroll() const { return state_.AutoCheckScroll; }
  void AutoCheckScroll(Boolean value);
  /// The font of the list, by reference. The list keeps a clone of a font given to it. Default: the
  /// ambient font.
  norvane::Font Font() const { return state_.Font; }
  void Font(const norvane::Font& value);
  /// Text colour of items without one of their own. Default: black.
  Colour ForeColor() const { return state_.ForeColor; }
  void ForeColor(Colour value);
  /// Background of items without one of their own. Default: white.
  Colour BackColor() const { return state_.BackColor; }
  void BackColor(Colour value);
  /// Default: true.
  Boolean Enabled() const { return state_.Enabled; }
  void Enabled(Boolean value);
  /// Whether Click comes where ListIndex is set while a press is selecting. Default: false.
  Boolean ClickOnIndexChange() const { return state_.ClickOnIndexChange; }
  void ClickOnIndexChange(Boolean value);

  /// The family of selection, frame and scroll bars; all but cCustom set ScrollColorStyle too. In
  /// an unknown style the selection is black and the frame stays as it was. Paints whatever
  /// AutoRedraw says. Default: cXPBlue.
  cColorStyle ColorStyle() const { return state_.ColorStyle; }
  void ColorStyle(cColorStyle value);
  /// The family of the scroll bars alone. Does not repaint the list.
  cScrollColorStyle ScrollColorStyle() const { return state_.ScrollColorStyle; }
  void ScrollColorStyle(cScrollColorStyle value);
  /// The selection colour in cCustom. Default: blue, 0xFF0000.
  Colour ValueColor() const { return state_.ValueColor; }
  void ValueColor(Colour value);
  /// The colour of the frame in cCustom. Paints whatever AutoRedraw says. Default: black.
  Colour BorderColor() const { return state_.BorderColor; }
  void BorderColor(Colour value);
  /// Whether there is a frame of one pixel. Paints whatever AutoRedraw says. Default: true.
  Boolean BorderVisible() const { return state_.BorderVisible; }
  void BorderVisible(Boolean value);

  /// What stands before the text of each row. Default: cDefault, nothing. An unknown value shows no
  /// pictures and puts the text at the very left.
  cListStyle Style() const { return state_.Style; }
  void Style(cListStyle value);
  /// Whether the selection fills the row, or the text alone. The text alone stands out only where
  /// the item has a BackColor of its own: "def" is the selection colour while an item is selected.
  /// Default: true.
  Boolean FullRowSelect() const { return state_.FullRowSelect; }
  void FullRowSelect(Boolean value);
  /// Whether the selection covers the check box and icon too; seen, like FullRowSelect, where the
  /// item has a BackColor of its own. Default: true.
  Boolean IconSelect() const { return state_.IconSelect; }
  void IconSelect(Boolean value);
  /// Whether selected rows have a dotted outline while the list has the focus. Does not repaint.
  /// Default: false.
  Boolean ShowFocusRect() const { return state_.ShowFocusRect; }
  void ShowFocusRect(Boolean value);
  /// Lines between the rows; only true itself shows them, no other number. Default: false.
  Boolean GridLines() const { return state_.GridLines; }
  void GridLines(Boolean value);
  /// Default: 0xC0C0C0.
  Colour GridLineColor() const { return state_.GridLineColor; }
  void GridLineColor(Colour value);
  /// The size that every icon is stretched to. Default: 16 each.
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
  /// Kept for the host; nothing is painted by them. Default: 3.
  float IndentRight() const { return state_.IndentRight; }
  void IndentRight(float value);
  float IndentBottom() const { return state_.IndentBottom; }
  void IndentBottom(float value);
  /// Height of a row in pixels; 0, the default: the height of the font. Rows that are no pixel high
  /// after rounding are not shown.
  float MinHeight() const { return state_.MinHeight; }
  void MinHeight(float value);
  /// Which scroll bars the list may show; counts from the next CheckScroll on. Default: vbVertical.
  ScrollBarConstants ScrollBars() const { return state_.ScrollBars; }
  void ScrollBars(ScrollBarConstants value);

  /// Whether the user may edit texts, given that the item allows it. Paints whatever AutoRedraw
  /// says. Default: false.
  Boolean AllowEdit() const { return state_.AllowEdit; }
  void AllowEdit(Boolean value);
  /// Whether the user may select several items. Does not repaint; turning it off leaves a selection
  /// of several as it is. Default: false.
  Boolean MultiSelect() const { return state_.MultiSelect; }
  void MultiSelect(Boolean value);
  /// Whether dragging moves the current item. Does not repaint. Default: false.
  Boolean AllowItemMoving() const { return state_.AllowItemMoving; }
  void AllowItemMoving(Boolean value);
  /// Kept for the host; the list does nothing with it. Default: false.
  Boolean HoverSelect() const { return state_.HoverSelect; }
  void HoverSelect(Boolean value);
  /// What the mouse wheel does. An unknown value does nothing. Does not repaint. Default:
  /// cWheelScroll.
  cWheelFunction WheelFunction() const { return state_.WheelFunction; }
  void WheelFunction(cWheelFunction value);
  /// Rows that one message of the wheel scrolls. Does not repaint. Default: 1.
  std::int32_t WheelScrollLines() const { return state_.WheelScrollLines; }
  void WheelScrollLines(std::int32_t value);

  // ---- painting: render/redraw.cpp, render/rows.cpp ----

  /// Paints the whole list, whatever AutoRedraw says.
  void Redraw();

  /// Number of whole rows that fit into the window, whether there are items for them or not. 0
  /// where a row has no height.
  std::int32_t VisibleItems();

  // ---- size and scroll bars: render/scrollfit.cpp ----

  void UserControl_Resize() override;
  void UserControl_Paint() override { Redraw(); }
  /// Fits the scroll bars to the items: which of them show, their ranges and their places.
  void CheckScroll();

  // ---- list files: files/listSave.cpp, files/listInput.cpp, files/imageInput.cpp ----
  //
  // File names are UTF-8. docs/list-files.md describes what list files hold and what they lose. A
  // file that fails is not reported but raises ErrorListSave or ErrorListInput, also under
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
  /// split it. The bytes of the file are taken as UTF-8. AutoRedraw and AutoCheckScroll are off
  /// afterwards. Raises ErrorListInput if the file does not exist. A file that cannot be read is
  /// reported and counts as empty, which is one empty piece. Always returns 0.
  std::int32_t ListInput2(const std::string& Filename, const Variant& Delimiter);

  // ---- data: files/recordset.cpp ----

  /// The object last assigned. Assigning a norvane::Recordset replaces all items by the first
  /// fields of its rows, and paints. If it has no rows, or does not know how many, the items stay.
  /// Later changes to the rows are not seen.
  ///
  /// A Null, and an object that is not a Recordset or lacks a member, is a failure, which ends the
  /// fill; AutoRedraw and AutoCheckScroll stay off if it has begun. Under SilentError the item gets
  /// an empty text and the fill goes on: a recordset without Eof is then read without end, for
  /// as long as its other members can be called.
  Ref<Object> Recordset() const { return state_.Recordset; }
  void Recordset(const Ref<Object>& value);

  /// Everything the control knows, for a look from outside; it changes with every operation.
  const ListState& state() const { return state_; }
  /// The bars, which go up and down with the list.
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
  /// The item at an index; throws Failure 9 outside the bounds. Slot 0 of an empty list is in them.
  ListItem& item(std::int32_t index) { return state_.Items.touch(index); }
  void writeFields(Trap& on, ListItem& item, NewItem& values);
  void moveLastTo(double index);
  void moveDownOnto(Trap& on, std::int32_t index);
  std::int32_t countItems(const char* procedure, Boolean ListItem::*mark);
  void updateAfterChange(Trap& on);
  bool ArrDim() const { return true; }
  void yield() {
    if (container_.EventsWaiting()) container_.DoEvents();
  }

  // core/search.cpp
  /// The first item that fits, or -1. LoopIndex stops there, or behind the last one.
  template <class Fits>
  std::int32_t firstItem(Fits&& fits) {
    state_.LoopIndex = state_.Items.find(fits);
    return state_.LoopIndex <= state_.Items.upperBound() ? state_.LoopIndex : -1;
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
  template <class Value>
  Value readItem(const char* name, const Variant& Index, Value ListItem::*field);
  enum class ItemRepaint { no, yes };
  template <class Write>
  void writeItem(const char* name, const Variant& Index, ItemRepaint repaints, Write&& write);
  Colour ownColour(const char* name, const Variant& Index, Variant ListItem::*field);
  Variant colourOfDisabled(const char* name, const Variant& Index, Colour ListItem::*field);

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
  std::int32_t ItemHeight();
  float unroundedItemHeight();
  void paintPreview(Trap& on);
  void paintFace(Trap& on);
  void paintCorner(Trap& on);
  void paintRow(Trap& on, RepaintValues& repaint);

  // render/colours.h
  Colour aktValueColor() const { return selectionColour(state_.ColorStyle, state_.ValueColor); }

  // render/border.cpp
  void DrawBorder();

  // render/scrollfit.cpp
  void CheckItemWidth();
  void CheckItemWidth(const Variant& Index);
  void widenTo(ListItem& item);
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
  void saveProperties(FileWriter& file, ListItem& item);
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
  /// The bytes of the picture's file, one a character, and how many they are.
  std::string GetPictureString(const Picture& picture, std::int32_t& length);
  Picture GetStringPicture(std::string_view file);

  // files/recordset.cpp
  void addRows(Trap& on, const Ref<Object>& rows);

  // files/fileEvents.cpp
  void raise(Trap& on, void (__nvList::*event)());
  /// Tells of an item by its position, and takes the position back.
  void raiseAtLoopIndex(void (__nvList::*event)(Variant& Index));
  /// The position never overflows: a host that sets it far behind the last item ends the loop.
  void toNextItem();
  /// Runs a body that has a trap of its own: whatever fails in it ends it and raises the event,
  /// also under SilentError. Whether nothing failed.
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

  // What stands in the list, from the back to the front.
  nvVScroll VScroll1;
  nvHScroll HScroll1;
  static constexpr std::int32_t borderPieces = 4;
  std::array<BorderPiece, borderPieces> pBord;  ///< top, right, bottom, left
  MeasuringLabel lblWidth;
  norvane::Font lblFont;  ///< the ambient font when the properties were read
  std::unique_ptr<TextBox> Text1;
  std::unique_ptr<Timer> tmrMouseAction;
  enum class AutoScroll { none, up, down } autoScroll_ = AutoScroll::none;
  Wheel Wheel1;
};

}  // namespace norvane
