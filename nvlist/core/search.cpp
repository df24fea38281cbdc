#include <nvlist/core/like.h>
#include <nvlist/nvList.h>

#include <optional>

namespace norvane {

std::int32_t nvList::IndexByKey(const Variant& sKey) {
  std::int32_t found = -1;
  trapped(here, "IndexByKey", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    if (sKey.isText()) {
      const std::string_view key = sKey.text();
      on.step([&] { found = firstItem([&](const ListItem& item) { return item.Key == key; }); });
      return;
    }
    for (state_.LoopIndex = 0; state_.LoopIndex <= state_.Items.upperBound(); ++state_.LoopIndex) {
      if (on.test([&] { return compareText(item(state_.LoopIndex).Key, sKey) == 0; })) {
        found = state_.LoopIndex;
        return;
      }
    }
  });
  return found;
}

std::int32_t nvList::IsInList(std::string_view sText, cFindCompare oCompare) {
  std::int32_t found = -1;
  trapped(here, "IsInList", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    state_.LoopIndex = 0;
    std::optional<LikePattern> pattern;
    on.step([&] { pattern.emplace(sText, oCompare == cFindText); });
    const bool canMatch = pattern && (oCompare == cFindBinary || oCompare == cFindText);
    on.step([&] {
      found =
          firstItem([&](const ListItem& item) { return canMatch && pattern->matches(item.Text); });
    });
  });
  return found;
}

}  // namespace norvane
