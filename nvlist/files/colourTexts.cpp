#include <nvlist/files/colourTexts.h>

#include <algorithm>

#include <nvlist/objects/Trap.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

/// Red, green and blue. Division truncates towards zero, also for negative colours.
std::array<Colour, 3> channelsOf(Colour color) {
  return {color & 255, color / 256 & 255, color / 65536 & 255};
}

constexpr char hexDigits[] = "0123456789ABCDEF";

Colour digitOf(char hex) {
  if (hex >= '0' && hex <= '9') return hex - '0';
  const char letter = static_cast<char>(hex | 0x20);
  if (letter < 'a' || letter > 'f') throw Failure::typeMismatch();
  return letter - 'a' + 10;
}

}  // namespace

std::string CHex(std::int32_t value, std::int16_t width) {
  std::string result;
  trapped(basList, "CHex", [&](Trap& on) {
    on.step([&] { result = hexTextOf(static_cast<std::uint32_t>(value), width); });
  });
  return result;
}

std::string RGB2HTML(std::int16_t red, std::int16_t green, std::int16_t blue) {
  std::string result;
  trapped(basList, "RGB2HTML", [&](Trap& on) {
    on.step([&] { result = CHex(red, 2) + CHex(green, 2) + CHex(blue, 2); });
  });
  return result;
}

std::string VBColor2HTML(Colour color) {
  std::string result;
  trapped(basList, "VBColor2HTML", [&](Trap& on) {
    on.step([&] {
      const auto [red, green, blue] = channelsOf(color);
      result = RGB2HTML(static_cast<std::int16_t>(red), static_cast<std::int16_t>(green),
                        static_cast<std::int16_t>(blue));
    });
  });
  return result;
}

std::string GetCorrectColor(std::string_view text) {
  std::string result;
  trapped(basList, "GetCorrectColor", [&](Trap& on) {
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

std::array<char, 6> listFileColour(const Variant& colour) {
  std::array<char, 6> result;
  if (isDefaultMark(colour)) {
    result = {' ', ' ', ' ', 'd', 'e', 'f'};
  } else if (colour.type() == Variant::Type::Int32) {
    // A shortcut: GetCorrectColor of the number's text gives the same.
    char* digit = result.data();
    for (const Colour channel : channelsOf(colour.toInt32())) {
      *digit++ = hexDigits[channel >> 4];
      *digit++ = hexDigits[channel & 15];
    }
  } else {
    result.fill(' ');
    // GetCorrectColor returns six characters, or none after a failure.
    std::ranges::copy(GetCorrectColor(colour.toText()), result.begin());
  }
  return result;
}

Colour channelOfText(std::string_view text, std::size_t at) {
  if (text.size() < at + 2) throw Failure::typeMismatch();
  return digitOf(text[at]) << 4 | digitOf(text[at + 1]);
}

}  // namespace norvane
