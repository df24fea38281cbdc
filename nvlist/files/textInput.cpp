#include <nvlist/files/fileExists.h>
#include <nvlist/nvList.h>
#include <nvlist/objects/SpEv.h>
#include <nvlist/values/numbers.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace norvane {
namespace {

/// Finds the pieces of a text, of which there is at least one. An empty delimiter does not split
/// it. Keeps no list of the pieces, which could take more memory than the text.
class Pieces {
 public:
  Pieces(std::string_view text, std::string delimiter)
      : text_(text), delimiter_(std::move(delimiter)) {}

  /// The piece at an index, or nothing after the last one. Throws Failure 9 for a negative index.
  /// Fast if called with ascending indexes.
  std::optional<std::string_view> find(std::int32_t index);

 private:
  static constexpr std::size_t none = std::string_view::npos;

  std::string_view text_;
  std::string delimiter_;
  std::int32_t next_ = 0;  ///< the index of the piece at `at_`
  std::size_t at_ = 0;     ///< none: all pieces have been found
};

std::optional<std::string_view> Pieces::find(std::int32_t index) {
  if (index < 0) throw Failure::subscriptOutOfRange();
  if (index < next_) next_ = 0, at_ = 0;
  while (at_ != none) {
    const std::size_t end = delimiter_.empty() ? none : text_.find(delimiter_, at_);
    const std::string_view piece = text_.substr(at_, end == none ? none : end - at_);
    at_ = end == none ? none : end + delimiter_.size();
    if (next_++ == index) return piece;
  }
  return std::nullopt;
}

}  // namespace

std::int32_t nvList::ListInput2(const std::string& Filename, const Variant& Delimiter) {
  trapped(here, "ListInput2", [&](Trap& on) {
    if (!FileExists(Filename)) {
      raise(on, &__nvList::ErrorListInput);
      return;
    }
    std::string text = SpEv().TextRead(Filename);
    std::optional<Pieces> pieces;
    on.step([&] { pieces.emplace(text, Delimiter.toText()); });
    // Both flags stay off after the call; hosts turn them on again.
    state_.AutoCheckScroll = false;
    state_.AutoRedraw = false;
    const bool isWhole = orRaise(on, &__nvList::ErrorListInput, [&] {
      if (!pieces) throw Failure::subscriptOutOfRange();
      state_.LoopIndex = 0;
      while (const auto piece = pieces->find(state_.LoopIndex)) {
        addItem({}, *piece);
        state_.LoopIndex = checked::add(state_.LoopIndex, 1);
      }
    });
    if (!isWhole) return;
    // Measuring and painting long texts takes memory too.
    text = std::string();
    on.step([&] { CheckScroll(); });
    on.step([&] { Redraw(); });
  });
  return 0;
}

}  // namespace norvane
