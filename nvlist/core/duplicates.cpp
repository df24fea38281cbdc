#include <nvlist/core/repeatedTexts.h>
#include <nvlist/nvList.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

#include <string>
#include <vector>

namespace norvane {

void nvList::ItemsRemoveDouble(Boolean IgnoreLetterSize) {
  trapped(here, "ItemsRemoveDouble", [&](Trap& on) {
    if (!state_.ItemsDimensioned) return;
    const Boolean autoRedraw = state_.AutoRedraw;
    const Boolean autoCheckScroll = state_.AutoCheckScroll;
    state_.AutoRedraw = false;
    state_.AutoCheckScroll = false;

    std::vector<std::int32_t> doomed;
    on.step([&] {
      std::vector<std::string> upperCased;
      std::vector<std::string_view> texts;
      const auto count = static_cast<std::size_t>(ItemsCount());
      texts.reserve(count);
      if (IgnoreLetterSize) upperCased.reserve(count);
      for (state_.LoopIndex2 = 0; state_.LoopIndex2 <= state_.Items.upperBound();
           ++state_.LoopIndex2) {
        const std::string_view text = item(state_.LoopIndex2).Text();
        texts.push_back(IgnoreLetterSize ? upperCased.emplace_back(upperCase(text)) : text);
      }
      doomed = repeatedTexts(texts);
    });

    // From the end, so that the remaining indexes stay valid.
    if (!doomed.empty()) {
      for (state_.LoopIndex2 = static_cast<std::int32_t>(doomed.size()) - 1; state_.LoopIndex2 >= 0;
           --state_.LoopIndex2) {
        on.step([&] {
          const auto place = static_cast<std::size_t>(state_.LoopIndex2);
          if (place >= doomed.size()) throw Failure::subscriptOutOfRange();
          const std::int32_t index = doomed[place];
          ItemsRemove(Variant(checked::narrow<std::int16_t>(index)));
        });
      }
    }

    state_.AutoRedraw = autoRedraw;
    state_.AutoCheckScroll = autoCheckScroll;
    updateAfterChange(on);
  });
}

}  // namespace norvane
