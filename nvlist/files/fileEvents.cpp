#include <nvlist/nvList.h>

#include <algorithm>
#include <limits>

#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

using Limits = std::numeric_limits<std::int32_t>;

/// A position set by a host, clamped to 32 bits. No item is at the limits either.
std::int32_t positionOf(const Variant& index) {
  return checked::nearest<std::int32_t>(
      std::clamp<double>(index.toNumber(), Limits::min(), Limits::max()));
}

}  // namespace

void nvList::raise(Trap& on, void (__nvList::*event)()) {
  on.step([&] { sinks_.raise([&](__nvList& sink) { (sink.*event)(); }); });
}

void nvList::raiseAtLoopIndex(void (__nvList::*event)(Variant& Index)) {
  // Runs once per item; skipping it without hosts matters for large lists.
  if (sinks_.isEmpty()) return;
  Variant index = state_.LoopIndex;
  const Variant given = index;
  sinks_.raise([&](__nvList& sink) { (sink.*event)(index); });
  // If no handler changed the argument, LoopIndex keeps the value that loops run by the handlers
  // left.
  if (!index.isIdentical(given)) state_.LoopIndex = positionOf(index);
}

void nvList::toNextItem() {
  if (state_.LoopIndex < Limits::max()) ++state_.LoopIndex;
}

}  // namespace norvane
