#include <nvlist/scroll/VScrollBar.h>

#include <nvlist/scroll/art.h>
#include <nvlist/values/numbers.h>

namespace norvane {

using scroll::Press;

void VScrollBar::C(std::int32_t value) {
  trapped(here, "C", [&](Trap& on) {
    C_ = value;
    on.step([&] { RedrawScroll(); });
  });
}

void VScrollBar::En(Boolean value) {
  trapped(here, "En", [&](Trap& on) {
    En_ = value;
    on.step([&] { RedrawScroll(); });
  });
}

/// The capture shows the pointer leaving; while a button is down the press has one of its own.
void VScrollBar::MouseOut(float X, float Y) {
  trapped(here, "MouseOut", [&](Trap& on) {
    const bool isOutside = on.test(
        [&] { return X < 0 || Y < 0 || X > surface_.ScaleWidth() || Y > surface_.ScaleHeight(); });
    if (isOutside) {
      if (PressState_ != Press::down) on.step([&] { container_.ReleaseCapture(); });
      MouseInside_ = false;
    } else {
      if (PressState_ != Press::down) on.step([&] { container_.SetCapture(); });
      MouseInside_ = true;
    }
  });
}

void VScrollBar::UserControl_MouseDown(std::int16_t Button, std::int16_t, float X, float Y) {
  trapped(here, "UserControl_MouseDown", [&](Trap& on) {
    PressState_ = Press::down;
    on.step([&] { owner_.VScrollBar1_MouseDown(Button, X, Y); });
    on.step([&] { RedrawScroll(); });
  });
}

void VScrollBar::UserControl_MouseMove(std::int16_t Button, std::int16_t, float X, float Y) {
  trapped(here, "UserControl_MouseMove", [&](Trap& on) {
    on.step([&] { MouseOut(X, Y); });
    on.step([&] { owner_.VScrollBar1_MouseMove(Button, X, Y); });
    if (PressState_ != Press::down) on.step([&] { RedrawScroll(); });
  });
}

void VScrollBar::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(here, "UserControl_MouseUp", [&](Trap& on) {
    PressState_ = Press::none;
    on.step([&] { owner_.VScrollBar1_MouseUp(); });
    on.step([&] { RedrawScroll(); });
  });
}

void VScrollBar::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) { on.step([&] { RedrawScroll(); }); });
}

/// The body's picture: pressed, hovered or normal.
std::int16_t VScrollBar::imageOfState() const {
  const std::int32_t state = PressState_ == Press::down ? 1 : MouseInside_ ? 2 : 3;
  return checked::narrow<std::int16_t>(checked::add(checked::multiply(C_, 6), state));
}

void VScrollBar::RedrawScroll() {
  trapped(here, "RedrawScroll", [&](Trap& on) {
    float W = 0;
    float H = 0;
    const auto picture = [&](int part) {
      return art::thumb(art::Direction::vertical, ThumbImage_ + part);
    };
    on.step([&] {
      W = surface_.ScaleWidth();
      H = surface_.ScaleHeight();
    });
    on.step([&] { ThumbImage_ = imageOfState(); });
    on.step([&] { surface_.Cls(); });
    scroll::setEdgeColors(EdgeColors_, C_);
    // The body is stretched by the outer height, far beyond the thumb: it repeats along it anyway.
    on.step([&] { surface_.PaintPicture(picture(0), 1, 0, W - 2, Height() * twipsPerPixel - 1); });
    on.step([&] { surface_.Line(LineMode::outlineBox, 0, 0, W - 1, H - 2, colours::white); });
    scroll::drawEdges(on, surface_, EdgeColors_, W, H);
    if (H >= scroll::shortestGripped)
      on.step([&] {
        const Picture grip = picture(3);
        surface_.PaintPicture(grip, (W - grip->width()) / 2, (H - grip->height()) / 2);
      });
    if (C_ == cXPScrollSilver) scroll::drawSilverOutline(on, surface_, MouseInside_, W, H);
  });
}

}  // namespace norvane
