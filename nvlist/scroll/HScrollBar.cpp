#include <nvlist/scroll/HScrollBar.h>

#include <nvlist/scroll/art.h>
#include <nvlist/values/numbers.h>

namespace norvane {

using scroll::Press;

template <class Value>
void HScrollBar::assign(const char* name, Value& field, const Value& value) {
  trapped(here, name, [&](Trap& on) {
    field = value;
    on.step([&] { RedrawScroll(); });
  });
}

void HScrollBar::C(std::int32_t value) { assign("C", C_, value); }
void HScrollBar::En(Boolean value) { assign("En", En_, value); }
void HScrollBar::Bar(Colour value) { assign("Bar", Bar_, value); }
void HScrollBar::BarDown(Colour value) { assign("BarDown", BarDown_, value); }
void HScrollBar::BarHover(Colour value) { assign("BarHover", BarHover_, value); }

/// The capture shows the pointer leaving; while a button is down the press has one of its own.
void HScrollBar::MouseOut(float X, float Y) {
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

void HScrollBar::UserControl_MouseDown(std::int16_t Button, std::int16_t, float X, float Y) {
  trapped(here, "UserControl_MouseDown", [&](Trap& on) {
    PressState_ = Press::down;
    on.step([&] { owner_.HScrollBar1_MouseDown(Button, X, Y); });
    on.step([&] { RedrawScroll(); });
  });
}

void HScrollBar::UserControl_MouseMove(std::int16_t Button, std::int16_t, float X, float Y) {
  trapped(here, "UserControl_MouseMove", [&](Trap& on) {
    on.step([&] { MouseOut(X, Y); });
    on.step([&] { owner_.HScrollBar1_MouseMove(Button, X, Y); });
    if (PressState_ != Press::down) on.step([&] { RedrawScroll(); });
  });
}

void HScrollBar::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(here, "UserControl_MouseUp", [&](Trap& on) {
    PressState_ = Press::none;
    on.step([&] { owner_.HScrollBar1_MouseUp(); });
    on.step([&] { RedrawScroll(); });
  });
}

void HScrollBar::UserControl_Resize() {
  trapped(here, "UserControl_Resize", [&](Trap& on) { on.step([&] { RedrawScroll(); }); });
}

/// The body's picture: pressed, hovered or normal.
std::int16_t HScrollBar::imageOfState() const {
  const std::int32_t state = PressState_ == Press::down ? 1 : MouseInside_ ? 2 : 3;
  return checked::narrow<std::int16_t>(checked::add(checked::multiply(C_, 6), state));
}

Colour HScrollBar::customColour() const {
  if (!MouseInside_) return Bar_;
  return PressState_ == Press::down ? BarDown_ : BarHover_;
}

void HScrollBar::RedrawScroll() {
  trapped(here, "RedrawScroll", [&](Trap& on) {
    float W = 0;
    float H = 0;
    const auto picture = [&](int part) {
      return art::thumb(art::Direction::horizontal, ThumbImage_ + part);
    };
    on.step([&] {
      W = surface_.ScaleWidth();
      H = surface_.ScaleHeight();
    });
    on.step([&] { surface_.Cls(); });
    if (C_ == scroll::customStyle) {
      on.step([&] { scroll::fill(surface_, customColour()); });
      return;
    }
    on.step([&] { ThumbImage_ = imageOfState(); });
    scroll::setEdgeColors(EdgeColors_, C_);
    // Stretched by the outer height, far beyond the thumb: its first rows are all that shows.
    on.step([&] { surface_.PaintPicture(picture(0), 1, 0, W - 2, Height() * twipsPerPixel - 1); });
    on.step([&] { surface_.Line(LineMode::outlineBox, 0, 0, W - 2, H - 2, colours::white); });
    scroll::drawEdges(on, surface_, EdgeColors_, W, H);
    if (W >= scroll::shortestGripped)
      on.step([&] {
        const Picture grip = picture(3);
        surface_.PaintPicture(grip, (W - grip->width()) / 2, (H - grip->height()) / 2);
      });
    if (C_ == cXPScrollSilver) scroll::drawSilverOutline(on, surface_, MouseInside_, W, H);
  });
}

}  // namespace norvane
