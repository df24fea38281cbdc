#pragma once

#include <cstdint>
#include <string_view>

#include <nvlist/core/ListState.h>
#include <nvlist/core/NewItem.h>
#include <nvlist/input/events.h>
#include <nvlist/objects/Trap.h>
#include <nvlist/platform/Container.h>
#include <nvlist/render/Surface.h>

namespace norvane {

/// A visual list: items in rows that the control paints itself.
///
/// The control needs a surface to draw on and a container to stand in; a platform makes the three
/// together (platform/headless/HeadlessList.h, platform/qt/NvListWidget.h). Both must outlive it.
/// One control belongs to one thread.
///
/// No operation fails towards its caller: a failure is reported or passed over, as the switch
/// SilentError says (objects/Error.h), and the result is then what is told at the operation. Only
/// a failure of the reporter itself comes out. An index is a number, a truth value, nothing (0) or
/// a text that reads as a number; it is rounded to the nearest whole number.
///
/// This header is the map of the house. Each group below names the file it is defined in.
class nvList {
 public:
  nvList(Container& container, Surface& surface) : container_(container), surface_(surface) {}
  nvList(const nvList&) = delete;
  nvList& operator=(const nvList&) = delete;

  // ---- start and notifications of the platform: core/lifecycle.cpp ----

  /// Brings a new control to its defaults and paints it. The platform calls it once, before
  /// anything else.
  void UserControl_InitProperties();
  /// The surface has another size.
  void UserControl_Resize();

  // ---- items: core/items.cpp ----

  /// Adds one item. `aIndex` is where it goes: -1, anything negative and anything from the number
  /// of items up mean the end; a text counts as the number it reads as, and one that reads as none
  /// is a failure, which leaves a blank item at the end (under SilentError the item itself). The
  /// first item goes to 0 whatever `aIndex`.
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
  std::int32_t ItemsCount();
  /// Number of items that are selected, or checked. Pending events run once an item.
  std::int32_t ItemsSelectCount();
  std::int32_t ItemsCheckCount();

  /// Where ItemsAdd last put an item; removing items leaves it as it is.
  std::int32_t NewIndex();

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
  /// whole text only. A malformed pattern is a failure, which gives -1.
  std::int32_t IsInList(std::string_view sText, cFindCompare oCompare = cFindBinary);

  // ---- events: input/events.h ----

  /// Registers a host for the events; it has to live until it is removed, or as long as the list.
  void addSink(__nvList& sink) { sinks_.add(sink); }
  void removeSink(__nvList& sink) { sinks_.remove(sink); }

  // ---- the current item and the selection: core/selection.cpp ----

  /// The current item: 0 on a new list, -1 after items were added. May name no item.
  ///
  /// Setting it selects that item alone and scrolls it into view. An index of no item, -1 among
  /// them, and that of a disabled item are refused with ErrorWrongIndex. On an empty list nothing
  /// happens.
  std::int32_t ListIndex();
  void ListIndex(std::int32_t value);
  /// Whether an item is selected. Setting it leaves the other items as they are, and ListIndex at
  /// -1 for true and 0 for false; an item selected outside the window becomes the top row.
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
  /// The text. A wider one does not change the horizontal range at once.
  std::string ItemText(const Variant& Index);
  void ItemText(const Variant& Index, const std::string& value);
  /// Whether the item can become the current one.
  Boolean ItemEnabled(const Variant& Index);
  void ItemEnabled(const Variant& Index, Boolean value);
  /// Flags of the font.
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
  /// that text the current one, byte by byte, and changes no item. A failure in setting it goes
  /// to the caller as a Failure.
  std::string Text();
  void Text(std::string_view value);

  // ---- position: core/position.cpp ----

  /// The item in the top row. A value is brought into the range in which the last row shown is the
  /// last item; on a list shorter than the window that is a negative number, which is kept.
  std::int32_t TopIndex();
  void TopIndex(std::int32_t value);

  // ---- properties: core/properties.cpp ----

  /// Whether changes are painted, and added items measured, at once. Default: true. Turning it on
  /// measures and paints.
  Boolean AutoRedraw();
  void AutoRedraw(Boolean value);
  /// Whether the scroll bars are fitted at once after each change of the items. Default: true.
  Boolean AutoCheckScroll();
  void AutoCheckScroll(Boolean value);
  /// The font of the list, by reference. The list keeps a clone of a font given to it. Default: the
  /// ambient font.
  norvane::Font Font();
  void Font(const norvane::Font& value);
  /// Text colour of items without one of their own. Default: black.
  Colour ForeColor();
  void ForeColor(Colour value);
  /// Background of items without one of their own. Default: white.
  Colour BackColor();
  void BackColor(Colour value);
  /// What stands before the text of each row. Default: cDefault, nothing.
  cListStyle Style();
  void Style(cListStyle value);
  /// Space above the first row and left of the rows, in pixels; may be negative. Default: 3.
  float IndentTop();
  void IndentTop(float value);
  float IndentLeft();
  void IndentLeft(float value);
  /// Whether the user may select several items. Default: false. Turning it off leaves a selection
  /// of several as it is.
  Boolean MultiSelect();
  void MultiSelect(Boolean value);
  /// Height of a row in pixels; 0, the default: the height of the font. Rows that are no pixel high
  /// after rounding are not shown.
  float MinHeight();
  void MinHeight(float value);

  // ---- painting: render/redraw.cpp, render/rows.cpp ----

  /// Paints the whole list, whatever AutoRedraw says.
  void Redraw();

  /// Number of whole rows that fit into the window, whether there are items for them or not. 0
  /// where a row has no height.
  std::int32_t VisibleItems();

  // ---- scroll bars: render/scrollfit.cpp ----

  /// Fits the scroll bars to the items.
  void CheckScroll();

  /// Everything the control knows, for a look from outside; it changes with every operation.
  const ListState& state() const { return state_; }

 private:
  struct RepaintValues;

  static constexpr Module here{kinds::control, "nvList"};

  // core/items.cpp
  bool WrongIndex(const Variant& Index) const;
  bool WrongIndex(std::int32_t Index) const { return !state_.Items.holds(Index); }
  /// The item at an index; throws Failure 9 outside the bounds. Slot 0 of an empty list is in them.
  ListItem& item(std::int32_t index) { return state_.Items.touch(index); }
  void writeFields(Trap& on, ListItem& item, NewItem& values);
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

  // core/properties.cpp
  template <class Value>
  void assign(Trap& on, const char* name, Value ListState::*field, const Value& value);
  void repaint(Trap& on);

  // render/redraw.cpp
  Boolean IsDesignMode();
  std::int32_t ItemHeight();
  float unroundedItemHeight();
  void paintPreview(Trap& on);
  void paintFace(Trap& on);
  void paintCorner(Trap& on);
  void paintRow(Trap& on, RepaintValues& repaint);

  // render/scrollfit.cpp
  void CheckItemWidth();
  void CheckItemWidth(Variant Index);

  Container& container_;
  Surface& surface_;
  EventSinks sinks_;
  ListState state_;
};

}  // namespace norvane
