#include <nvlist/core/numbers.h>
#include <nvlist/nvList.h>
#include <nvlist/render/RepaintValues.h>

namespace norvane {

using checked::nearest;

/// Paints the row at LoopIndex with its top at CurrentY, and leaves CurrentY at the next row's top.
void nvList::paintRow(Trap& on, RepaintValues& repaint) {
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

  // A copy: the surface may let the host in, and the item may go.
  on.step([&] { repaint.text = item(state_.LoopIndex).Text; });
  Rectangle textRect;
  on.step([&] {
    const float textHeight = surface_.TextHeight(repaint.text);
    textRect.Top = nearest<std::int32_t>((height - textHeight) / 2 + surface_.CurrentY());
  });
  on.step([&] { textRect.Left = nearest<std::int32_t>(surface_.CurrentX()); });
  textRect.Right = repaint.ItemRight;
  // Down to the foot of the surface: a text of several lines goes on over the rows below.
  on.step([&] { textRect.Bottom = nearest<std::int32_t>(surface_.ScaleHeight()); });
  on.step([&] {
    surface_.DrawTextA(surface_.hDC(), repaint.text, -1, textRect, TextFormat::expandTabs);
  });
  on.step([&] { surface_.CurrentY(rowTop + height); });
}

}  // namespace norvane
