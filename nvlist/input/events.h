#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The published ids of the events, which hosts use to bind them.
enum class EventId : std::int32_t {
  Click = 1,
  DblClick = 2,
  ItemCheck = 3,
  MouseUp = 4,
  MouseMove = 5,
  MouseDown = 6,
  ErrorListInput = 7,
  ErrorListSave = 8,
  ListSaving = 9,
  ListReading = 10,
  Scroll = 11,
  KeyDown = 12,
  KeyPress = 13,
  KeyUp = 14,
  OLECompleteDrag = 15,
  OLEDragDrop = 16,
  OLEDragOver = 17,
  OLEGiveFeedback = 18,
  OLESetData = 19,
  OLEStartDrag = 20,
  ErrorWrongIndex = 21
};

/// The events of the list. A host derives from it, overrides the events it wants, and registers the
/// object with nvList::addSink. Each handler has the name of its id.
///
/// A handler runs in the middle of the operation that raises the event and may call any operation
/// of the list, clear it or destroy it. An exception it throws is a failure of that operation. The
/// depth of such calls is not limited: a handler that always causes its own event again, such as an
/// ErrorWrongIndex that sets another bad ListIndex or a Click that sets ListIndex while
/// ClickOnIndexChange is on, overflows the stack.
///
/// All arguments are by reference. Changes to an argument are ignored unless its event says that it
/// is read back. Positions are pixels of the list; `Button` and `Shift` are described at
/// UserControl::UserControl_MouseDown.
class __nvList {  // NOLINT(bugprone-reserved-identifier): the published name of the interface
 public:
  virtual ~__nvList() = default;

  /// EventId::Click. Raised by a click of the left button. Under ClickOnIndexChange also raised by
  /// setting ListIndex during a press, before ListIndex changes.
  virtual void Click() {}
  /// EventId::DblClick. Raised by a double click, after its effects on the item; not raised below
  /// the last item if there is a current one.
  virtual void DblClick() {}
  /// EventId::ItemCheck. Raised before the user changes the check mark of `Item`, the current item.
  /// `Cancel` is initially false and is read back: true keeps the mark unchanged.
  virtual void ItemCheck(std::int32_t& Item, Boolean& Cancel);
  /// EventId::MouseUp. Raised by the release of a button, after a dragged item has moved.
  virtual void MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
  /// EventId::MouseMove. Raised by each move of the mouse. `IndexUnderMouse` is not limited to
  /// existing items; `TextUnderMouse` is empty where there is no item.
  virtual void MouseMove(Variant& TextUnderMouse, std::int32_t& IndexUnderMouse,
                         std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
  /// EventId::MouseDown. Raised by the press of a button, before the list reacts. `Button` is read
  /// back: with 2 the list ignores the press.
  virtual void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
  /// EventId::ErrorListInput. Raised when a list file could not be loaded.
  virtual void ErrorListInput() {}
  /// EventId::ErrorListSave. Raised when a list file could not be saved.
  virtual void ErrorListSave() {}
  /// EventId::ListSaving. Raised after ListSave has written an item. `Index`, the item's index, is
  /// read back: saving continues with the next index.
  virtual void ListSaving(Variant& Index);
  /// EventId::ListReading. Raised after ListInput has read an item. `Index`, the item's index, is
  /// read back: loading continues with the next index.
  virtual void ListReading(Variant& Index);
  /// EventId::Scroll. Raised after a scroll bar or the mouse wheel has scrolled the list.
  virtual void Scroll() {}
  /// EventId::KeyDown. Raised when a key is pressed, before the list reacts. `KeyCode` is read
  /// back: 0 suppresses the key, another code replaces it.
  virtual void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
  /// EventId::KeyPress. Raised for each typed character.
  virtual void KeyPress(std::int16_t& KeyAscii);
  /// EventId::KeyUp. Raised when a key is released.
  virtual void KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);

  /// The list never raises the drag-and-drop events, from OLECompleteDrag to OLEStartDrag. They
  /// exist so that hosts can bind them.
  virtual void OLECompleteDrag(std::int32_t& Effect);
  virtual void OLEDragDrop(Ref<Object>& Data, std::int32_t& Effect, std::int16_t& Button,
                           std::int16_t& Shift, float& X, float& Y);
  virtual void OLEDragOver(Ref<Object>& Data, std::int32_t& Effect, std::int16_t& Button,
                           std::int16_t& Shift, float& X, float& Y, std::int16_t& State);
  virtual void OLEGiveFeedback(std::int32_t& Effect, Boolean& DefaultCursors);
  virtual void OLESetData(Ref<Object>& Data, std::int16_t& DataFormat);
  virtual void OLEStartDrag(Ref<Object>& Data, std::int32_t& AllowedEffects);

  /// EventId::ErrorWrongIndex. Raised when ListIndex is set to an invalid value, `Index`; it keeps
  /// its old value.
  virtual void ErrorWrongIndex(Variant& Index);
};

/// The registered sinks of a list. Sinks may be added and removed while an event is being raised: a
/// removed sink gets no further event, a new one gets the next event.
class EventSinks {
 public:
  /// The sink must live until it is removed. Adding a registered sink changes nothing.
  void add(__nvList& sink);
  /// Removing a sink that is not registered changes nothing.
  void remove(__nvList& sink);
  /// Removes all sinks.
  void removeAll();
  /// Whether no sink is registered.
  bool isEmpty() const { return sinks_.empty(); }

  /// Calls `event(sink)` for each sink.
  template <class Event>
  void raise(Event&& event) {
    const Raising raising(*this);
    const std::size_t count = sinks_.size();
    for (std::size_t i = 0; i < count; ++i)
      if (sinks_[i]) event(*sinks_[i]);
  }

 private:
  /// While one exists, removed sinks leave an empty entry, so that loops keep their positions.
  class Raising {
   public:
    explicit Raising(EventSinks& sinks) : sinks_(sinks) { ++sinks_.depth_; }
    ~Raising() {
      if (--sinks_.depth_ == 0) std::erase(sinks_.sinks_, nullptr);
    }

   private:
    EventSinks& sinks_;
  };

  std::vector<__nvList*> sinks_;
  int depth_ = 0;
};

}  // namespace norvane
