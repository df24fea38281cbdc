#include <nvlist/nvList.h>

namespace norvane {

/// The pieces get their colour and position even while they are hidden.
void nvList::DrawBorder() {
  trapped(here, "DrawBorder", [&](Trap& on) {
    for (state_.LoopIndex = 0; state_.LoopIndex < borderPieces; ++state_.LoopIndex) {
      // Evaluated again for each step, because host code run by the platform may change LoopIndex.
      const auto piece = [&]() -> BorderPiece& {
        return pBord.at(static_cast<std::size_t>(state_.LoopIndex));
      };
      on.step([&] { piece().Visible(state_.BorderVisible); });
      if (const auto colour = borderColour(state_.ColorStyle, state_.BorderColor))
        on.step([&] { piece().BackColor(*colour); });
    }
    const auto width = [&] { return surface_.ScaleWidth(); };
    const auto height = [&] { return surface_.ScaleHeight(); };
    on.step([&] { pBord[0].Move({0, 0, width(), 1}); });
    on.step([&] { pBord[1].Move({width() - 1, 0, 1, height()}); });
    on.step([&] { pBord[2].Move({0, height() - 1, width(), 1}); });
    on.step([&] { pBord[3].Move({0, 0, 1, height()}); });
    on.step([&] { CheckScroll(); });
    on.step([&] { Redraw(); });
  });
}

}  // namespace norvane
