#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <nvlist/core/Boolean.h>
#include <nvlist/core/Variant.h>

namespace norvane {

/// The events of the list. A host derives from it, overrides what it wants to hear, and registers
/// the object with nvList::addSink. Each handler runs in the middle of the operation that raises
/// it and may do anything to the list; what it throws is a failure of that step.
///
/// All arguments are by reference, as hosts bind them; those that are read back are told.
class __nvList {  // NOLINT(bugprone-reserved-identifier): the published name of the interface
 public:
  virtual ~__nvList() = default;

  virtual void Click() {}
  virtual void DblClick() {}
  /// Before a check mark flips; `Cancel` is read back.
  virtual void ItemCheck(std::int32_t& Item, Boolean& Cancel) { (void)Item, (void)Cancel; }
  /// A list file could not be loaded, or not whole.
  virtual void ErrorListInput() {}
  /// A list could not be saved, or not whole.
  virtual void ErrorListSave() {}
  /// Each time an item has been saved, or read from a property store image. `Index` is the position
  /// of the loop, which goes on behind what is read back of it.
  virtual void ListSaving(Variant& Index) { (void)Index; }
  virtual void ListReading(Variant& Index) { (void)Index; }
  /// ListIndex has refused a value, which stays as it was.
  virtual void ErrorWrongIndex(Variant& Index) { (void)Index; }
};

/// The hosts that listen. They may come and go while an event is being raised: one that leaves
/// hears nothing any more, one that comes hears the next event.
class EventSinks {
 public:
  /// The sink has to live until it is removed. Adding it twice changes nothing.
  void add(__nvList& sink);
  /// Removing one that is not there changes nothing.
  void remove(__nvList& sink);

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
