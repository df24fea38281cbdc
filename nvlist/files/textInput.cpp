#include <nvlist/files/fileExists.h>
#include <nvlist/nvList.h>
#include <nvlist/objects/SpEv.h>
#include <nvlist/values/numbers.h>

#include <vector>

namespace norvane {
namespace {

/// Splits the text into at least one piece. An empty delimiter does not split it.
std::vector<std::string_view> split(std::string_view text, std::string_view delimiter) {
  std::vector<std::string_view> pieces;
  while (!delimiter.empty()) {
    const std::size_t end = text.find(delimiter);
    if (end == std::string_view::npos) break;
    pieces.push_back(text.substr(0, end));
    text.remove_prefix(end + delimiter.size());
  }
  pieces.push_back(text);
  return pieces;
}

}  // namespace

std::int32_t nvList::ListInput2(const std::string& Filename, const Variant& Delimiter) {
  trapped(here, "ListInput2", [&](Trap& on) {
    if (!FileExists(Filename)) {
      raise(on, &__nvList::ErrorListInput);
      return;
    }
    std::string text = SpEv().TextRead(Filename);
    std::vector<std::string_view> pieces;
    on.step([&] { pieces = split(text, Delimiter.toText()); });
    // Both flags stay off after the call; hosts turn them on again.
    state_.AutoCheckScroll = false;
    state_.AutoRedraw = false;
    const bool isWhole = orRaise(on, &__nvList::ErrorListInput, [&] {
      if (pieces.empty()) throw Failure::subscriptOutOfRange();
      const auto count = static_cast<std::int32_t>(pieces.size());
      for (state_.LoopIndex = 0; state_.LoopIndex < count;
           state_.LoopIndex = checked::add(state_.LoopIndex, 1))
        ItemsAdd(pieces.at(static_cast<std::size_t>(state_.LoopIndex)));
    });
    if (!isWhole) return;
    // Measuring and painting long texts takes memory too.
    pieces.clear();
    text = std::string();
    on.step([&] { CheckScroll(); });
    on.step([&] { Redraw(); });
  });
  return 0;
}

}  // namespace norvane
