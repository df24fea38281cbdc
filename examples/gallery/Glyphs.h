#pragma once

#include <QColor>
#include <QImage>
#include <functional>

class QPainter;

/// The icons of the gallery, drawn in any size.
namespace gallery {

/// Draws a square icon of 16 by 16 units.
using Glyph = std::function<void(QPainter&)>;

QImage drawn(const Glyph& glyph, int size);

// Pages.
void calendar(QPainter& on);
void database(QPainter& on);
void palette(QPainter& on);
void scrollBar(QPainter& on);
void ticks(QPainter& on);

// Files.
void document(QPainter& on);
void folder(QPainter& on);
void openFolder(QPainter& on);
void music(QPainter& on);
void photo(QPainter& on);
void spreadsheet(QPainter& on);

// Everyday things.
void clock(QPainter& on);
void cup(QPainter& on);
void letter(QPainter& on);
void pencil(QPainter& on);

Glyph swatch(const QColor& colour);

}  // namespace gallery
