#include <nvlist/nvList.h>

namespace norvane {

/// The pieces are coloured and moved also while they are hidden.
void nvList::DrawBorder() {
  trapped(here, "DrawBorder", [&](Trap& on) {
    const bool isKnownStyle = state_.ColorStyle == cCustom ||
                              (state_.ColorStyle >= cXPBlue && state_.ColorStyle <= cXPOlive);
    for (state_.LoopIndex = 0; state_.LoopIndex < borderPieces; ++state_.LoopIndex) {
      BorderPiece& piece = pBord[static_cast<std::size_t>(state_.LoopIndex)];
      on.step([&] { piece.Visible(state_.BorderVisible); });
      if (isKnownStyle)
        on.step([&] { piece.BackColor(borderColour(state_.ColorStyle, state_.BorderColor)); });
    }
    const auto place = [&](std::size_t piece, float left, float top, float width, float height) {
      on.step([&] { pBord[piece].Move({left, top, width, height}); });
    };
    const float width = surface_.ScaleWidth();
    const float height = surface_.ScaleHeight();
    place(0, 0, 0, width, 1);
    place(1, width - 1, 0, 1, height);
    place(2, 0, height - 1, width, 1);
    place(3, 0, 0, 1, height);
    on.step([&] { CheckScroll(); });
    on.step([&] { Redraw(); });
  });
}

}  // namespace norvane
