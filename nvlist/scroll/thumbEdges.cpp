#include <nvlist/scroll/thumbEdges.h>

#include <array>
#include <cstddef>

#include <nvlist/scroll/values.h>

namespace norvane::scroll {
namespace {

constexpr Colour cutOff = colour(0xEEEDE5);

constexpr std::array<EdgeColors, 3> edgeColors = {{
    {cutOff, colour(0x7C9FD3), colour(0x9AB5DC)},  // blue
    {cutOff, colour(0x9D9EAC), colour(0x8B8C9A)},  // silver
    {cutOff, colour(0x829061), colour(0x8F9975)},  // olive
}};

/// Draws for a procedure, each call as a step of it.
class Pen {
 public:
  Pen(Trap& on, Surface& surface) : on_(on), surface_(surface) {}

  void line(float x1, float y1, float x2, float y2, Colour colour) {
    on_.step([&] { surface_.Line(LineMode::plainLine, x1, y1, x2, y2, colour); });
  }
  void point(float x, float y, Colour colour) {
    on_.step([&] { surface_.PSet(x, y, colour); });
  }

 private:
  Trap& on_;
  Surface& surface_;
};

}  // namespace

void setEdgeColors(EdgeColors& colors, std::int32_t style) {
  const auto index = static_cast<std::size_t>(style);
  if (index < edgeColors.size()) colors = edgeColors[index];
}

void drawEdges(Trap& on, Surface& surface, const EdgeColors& colors, float W, float H) {
  Pen pen(on, surface);
  pen.line(2, H - 1, W - 1, H - 1, colors.lower);
  pen.point(0, H - 1, colors.corner);
  pen.point(0, H - 2, colors.round);
  pen.point(1, H - 1, colors.round);
  pen.point(W - 1, H - 1, colors.corner);
  pen.point(W - 1, H - 2, colors.round);
}

void drawSilverOutline(Trap& on, Surface& surface, Boolean isHovered, float W, float H) {
  Pen pen(on, surface);
  if (isHovered) {
    constexpr Colour dark = colour(0x5B6665);
    pen.line(0, 1, 0, H - 2, dark);
    pen.line(W - 1, 1, W - 1, H - 2, dark);
    pen.line(2, H - 1, W - 1, H - 1, dark);
    pen.line(1, 0, W - 2, 0, dark);
  } else {
    constexpr Colour grey = colour(0x9495A2);
    pen.line(0, 1, 0, H - 2, grey);
    pen.line(W - 1, 1, W - 1, H - 2, grey);
    pen.point(1, 0, grey);
    pen.point(W - 1, 0, grey);
    pen.line(W - 2, 2, W - 2, H - 3, colours::white);
    pen.line(1, 0, W - 2, 0, colour(0xB7B7BF));
  }
  pen.line(1, H - 2, W - 2, H - 2, colour(0xD0D1DF));
}

}  // namespace norvane::scroll
