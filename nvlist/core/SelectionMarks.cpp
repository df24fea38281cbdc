#include <nvlist/core/SelectionMarks.h>

namespace norvane {

void SelectionMarks::set(ItemStore& items, std::int32_t index, Boolean selected) {
  items.touch(index).Selected = selected;
  if (!selected) return;
  lastSet_ = items.slot(index);
  ++marksSet_;
}

void SelectionMarks::clear(ItemStore& items) {
  if (marksSet_ == 1 && lastSet_) {
    lastSet_->Selected = false;
  } else if (marksSet_ > 1) {
    for (std::int32_t index = 0; index <= items.upperBound(); ++index)
      items.touch(index).Selected = false;
  }
  reset();
}

void SelectionMarks::forgetRemoved() {
  if (lastSet_ && lastSet_->hasOneReference()) lastSet_ = nullptr;
}

void SelectionMarks::reset() {
  marksSet_ = 0;
  lastSet_ = nullptr;
}

}  // namespace norvane
