#include <optional>

#include <nvlist/nvList.h>
#include <nvlist/values/LikePattern.h>

namespace norvane {

std::int32_t nvList::IndexByKey(const Variant& sKey) {
  std::int32_t found = -1;
  trapped(here, "IndexByKey", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    if (sKey.isText()) {
      const std::string_view key = sKey.text();
      on.step([&] { found = stoppedAt(state_.Items.findKey(key)); });
      return;
    }
    for (state_.LoopIndex = 0; state_.LoopIndex <= state_.Items.upperBound(); ++state_.LoopIndex) {
      if (on.test([&] { return compareText(item(state_.LoopIndex).Key(), sKey) == 0; })) {
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
    // Both patterns are compiled, whichever comparison is requested.
    std::optional<LikePattern> binary, text;
    on.step([&] { binary.emplace(sText, false); });
    on.step([&] { text.emplace(sText, true); });
    const auto& counted = oCompare == cFindText ? text : binary;
    const bool canMatch = counted && (oCompare == cFindBinary || oCompare == cFindText);
    const LikePattern* const pattern = canMatch ? &*counted : nullptr;
    const std::string_view literal = pattern ? pattern->literal() : std::string_view();
    ItemStore& items = state_.Items;
    on.step([&] {
      found = stoppedAt(!literal.empty() ? items.findText(literal)
                                         : items.find([pattern](const StoredItem& item) {
                                             return pattern && pattern->matches(item.Text());
                                           }));
    });
  });
  return found;
}

}  // namespace norvane
