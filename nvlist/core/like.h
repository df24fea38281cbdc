#pragma once

#include <string_view>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// Whether the text matches the pattern (LikePattern), upper and lower case being different. A
/// malformed pattern is reported and matches nothing.
Boolean LikeCompBinary(std::string_view text, std::string_view pattern);

/// The same, upper and lower case being equal.
Boolean LikeCompText(std::string_view text, std::string_view pattern);

}  // namespace norvane
