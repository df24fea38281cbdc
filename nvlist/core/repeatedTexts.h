#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace norvane {

/// Returns the indexes of the texts that repeat earlier ones, in ascending order.
///
/// A text counts as repeated if, followed by a comma, it occurs in the texts kept so far, joined
/// with a comma after each; otherwise it is kept. So "bc" is repeated after "abc", "b,c" after "b"
/// and "c" kept in succession, and the empty text after any text.
std::vector<std::int32_t> repeatedTexts(std::span<const std::string_view> texts);

}  // namespace norvane
