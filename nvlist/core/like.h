#pragma once

#include <string_view>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// Returns whether the text matches the pattern (LikePattern), case-sensitively. A malformed
/// pattern is reported and matches nothing.
Boolean LikeCompBinary(std::string_view text, std::string_view pattern);

/// The same, ignoring case.
Boolean LikeCompText(std::string_view text, std::string_view pattern);

}  // namespace norvane
