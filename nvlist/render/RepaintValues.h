#pragma once

#include <cstdint>
#include <string>

#include <nvlist/nvList.h>

namespace norvane {

/// What one repaint works out before its first row and uses for all of them, in pixels.
struct nvList::RepaintValues {
  std::int32_t ItemRight = 0;     ///< right end of the text area
  std::int32_t ItemLeft = 0;      ///< where the content of a row starts, scroll position taken off
  std::int32_t ScrollOffset = 0;  ///< the horizontal scroll position
  std::string text;               ///< of the row being painted; its room is used again
};

}  // namespace norvane
