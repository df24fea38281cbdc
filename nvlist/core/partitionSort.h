#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include <nvlist/values/enumerations.h>

namespace norvane {

/// The order in which a partition sort leaves the texts: for each place, where the text that ends
/// up there stood before. Texts are compared byte by byte; cDescending puts the greatest first.
///
/// Equal texts do not keep their order, but always end in the same one. It is that of this scheme:
/// a range takes as pivot the text in its middle, with halves to the even place. A scan from the
/// left stops at a text that does not come before the pivot, one from the right at one that does
/// not come behind it; the two change places, until the scans have passed each other. What lies
/// left of where they stop is sorted in the same way, and what lies right of it.
std::vector<std::int32_t> partitionOrder(std::span<const std::string_view> texts, cSortMode mode);

}  // namespace norvane
