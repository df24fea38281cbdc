#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace norvane {

/// The places of the texts that were seen before, in order.
///
/// A text counts as seen if it, with a comma behind it, occurs in the texts kept so far, written
/// one behind the other with a comma behind each; otherwise it is kept. So "bc" is repeated behind
/// "abc", "b,c" behind "b" and "c" kept side by side, and the empty text behind anything.
std::vector<std::int32_t> repeatedTexts(std::span<const std::string_view> texts);

}  // namespace norvane
