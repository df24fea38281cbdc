#include <nvlist/nvList.h>

namespace norvane {

// The bars are not shown yet: there is no extent to measure for them and nothing to fit. The calls
// stand where the fit will need them.

void nvList::CheckItemWidth() {}

void nvList::CheckItemWidth(Variant) {}

void nvList::CheckScroll() {}

}  // namespace norvane
