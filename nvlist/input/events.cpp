#include <nvlist/input/events.h>

#include <algorithm>

namespace norvane {

void __nvList::ItemCheck(std::int32_t&, Boolean&) {}
void __nvList::MouseUp(std::int16_t&, std::int16_t&, float&, float&) {}
void __nvList::MouseMove(Variant&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&) {}
void __nvList::MouseDown(std::int16_t&, std::int16_t&, float&, float&) {}
void __nvList::ListSaving(Variant&) {}
void __nvList::ListReading(Variant&) {}
void __nvList::KeyDown(std::int16_t&, std::int16_t&) {}
void __nvList::KeyPress(std::int16_t&) {}
void __nvList::KeyUp(std::int16_t&, std::int16_t&) {}
void __nvList::OLECompleteDrag(std::int32_t&) {}
void __nvList::OLEDragDrop(Ref<Object>&, std::int32_t&, std::int16_t&, std::int16_t&, float&,
                           float&) {}
void __nvList::OLEDragOver(Ref<Object>&, std::int32_t&, std::int16_t&, std::int16_t&, float&,
                           float&, std::int16_t&) {}
void __nvList::OLEGiveFeedback(std::int32_t&, Boolean&) {}
void __nvList::OLESetData(Ref<Object>&, std::int16_t&) {}
void __nvList::OLEStartDrag(Ref<Object>&, std::int32_t&) {}
void __nvList::ErrorWrongIndex(Variant&) {}

void EventSinks::add(__nvList& sink) {
  if (std::find(sinks_.begin(), sinks_.end(), &sink) == sinks_.end()) sinks_.push_back(&sink);
}

void EventSinks::remove(__nvList& sink) {
  std::replace(sinks_.begin(), sinks_.end(), &sink, static_cast<__nvList*>(nullptr));
  if (depth_ == 0) std::erase(sinks_, nullptr);
}

void EventSinks::removeAll() {
  std::ranges::fill(sinks_, nullptr);
  if (depth_ == 0) sinks_.clear();
}

}  // namespace norvane
