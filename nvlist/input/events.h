#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The events of the list. A host derives from it, overrides what it wants to hear, and registers
/// the object with nvList::addSink. Each handler runs in the middle of the operation that raises
/// it and may do anything to the list; what it throws is a failure of that step.
///
/// All arguments are by reference, as hosts bind them; those that are read back are told. Positions
/// are pixels of the list; `Button` and `Shift` are as told at UserControl::UserControl_MouseDown.
class __nvList {  // NOLINT(bugprone-reserved-identifier): the published name of the interface
 public:
  virtual ~__nvList() = default;

  /// 1
  virtual void Click() {}
  /// 2
  virtual void DblClick() {}
  /// 3: before a check mark flips; `Item` is the current item. `Cancel` is read back: true keeps
  /// the mark.
  virtual void ItemCheck(std::int32_t& Item, Boolean& Cancel);
  /// 4
  virtual void MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
  /// 5: `IndexUnderMouse` may name no item; `TextUnderMouse` is empty then.
  virtual void MouseMove(Variant& TextUnderMouse, std::int32_t& IndexUnderMouse,
                         std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
  /// 6: the first thing in a press. `Button` is read back: 2 makes it a right press.
  virtual void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y);
  /// 7: a list file could not be loaded.
  virtual void ErrorListInput() {}
  /// 8: a list file could not be saved.
  virtual void ErrorListSave() {}
  /// 9, 10: for each item while a list is saved or loaded. `Index` is read back.
  virtual void ListSaving(Variant& Index);
  virtual void ListReading(Variant& Index);
  /// 11: a bar or the wheel has scrolled the list.
  virtual void Scroll() {}
  /// 12: before the key is handled. `KeyCode` is read back: 0 swallows the key.
  virtual void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
  /// 13
  virtual void KeyPress(std::int16_t& KeyAscii);
  /// 14
  virtual void KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);

  // 15 to 20 can be bound; the list never raises them.
  virtual void OLECompleteDrag(std::int32_t& Effect);
  virtual void OLEDragDrop(Ref<Object>& Data, std::int32_t& Effect, std::int16_t& Button,
                           std::int16_t& Shift, float& X, float& Y);
  virtual void OLEDragOver(Ref<Object>& Data, std::int32_t& Effect, std::int16_t& Button,
                           std::int16_t& Shift, float& X, float& Y, std::int16_t& State);
  virtual void OLEGiveFeedback(std::int32_t& Effect, Boolean& DefaultCursors);
  virtual void OLESetData(Ref<Object>& Data, std::int16_t& DataFormat);
  virtual void OLEStartDrag(Ref<Object>& Data, std::int32_t& AllowedEffects);

  /// 21: ListIndex has refused a value, and stays as it was.
  virtual void ErrorWrongIndex(Variant& Index);
};

/// The hosts that listen. They may come and go while an event is being raised: one that leaves
/// hears nothing any more, one that comes hears the next event.
class EventSinks {
 public:
  /// The sink has to live until it is removed. Adding it twice changes nothing.
  void add(__nvList& sink);
  /// Removing one that is not there changes nothing.
  void remove(__nvList& sink);
  void removeAll();
  bool isEmpty() const { return sinks_.empty(); }

  template <class Event>
  void raise(Event&& event) {
    const Raising raising(*this);
    const std::size_t count = sinks_.size();
    for (std::size_t i = 0; i < count; ++i)
      if (sinks_[i]) event(*sinks_[i]);
  }

 private:
  /// While one stands, places are emptied and not taken away.
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
