#include <nvlist/platform/qt/NvListProperties.h>

#include <nvlist/platform/qt/drawing/QtColour.h>

namespace norvane {

QColor NvListProperties::shown(Colour colour) const { return QColor(rgbOf(colour, palette())); }

Colour NvListProperties::chosen(const QColor& colour, Colour before) const {
  return colour == shown(before) ? before : colourFrom(colour);
}

}  // namespace norvane
