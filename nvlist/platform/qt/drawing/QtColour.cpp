#include <nvlist/platform/qt/drawing/QtColour.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace norvane {
namespace {

QRgb systemRgb(const QPalette& palette, unsigned index) {
  static constexpr std::pair<QPalette::ColorGroup, QPalette::ColorRole> table[] = {
      {QPalette::Active, QPalette::Button},             // scroll bar
      {QPalette::Active, QPalette::Dark},               // desktop
      {QPalette::Active, QPalette::Highlight},          // active caption
      {QPalette::Inactive, QPalette::Highlight},        // inactive caption
      {QPalette::Active, QPalette::Window},             // menu
      {QPalette::Active, QPalette::Base},               // window
      {QPalette::Active, QPalette::WindowText},         // window frame
      {QPalette::Active, QPalette::WindowText},         // menu text
      {QPalette::Active, QPalette::Text},               // window text
      {QPalette::Active, QPalette::HighlightedText},    // caption text
      {QPalette::Active, QPalette::Window},             // active border
      {QPalette::Inactive, QPalette::Window},           // inactive border
      {QPalette::Active, QPalette::Mid},                // application workspace
      {QPalette::Active, QPalette::Highlight},          // highlight
      {QPalette::Active, QPalette::HighlightedText},    // highlight text
      {QPalette::Active, QPalette::Button},             // button face
      {QPalette::Active, QPalette::Dark},               // button shadow
      {QPalette::Disabled, QPalette::Text},             // grey text
      {QPalette::Active, QPalette::ButtonText},         // button text
      {QPalette::Inactive, QPalette::HighlightedText},  // inactive caption text
      {QPalette::Active, QPalette::Light},              // button highlight
      {QPalette::Active, QPalette::Shadow},             // 3D dark shadow
      {QPalette::Active, QPalette::Midlight},           // 3D light
      {QPalette::Active, QPalette::ToolTipText},        // info text
      {QPalette::Active, QPalette::ToolTipBase},        // info back
  };
  if (index >= std::size(table)) return qRgb(0, 0, 0);
  return palette.color(table[index].first, table[index].second).rgb();
}

}  // namespace

QRgb rgbOf(Colour colour, const QPalette& palette) {
  const auto bits = static_cast<unsigned>(colour);
  if (isSystemColour(colour)) return systemRgb(palette, bits & 0xFF);
  return qRgb(bits & 0xFF, bits >> 8 & 0xFF, bits >> 16 & 0xFF);
}

Colour colourFrom(const QColor& colour) {
  return rgb(static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
             static_cast<std::uint8_t>(colour.blue()));
}

double contrastOf(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double channel) {
      return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QPalette readablePalette(QPalette palette) {
  const auto mixed = [](const QColor& from, const QColor& to, double part) {
    const auto channel = [&](int a, int b) { return static_cast<int>(a + (b - a) * part); };
    return QColor(channel(from.red(), to.red()), channel(from.green(), to.green()),
                  channel(from.blue(), to.blue()));
  };
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  const QColor background = mixed(base, text, 0.08);
  palette.setColor(QPalette::Active, QPalette::Midlight, background);
  // The text of other rows may itself be hard to read: then black or white is the end.
  const bool isDark = contrastOf(background, Qt::white) > contrastOf(background, Qt::black);
  const QColor strongest = isDark ? Qt::white : Qt::black;
  QColor disabled = palette.color(QPalette::Disabled, QPalette::Text);
  for (int step = 1; step <= 10 && contrastOf(disabled, background) < 3; ++step)
    disabled = mixed(disabled, strongest, step / 10.0);
  palette.setColor(QPalette::Disabled, QPalette::Text, disabled);
  return palette;
}

}  // namespace norvane
