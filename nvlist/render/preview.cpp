#include <nvlist/nvList.h>
#include <nvlist/render/art.h>

namespace norvane {

/// Paints what the list shows in a designer: one sample row with the name of the control. The
/// pictures have a fixed margin; the name is indented by IndentLeft.
void nvList::paintPreview(Trap& on) {
  constexpr float margin = 3;
  constexpr float iconSize = 16;

  on.step([&] { surface_.Cls(); });
  const auto centred = [&](float height) {
    return (surface_.TextHeight("A") - height) / 2 + margin;
  };
  float nameLeft = state_.IndentLeft;
  float iconLeft = margin;
  if (hasCheckBox(state_.Style)) {
    Picture box;
    on.step([&] { box = art::checkBox(false, true); });
    const float width = box ? box->width() : 0;
    const float height = box ? box->height() : 0;
    on.step([&] { surface_.PaintPicture(box, margin, centred(height)); });
    nameLeft += hasIcon(state_.Style) ? width + margin : width + state_.DistPicText;
    iconLeft += width + margin;
  }
  if (hasIcon(state_.Style)) {
    on.step([&] {
      surface_.PaintPicture(art::sampleIcon(), iconLeft, centred(iconSize), iconSize, iconSize);
    });
    nameLeft += iconSize + state_.DistPicText;
  }
  on.step([&] { surface_.CurrentX(nameLeft); });
  on.step([&] { surface_.CurrentY(state_.IndentTop); });
  on.ignoring([&] { surface_.Print(container_.Name()); });
}

}  // namespace norvane
