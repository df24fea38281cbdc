#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include <nvlist/values/enumerations.h>

namespace norvane {

/// Returns the order in which a partition sort leaves the texts: for each position, the original
/// index of the text that ends there. Texts are compared byte by byte; cDescending puts the
/// greatest first.
///
/// Equal texts do not keep their relative order, but their order is defined by this scheme: the
/// pivot of a range is the text in its middle; a middle between two positions is rounded to the
/// even one. A scan from the left stops at a text that does not come before the pivot, a scan from
/// the right at one that does not come after it; the two are swapped, until the scans have passed
/// each other. The texts on either side of the meeting point are sorted in the same way.
std::vector<std::int32_t> partitionOrder(std::span<const std::string_view> texts, cSortMode mode);

}  // namespace norvane
