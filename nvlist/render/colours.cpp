#include <nvlist/render/colours.h>

#include <nvlist/core/numbers.h>
#include <nvlist/objects/Failure.h>
#include <nvlist/objects/Trap.h>

namespace norvane {
namespace {

constexpr Module here = {kinds::module, "basList"};

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

std::string_view withoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

Colour channelOf(std::string_view pair) {
  // A blank behind a single digit would pass for the end of the number.
  const bool isPair = pair.size() == 2 && pair.find_first_of(" \t\n\v\f\r") == pair.npos;
  const auto value = isPair ? numberOf("&H" + std::string(pair)) : std::nullopt;
  if (!value) throw Failure::typeMismatch();
  return static_cast<Colour>(*value);
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

std::string CHex(std::int32_t value, std::int16_t width) {
  std::string result;
  trapped(here, "CHex", [&](Trap& on) {
    on.step([&] { result = hexTextOf(static_cast<std::uint32_t>(value), width); });
  });
  return result;
}

std::string RGB2HTML(std::int16_t red, std::int16_t green, std::int16_t blue) {
  std::string result;
  trapped(here, "RGB2HTML", [&](Trap& on) {
    on.step([&] { result = CHex(red, 2) + CHex(green, 2) + CHex(blue, 2); });
  });
  return result;
}

std::string VBColor2HTML(Colour color) {
  std::string result;
  trapped(here, "VBColor2HTML", [&](Trap& on) {
    const auto lowByte = [](Colour bits) { return static_cast<std::int16_t>(bits & 255); };
    on.step(
        [&] { result = RGB2HTML(lowByte(color), lowByte(color / 256), lowByte(color / 65536)); });
  });
  return result;
}

std::string GetCorrectColor(std::string_view text) {
  std::string result;
  trapped(here, "GetCorrectColor", [&](Trap& on) {
    if (text == defaultMark) {
      on.step([&] { result = std::string(3, ' ').append(text); });
    } else if (const auto number = numberOf(text)) {
      on.step([&] { result = VBColor2HTML(checked::nearest<Colour>(*number)); });
    } else {
      on.step([&] { result = VBColor2HTML(colours::white); });
    }
  });
  return result;
}

Variant colourOfText(std::string_view text) {
  if (withoutBlanks(text) == defaultMark) return defaultMark;
  if (text.starts_with('#')) text.remove_prefix(1);
  if (text.size() < 6) throw Failure::typeMismatch();
  const Colour red = channelOf(text.substr(0, 2));
  const Colour green = channelOf(text.substr(2, 2));
  return red | green << 8 | channelOf(text.substr(4, 2)) << 16;
}

}  // namespace norvane
