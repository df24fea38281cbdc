#include <nvlist/platform/qt/QtColour.h>

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

}  // namespace norvane
