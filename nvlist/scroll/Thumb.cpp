#include <nvlist/scroll/Thumb.h>

#include <array>
#include <cstddef>

#include <nvlist/scroll/art.h>
#include <nvlist/values/enumerations.h>
#include <nvlist/values/numbers.h>

namespace norvane::scroll {
namespace {

/// In pixels. A shorter thumb has no grip.
constexpr float shortestGripped = 14;

/// How far the pictures of the grip follow those of the body.
constexpr int gripImages = 3;

}  // namespace

// ---- mouse ----

void Thumb::UserControl_MouseDown(std::int16_t Button, std::int16_t, float X, float Y) {
  trapped(kind_.module, "UserControl_MouseDown", [&](Trap& on) {
    PressState_ = Press::down;
    on.step([&] { owner_.Thumb_MouseDown(Button, X, Y); });
    on.step([&] { RedrawScroll(); });
  });
}

void Thumb::UserControl_MouseMove(std::int16_t Button, std::int16_t, float X, float Y) {
  trapped(kind_.module, "UserControl_MouseMove", [&](Trap& on) {
    on.step([&] { MouseOut(X, Y); });
    on.step([&] { owner_.Thumb_MouseMove(Button, X, Y); });
    if (PressState_ != Press::down) on.step([&] { RedrawScroll(); });
  });
}

void Thumb::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(kind_.module, "UserControl_MouseUp", [&](Trap& on) {
    PressState_ = Press::none;
    on.step([&] { owner_.Thumb_MouseUp(); });
    on.step([&] { RedrawScroll(); });
  });
}

void Thumb::UserControl_Resize() {
  trapped(kind_.module, "UserControl_Resize", [&](Trap& on) { on.step([&] { RedrawScroll(); }); });
}

// ---- painting ----

void Thumb::RedrawScroll() {
  trapped(kind_.module, "RedrawScroll", [&](Trap& on) {
    float W = 0;
    float H = 0;
    on.step([&] {
      W = surface_.ScaleWidth();
      H = surface_.ScaleHeight();
    });
    if (kind_.choosesBeforeClearing) on.step([&] { chooseImage(); });
    on.step([&] { surface_.Cls(); });
    if (kind_.hasCustomStyle && C() == customStyle) {
      on.step([&] { fill(surface_, fill_.of(MouseInside_, PressState_)); });
      return;
    }
    if (!kind_.choosesBeforeClearing) on.step([&] { chooseImage(); });
    chooseEdgeColors();
    paintBody(on, W);
    paintEdges(on, W, H);
    if (along(kind_.axis, W, H) >= shortestGripped) paintGrip(on, W, H);
    if (C() == cXPScrollSilver) paintSilverOutline(on, W, H);
  });
}

/// Chooses the picture of the body: pressed, hovered or normal.
void Thumb::chooseImage() {
  const std::int32_t state = PressState_ == Press::down ? 1 : MouseInside_ ? 2 : 3;
  ThumbImage_ = checked::narrow<std::int16_t>(checked::add(checked::multiply(C(), 6), state));
}

/// Chooses the colours of the edges; a style without pictures leaves them as they are.
void Thumb::chooseEdgeColors() {
  constexpr Colour cutOff = colour(0xEEEDE5);
  constexpr std::array<EdgeColors, 3> ofStyle = {{
      {cutOff, colour(0x7C9FD3), colour(0x9AB5DC)},  // blue
      {cutOff, colour(0x9D9EAC), colour(0x8B8C9A)},  // silver
      {cutOff, colour(0x829061), colour(0x8F9975)},  // olive
  }};
  const auto style = static_cast<std::size_t>(C());
  if (style < ofStyle.size()) EdgeColors_ = ofStyle[style];
}

/// Stretches the picture by the outer height in twips, far beyond the thumb. A vertical thumb looks
/// the same, as its picture repeats along it; of a horizontal one only the first rows show.
void Thumb::paintBody(Trap& on, float W) {
  on.step([&] {
    surface_.PaintPicture(art::thumb(kind_.axis, ThumbImage_), 1, 0, W - 2,
                          Height() * twipsPerPixel - 1);
  });
}

/// The white box, the lower edge and the rounded corners.
void Thumb::paintEdges(Trap& on, float W, float H) {
  on.step([&] {
    surface_.Line(LineMode::outlineBox, 0, 0, W - kind_.boxInset, H - 2, colours::white);
  });
  line(on, 2, H - 1, W - 1, H - 1, EdgeColors_.lower);
  point(on, 0, H - 1, EdgeColors_.corner);
  point(on, 0, H - 2, EdgeColors_.round);
  point(on, 1, H - 1, EdgeColors_.round);
  point(on, W - 1, H - 1, EdgeColors_.corner);
  point(on, W - 1, H - 2, EdgeColors_.round);
}

void Thumb::paintGrip(Trap& on, float W, float H) {
  on.step([&] {
    const Picture grip = art::thumb(kind_.axis, ThumbImage_ + gripImages);
    surface_.PaintPicture(grip, (W - grip->width()) / 2, (H - grip->height()) / 2);
  });
}

void Thumb::paintSilverOutline(Trap& on, float W, float H) {
  if (MouseInside_) {
    constexpr Colour dark = colour(0x5B6665);
    line(on, 0, 1, 0, H - 2, dark);
    line(on, W - 1, 1, W - 1, H - 2, dark);
    line(on, 2, H - 1, W - 1, H - 1, dark);
    line(on, 1, 0, W - 2, 0, dark);
  } else {
    constexpr Colour grey = colour(0x9495A2);
    line(on, 0, 1, 0, H - 2, grey);
    line(on, W - 1, 1, W - 1, H - 2, grey);
    point(on, 1, 0, grey);
    point(on, W - 1, 0, grey);
    line(on, W - 2, 2, W - 2, H - 3, colours::white);
    line(on, 1, 0, W - 2, 0, colour(0xB7B7BF));
  }
  line(on, 1, H - 2, W - 2, H - 2, colour(0xD0D1DF));
}

void Thumb::line(Trap& on, float x1, float y1, float x2, float y2, Colour colour) {
  on.step([&] { surface_.Line(LineMode::plainLine, x1, y1, x2, y2, colour); });
}

void Thumb::point(Trap& on, float x, float y, Colour colour) {
  on.step([&] { surface_.PSet(x, y, colour); });
}

}  // namespace norvane::scroll
