#pragma once

#include <cstdint>
#include <string>

#include <nvlist/nvList.h>

namespace norvane {

/// Values that a repaint computes once, before its first row. Lengths are in pixels.
struct nvList::RepaintValues {
  std::int32_t ItemRight = 0;     ///< right end of the text area
  std::int32_t ItemLeft = 0;      ///< where the content of a row starts, minus the scroll position
  std::int32_t ScrollOffset = 0;  ///< the horizontal scroll position
  std::string text;  ///< of the row being painted; a member so that its memory is reused
};

}  // namespace norvane
