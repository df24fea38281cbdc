#include <nvlist/render/colours.h>

namespace norvane {
namespace {

struct Palette {
  Colour selection;
  Colour border;
};

constexpr Palette blue = {0xC56A31, 0xB99D7F};
constexpr Palette silver = {0xBFB4B2, 0xB99D7F};
constexpr Palette olive = {0x70A093, 0x7FB9A4};

std::optional<Palette> paletteOf(cColorStyle style, const Palette& custom) {
  switch (style) {
    case cXPBlue:
      return blue;
    case cXPSilver:
      return silver;
    case cXPOlive:
      return olive;
    case cCustom:
      return custom;
  }
  return std::nullopt;
}

}  // namespace

Colour selectionColour(cColorStyle style, Colour valueColor) {
  const auto palette = paletteOf(style, {valueColor, 0});
  return palette ? palette->selection : 0;
}

std::optional<Colour> borderColour(cColorStyle style, Colour borderColor) {
  const auto palette = paletteOf(style, {0, borderColor});
  return palette ? std::optional(palette->border) : std::nullopt;
}

}  // namespace norvane
