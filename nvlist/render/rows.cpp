#include <nvlist/core/numbers.h>
#include <nvlist/nvList.h>
#include <nvlist/render/RepaintValues.h>

namespace norvane {

using checked::nearest;

/// Paints the row at LoopIndex with its top at CurrentY, and leaves CurrentY at the next row's top.
void nvList::paintRow(Trap& on, const RepaintValues& repaint) {
  const float height = state_.ItemHeightValue;
  float rowTop = 0;
  on.step([&] { rowTop = surface_.CurrentY(); });
  on.step([&] {
    surface_.Line(LineMode::filledBox, 0, rowTop, surface_.ScaleWidth(), rowTop + height,
                  state_.BackColor);
  });
  on.step([&] { surface_.CurrentY(rowTop); });
  on.step([&] { surface_.CurrentX(static_cast<float>(repaint.ItemLeft)); });
  on.step([&] { surface_.ForeColor(state_.ForeColor); });
  on.step([&] {
    const std::string& text = item(state_.LoopIndex).Text;
    const float textTop = (height - surface_.TextHeight(text)) / 2 + surface_.CurrentY();
    // Down to the foot of the surface: a text of several lines goes on over the rows below.
    const Rectangle textRect{nearest<std::int32_t>(surface_.CurrentX()),
                             nearest<std::int32_t>(textTop), repaint.ItemRight,
                             nearest<std::int32_t>(surface_.ScaleHeight())};
    surface_.DrawTextA(surface_.hDC(), text, -1, textRect, TextFormat::expandTabs);
  });
  on.step([&] { surface_.CurrentY(rowTop + height); });
}

}  // namespace norvane
