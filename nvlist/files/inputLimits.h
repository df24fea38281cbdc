#pragma once

#include <algorithm>
#include <cstdint>

#include <nvlist/core/ListItem.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// Items of which a file may hold so many, however short it is.
inline constexpr std::uint64_t alwaysBelieved = 4096;

/// The number of items that a file says it holds. Throws Failure 9 where it is less than one, and 7
/// where the `left` bytes, of which an item takes at least `smallest`, cannot hold so many; an item
/// may also take none.
inline std::size_t believedCount(std::int64_t claimed, std::uint64_t left, std::uint64_t smallest) {
  if (claimed < 1) throw Failure::subscriptOutOfRange();
  const auto count = static_cast<std::uint64_t>(claimed);
  const std::uint64_t most = smallest == 0 ? 0 : left / smallest;
  if (count > std::max(most, alwaysBelieved)) throw Failure::outOfMemory();
  return static_cast<std::size_t>(count);
}

/// What an item has where a file has nothing to say of it.
inline void setDefaults(ListItem& item) {
  static const Variant mark = defaultMark;
  item.AllowEdit = false;
  item.BackColor = mark;
  item.BackColorDis = colours::light3D;
  item.BackColorSelect = mark;
  item.Checked = false;
  item.Enabled = true;
  item.ForeColor = mark;
  item.ForeColorDis = colours::greyText;
  item.ForeColorSelect = mark;
  item.Alignment = cLeft;
  item.Icon = nullptr;
  item.IconSelected = nullptr;
}

}  // namespace norvane
