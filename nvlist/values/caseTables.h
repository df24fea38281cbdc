#pragma once

#include <cstdint>
#include <span>

namespace norvane {

/// Characters that change their case by the same distance: from `first` to `last`, each `step`th.
struct CaseRow {
  char32_t first;
  char32_t last;
  std::int32_t delta;
  std::uint32_t step;
};

/// The rows in order of their characters, none overlapping another. Beyond ASCII only.
std::span<const CaseRow> upperCaseTable();
std::span<const CaseRow> foldCaseTable();

/// The character as the table maps it; itself where no row holds it.
char32_t mapCase(std::span<const CaseRow> table, char32_t character);

}  // namespace norvane
