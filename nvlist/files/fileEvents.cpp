#include <nvlist/nvList.h>

namespace norvane {

void nvList::raise(Trap& on, void (__nvList::*event)()) {
  on.step([&] { sinks_.raise([&](__nvList& sink) { (sink.*event)(); }); });
}

void nvList::raiseAtLoopIndex(void (__nvList::*event)(Variant& Index)) {
  Variant index = state_.LoopIndex;
  const Variant told = index;
  sinks_.raise([&](__nvList& sink) { (sink.*event)(index); });
  // Where the host leaves the argument alone, another loop that it ran may have moved this one.
  const bool isUntouched = index.type() == told.type() && index.toInt32() == told.toInt32();
  if (!isUntouched) state_.LoopIndex = index.toInt32();
}

}  // namespace norvane
