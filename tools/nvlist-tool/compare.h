#pragma once

#include <cstdint>
#include <functional>
#include <span>

namespace tool {

/// A part of two sequences: the elements from `a` to `aEnd` of the first were replaced by those
/// from `b` to `bEnd` of the second. One of the two may be empty.
struct Change {
  std::size_t a, aEnd, b, bEnd;
};

/// Calls `take` with each part in which two sequences differ, in order. Elements that occur once in
/// both sequences keep their neighbours together. Takes time proportional to n log n at worst; the
/// parts are not always the shortest.
void compare(std::span<const std::uint64_t> first, std::span<const std::uint64_t> second,
             const std::function<void(const Change&)>& take);

}  // namespace tool
