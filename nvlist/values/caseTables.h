#pragma once

#include <cstdint>
#include <span>

namespace norvane {

/// A range of characters with the same offset to their other case: every `step`th character from
/// `first` to `last`.
struct CaseRow {
  char32_t first;
  char32_t last;
  std::int32_t delta;
  std::uint32_t step;
};

/// Rows in ascending order without overlaps, for characters beyond ASCII.
std::span<const CaseRow> upperCaseTable();
std::span<const CaseRow> foldCaseTable();

/// The character that the table maps to, or the character itself if no row contains it.
char32_t mapCase(std::span<const CaseRow> table, char32_t character);

}  // namespace norvane
