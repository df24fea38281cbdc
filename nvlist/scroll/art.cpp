#include <nvlist/scroll/art.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/values/Failure.h>

namespace norvane::art {
namespace {

using scroll::Axis;

constexpr Pixel track = pixel(0xEFEFE7);

// ---- buttons ----

/// As 0xRRGGBB. The face is a gradient from `top` to `bottom`.
struct ButtonColours {
  std::uint32_t top, bottom, shade, chevron;
};

constexpr ButtonColours disabledButton = {0xF7F7F3, 0xE6E6DD, 0xC4C4AF, 0xC9C9C2};

constexpr std::array<ButtonColours, 12> buttonColours = {{
    {0xDEE7F7, 0xADC6F7, 0x7B9CD6, 0x4A6384},  // 1 blue normal
    {0xFFFFFF, 0xBDDEFF, 0x638CD6, 0x4A6384},  // 2 blue hover
    {0x6B8CF7, 0xD6DEEF, 0x7B9CD6, 0x4A6384},  // 3 blue pressed
    disabledButton,                            // 4 blue disabled
    {0xFFFFFF, 0xCECEDE, 0x9494A5, 0x393939},  // 5 silver normal
    {0xFFFFFF, 0xD6D6DE, 0x5A6363, 0x212121},  // 6 silver hover
    {0xBDC6DE, 0xFFFFFF, 0x5A6363, 0x212121},  // 7 silver pressed
    disabledButton,                            // 8 silver disabled
    {0xCBD7BA, 0x97A97D, 0x83AB5A, 0xFFFFFF},  // 9 olive normal
    {0xDAE8B9, 0xC6D39B, 0x84AD5C, 0xFFFFFF},  // 10 olive hover
    {0x869473, 0x829468, 0x83AB5A, 0xFFFFFF},  // 11 olive pressed
    disabledButton,                            // 12 olive disabled
}};

constexpr int buttonSize = 17;

/// The parts of a button of the vertical bar: the track (.), the white line (w), the face (f) with
/// its light edges (e), dark edges (d) and corners (c), and the shadow (s) with its soft ends (h).
constexpr std::array<std::string_view, buttonSize> buttonForm = {"..wwwwwwwwwwwww..",  //
                                                                 ".wceeeeeeeeeeecwh",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wefffffffffffdws",  //
                                                                 ".wcdddddddddddcws",  //
                                                                 ".hwwwwwwwwwwwwwhh",  //
                                                                 "..hssssssssssssh."};

/// The chevron that points up; mirrored for down, and turned for left and right.
constexpr std::array<std::string_view, 6> chevron = {"....#....",  //
                                                     "...###...",  //
                                                     "..#####..",  //
                                                     ".###.###.",  //
                                                     "###...###",  //
                                                     ".#.....#."};
/// In the middle of the face.
constexpr int chevronTop = 5;
constexpr int chevronLeft = 4;

bool isChevron(int row, int column, bool isMirrored) {
  const auto line = static_cast<std::size_t>(row - chevronTop);
  const auto place = static_cast<std::size_t>(column - chevronLeft);
  if (line >= chevron.size() || place >= chevron[line].size()) return false;
  return chevron[isMirrored ? chevron.size() - 1 - line : line][place] == '#';
}

/// The colour of the face in a row and a column. The light comes from above and slightly from the
/// left.
Pixel shadeOfFace(const ButtonColours& colours, int row, int column) {
  constexpr int first = 3;
  constexpr int last = 13;
  const int step = 2 * (row - first) + column - first;
  constexpr int steps = 3 * (last - first);
  return mix(pixel(colours.top), pixel(colours.bottom), std::clamp(step, 0, steps), steps);
}

Picture drawButton(std::string name, Arrow arrow, const ButtonColours& colours) {
  const bool isLying = arrow == Arrow::left || arrow == Arrow::right;
  const bool isMirrored = arrow == Arrow::down || arrow == Arrow::right;
  return drawn(std::move(name), buttonSize, buttonSize, [&](int row, int column) {
    const int line = isLying ? column : row;
    const int place = isLying ? row : column;
    if (isChevron(line, place, isMirrored)) return pixel(colours.chevron);
    const Pixel face = shadeOfFace(colours, row, column);
    switch (buttonForm[static_cast<std::size_t>(line)][static_cast<std::size_t>(place)]) {
      case 'w':
        return white;
      case 's':
        return pixel(colours.shade);
      case 'h':
        return mix(pixel(colours.shade), track, 1, 2);
      case 'e':
        return mix(face, pixel(colours.shade), 1, 6);
      case 'd':
        return mix(face, pixel(colours.shade), 1, 3);
      case 'c':
        return mix(face, white, 1, 2);
      case 'f':
        return face;
      default:
        return track;
    }
  });
}

using ButtonPictures = std::array<Picture, buttonColours.size()>;

ButtonPictures drawButtons(Arrow arrow, const std::string& name) {
  ButtonPictures pictures;
  for (std::size_t i = 0; i < pictures.size(); ++i)
    pictures[i] =
        drawButton("button " + name + " " + std::to_string(i + 1), arrow, buttonColours[i]);
  return pictures;
}

// ---- thumbs ----

/// Across the thumb, as 0xRRGGBB.
struct BodyColours {
  std::uint32_t edge, centre, farEdge;
};

/// The two lines of a ridge, as 0xRRGGBB.
struct GripColours {
  std::uint32_t light, dark;
};

constexpr std::size_t statesOfThumb = 3;

constexpr std::array<BodyColours, 9> bodyColours = {{
    {0x849CD6, 0xA5BDF7, 0x94ADEF},  // 1 blue pressed
    {0xA5CEFF, 0xD6E7FF, 0xA5CEFF},  // 2 blue hover
    {0xB5CEF7, 0xBDCEF7, 0xB5CEF7},  // 3 blue normal
    {0xFFFFFF, 0xDEDEEF, 0xFFFFFF},  // 7 silver pressed
    {0xFFFFFF, 0xDEDEEF, 0xCECEDE},  // 8 silver hover
    {0xFFFFFF, 0xDEDEE7, 0xCECEDE},  // 9 silver normal
    {0x7F9265, 0x9AAD7F, 0x8EA271},  // 13 olive pressed
    {0xBCCC94, 0xCAD7A7, 0xBAC893},  // 14 olive hover
    {0x8DA271, 0xA4B48B, 0x8A9C6F},  // 15 olive normal
}};

constexpr std::array<GripColours, 9> gripColours = {{
    {0xCEDEFF, 0x849CDE},  // 4 blue pressed
    {0xFFFFFF, 0x9CC6FF},  // 5 blue hover
    {0xEFF7FF, 0x8CB5FF},  // 6 blue normal
    {0xFFFFFF, 0x8C94A5},  // 10 silver pressed
    {0xFFFFFF, 0x8C94A5},  // 11 silver hover
    {0xFFFFFF, 0x8C94A5},  // 12 silver normal
    {0xD0DFAC, 0x8C9D73},  // 16 olive pressed
    {0xEBF5D4, 0xB6C68E},  // 17 olive hover
    {0xB9D097, 0x7A8B63},  // 18 olive normal
}};

constexpr std::size_t silverPressed = 3;
constexpr std::size_t olivePressed = 6;
constexpr std::size_t oliveNormal = 8;

constexpr int bodyAcross = 13;
constexpr int bodyAlong = 14;
constexpr int gripAcross = 7;
constexpr int gripAlong = 8;

BodyColours bodyOf(Axis axis, std::size_t state) {
  BodyColours colours = bodyColours[state];
  if (axis == Axis::horizontal && state == silverPressed) colours.edge = 0xA5B5CE;
  return colours;
}

/// In the horizontal bar the olive grips for pressed and normal are exchanged.
GripColours gripOf(Axis axis, std::size_t state) {
  if (axis == Axis::horizontal && state == olivePressed)
    state = oliveNormal;
  else if (axis == Axis::horizontal && state == oliveNormal)
    state = olivePressed;
  return gripColours[state];
}

/// Draws a part of a thumb. `pixelAt(along, across)` returns the colour of a pixel.
template <class PixelAt>
Picture drawPart(std::string name, Axis axis, int along, int across, PixelAt&& pixelAt) {
  if (axis == Axis::vertical) return drawn(std::move(name), across, along, pixelAt);
  return drawn(std::move(name), along, across,
               [&](int row, int column) { return pixelAt(column, row); });
}

Picture drawBody(std::string name, Axis axis, const BodyColours& colours) {
  return drawPart(std::move(name), axis, bodyAlong, bodyAcross, [&](int, int across) {
    constexpr int middle = bodyAcross / 2;
    const Pixel edge = pixel(across < middle ? colours.edge : colours.farEdge);
    return mix(pixel(colours.centre), edge, std::abs(across - middle), middle);
  });
}

Picture drawGrip(std::string name, Axis axis, const GripColours& colours) {
  return drawPart(std::move(name), axis, gripAlong, gripAcross, [&](int along, int across) {
    const Pixel line = pixel(along % 2 == 0 ? colours.light : colours.dark);
    return across == gripAcross - 1 ? mix(line, white, 1, 2) : line;
  });
}

constexpr std::size_t partCount = bodyColours.size() + gripColours.size();
using ThumbPictures = std::array<Picture, partCount>;

ThumbPictures drawThumbs(Axis axis, const std::string& name) {
  ThumbPictures pictures;
  for (std::size_t i = 0; i < partCount; ++i) {
    const std::size_t state = i / (2 * statesOfThumb) * statesOfThumb + i % statesOfThumb;
    const bool isGrip = i / statesOfThumb % 2 == 1;
    const std::string numbered = name + " thumb " + std::to_string(i + 1);
    pictures[i] = isGrip ? drawGrip(numbered, axis, gripOf(axis, state))
                         : drawBody(numbered, axis, bodyOf(axis, state));
  }
  return pictures;
}

/// The picture at an index that starts at 1.
template <std::size_t count>
Picture at(const std::array<Picture, count>& pictures, std::int32_t index) {
  if (index < 1 || index > static_cast<std::int32_t>(count))
    throw Failure::noControlArrayElement(index);
  return pictures[static_cast<std::size_t>(index - 1)];
}

}  // namespace

Picture button(Arrow arrow, std::int32_t index) {
  static const std::array<ButtonPictures, 4> pictures = {
      drawButtons(Arrow::up, "up"), drawButtons(Arrow::down, "down"),
      drawButtons(Arrow::left, "left"), drawButtons(Arrow::right, "right")};
  return at(pictures[static_cast<std::size_t>(arrow)], index);
}

Picture thumb(Axis axis, std::int32_t index) {
  static const std::array<ThumbPictures, 2> pictures = {drawThumbs(Axis::vertical, "vertical"),
                                                        drawThumbs(Axis::horizontal, "horizontal")};
  return at(pictures[static_cast<std::size_t>(axis)], index);
}

}  // namespace norvane::art
