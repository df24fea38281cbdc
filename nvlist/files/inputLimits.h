#pragma once

#include <algorithm>
#include <cstdint>

#include <nvlist/core/ListItem.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// This many items are accepted, however short the file is.
inline constexpr std::uint64_t alwaysBelieved = 4096;

/// Checks the number of items that a file claims against the `left` bytes of the rest of the file,
/// where an item takes at least `smallest` bytes, possibly 0. Throws Failure 9 if the number is
/// less than 1, and 7 if the file is too short for it.
inline std::size_t believedCount(std::int64_t claimed, std::uint64_t left, std::uint64_t smallest) {
  if (claimed < 1) throw Failure::subscriptOutOfRange();
  const auto count = static_cast<std::uint64_t>(claimed);
  const std::uint64_t most = smallest == 0 ? 0 : left / smallest;
  if (count > std::max(most, alwaysBelieved)) throw Failure::outOfMemory();
  return static_cast<std::size_t>(count);
}

/// Sets the properties of an item that a file does not hold to their defaults.
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
