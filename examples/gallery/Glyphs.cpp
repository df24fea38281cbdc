#include "Glyphs.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace gallery {
namespace {

constexpr int units = 16;

const QColor ink(0x31, 0x6A, 0xC5);
const QColor edge(0x6F, 0x8D, 0xB0);
const QColor leaf(0x4E, 0x9A, 0x3B);
const QColor gold(0xF2, 0xB9, 0x3B);
const QColor goldEdge(0xB8, 0x82, 0x1E);
const QColor paper(0xFD, 0xFD, 0xFF);
const QColor shadow(0xDD, 0xE6, 0xF2);

QLinearGradient downwards(const QColor& top, const QColor& bottom) {
  QLinearGradient gradient(0, 0, 0, units);
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  return gradient;
}

/// A rectangle with an edge one unit wide inside it, sharp if a unit is a whole number of pixels.
void box(QPainter& on, const QRectF& outer, const QColor& edgeColour, const QBrush& inside) {
  on.fillRect(outer, edgeColour);
  on.fillRect(outer.adjusted(1, 1, -1, -1), inside);
}

void shape(QPainter& on, const QPolygonF& corners, const QColor& edgeColour, const QBrush& inside) {
  on.setPen(QPen(edgeColour, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  on.setBrush(inside);
  on.drawPolygon(corners);
}

void stroke(QPainter& on, const QColor& colour, double width, const QPolygonF& points) {
  on.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  on.setBrush(Qt::NoBrush);
  on.drawPolyline(points);
}

void disc(QPainter& on, const QPointF& centre, double radius, const QColor& edgeColour,
          const QBrush& inside) {
  on.setPen(QPen(edgeColour, 1));
  on.setBrush(inside);
  on.drawEllipse(centre, radius, radius);
}

/// A sheet of paper with a folded corner.
void sheet(QPainter& on) {
  shape(on, {{2.5, 0.5}, {9.5, 0.5}, {13.5, 4.5}, {13.5, 15.5}, {2.5, 15.5}}, edge,
        downwards(paper, shadow));
  shape(on, {{9.5, 0.5}, {13.5, 4.5}, {9.5, 4.5}}, edge, paper);
}

}  // namespace

QImage drawn(const Glyph& glyph, int size) {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(double(size) / units, double(size) / units);
  glyph(painter);
  return image;
}

void calendar(QPainter& on) {
  box(on, {1, 2, 14, 13}, edge, downwards(paper, shadow));
  on.fillRect(QRectF(1, 2, 14, 4), QColor(0xC8, 0x4B, 0x3C));
  on.fillRect(QRectF(4, 0, 1, 4), edge);
  on.fillRect(QRectF(11, 0, 1, 4), edge);
  for (int row = 0; row < 3; ++row)
    for (int column = 0; column < 4; ++column)
      on.fillRect(QRectF(3 + 3 * column, 7 + 3 * row, 2, 1),
                  row == 1 && column == 2 ? QColor(0xC8, 0x4B, 0x3C) : ink);
}

void database(QPainter& on) {
  QLinearGradient across(2, 0, 14, 0);
  across.setColorAt(0, paper);
  across.setColorAt(1, QColor(0x8F, 0xB2, 0xE4));
  for (const double top : {9.5, 5.5, 1.5}) {
    on.setPen(QPen(edge, 1));
    on.setBrush(across);
    on.drawChord(QRectF(2.5, top + 1.5, 11, 4.5), 180 * 16, 180 * 16);
    on.fillRect(QRectF(2.5, top + 1.5, 11, 2.2), across);
    stroke(on, edge, 1, {{2.5, top + 1.5}, {2.5, top + 3.7}});
    stroke(on, edge, 1, {{13.5, top + 1.5}, {13.5, top + 3.7}});
    on.setBrush(across);
    on.drawEllipse(QRectF(2.5, top - 0.5, 11, 4));
  }
}

void palette(QPainter& on) {
  box(on, {1, 1, 7, 7}, QColor(0x24, 0x50, 0x94), QColor(0x31, 0x6A, 0xC5));
  box(on, {8, 1, 7, 7}, QColor(0x86, 0x88, 0x90), QColor(0xB2, 0xB4, 0xBF));
  box(on, {1, 8, 7, 7}, QColor(0x6C, 0x78, 0x50), QColor(0x93, 0xA0, 0x70));
  box(on, {8, 8, 7, 7}, QColor(0x6E, 0x36, 0x78), QColor(0x9B, 0x4F, 0xA8));
}

void scrollBar(QPainter& on) {
  const QColor blue(0xC2, 0xD3, 0xFC);
  box(on, {5, 0, 7, 16}, edge, QColor(0xF5, 0xF4, 0xF0));
  box(on, {5, 0, 7, 5}, edge, blue);
  box(on, {5, 11, 7, 5}, edge, blue);
  box(on, {5, 5, 7, 4}, ink, downwards(paper, blue));
  stroke(on, ink, 1, {{7.3, 3}, {8.5, 1.8}, {9.7, 3}});
  stroke(on, ink, 1, {{7.3, 13}, {8.5, 14.2}, {9.7, 13}});
}

void ticks(QPainter& on) {
  const QColor frame(0x18, 0x52, 0x84);
  for (const double top : {1.0, 9.0}) {
    box(on, {1, top, 6, 6}, frame, paper);
    on.fillRect(QRectF(9, top + 2, 6, 1), edge);
    on.fillRect(QRectF(9, top + 4, 4, 1), edge);
  }
  stroke(on, QColor(0x21, 0xA5, 0x21), 1.5, {{2.5, 4}, {3.8, 5.4}, {6.2, 2.2}});
}

void document(QPainter& on) {
  sheet(on);
  for (const int line : {6, 8, 10, 12}) on.fillRect(QRectF(5, line, line == 12 ? 4 : 6, 1), ink);
}

void folder(QPainter& on) {
  shape(on,
        {{1.5, 13.5}, {1.5, 3.5}, {2.5, 2.5}, {6.5, 2.5}, {7.5, 4.5}, {14.5, 4.5}, {14.5, 13.5}},
        goldEdge, downwards(QColor(0xFF, 0xF0, 0xBC), gold));
  on.fillRect(QRectF(2, 6, 12, 1), QColor(0xFF, 0xF8, 0xDC));
}

void openFolder(QPainter& on) {
  shape(on,
        {{0.5, 13.5}, {0.5, 3.5}, {1.5, 2.5}, {5.5, 2.5}, {6.5, 4.5}, {12.5, 4.5}, {12.5, 13.5}},
        goldEdge, QColor(0xE0, 0xA2, 0x2C));
  box(on, {3, 1, 8, 9}, edge, paper);
  for (const int line : {3, 5}) on.fillRect(QRectF(5, line, 4, 1), ink);
  shape(on, {{0.5, 13.5}, {3.5, 7.5}, {15.5, 7.5}, {12.5, 13.5}}, goldEdge,
        downwards(QColor(0xFF, 0xF4, 0xCC), gold));
}

void music(QPainter& on) {
  sheet(on);
  const QColor note(0x8B, 0x3F, 0x9E);
  stroke(on, note, 1, {{7, 12}, {7, 6.5}, {10.5, 6}, {10.5, 11}});
  disc(on, {6, 12}, 1, note, note);
  disc(on, {9.5, 11}, 1, note, note);
}

void photo(QPainter& on) {
  box(on, {0, 2, 16, 12}, edge, paper);
  on.fillRect(QRectF(2, 4, 12, 8), downwards(QColor(0x7F, 0xB6, 0xF0), QColor(0xE6, 0xF3, 0xFF)));
  on.setPen(Qt::NoPen);
  on.setBrush(leaf);
  on.drawPolygon(QPolygonF({{2, 12}, {6, 7}, {9, 10}, {11, 8}, {14, 12}}));
  on.setBrush(QColor(0xFF, 0xD8, 0x4A));
  on.drawEllipse(QPointF(11.5, 5.8), 1.3, 1.3);
}

void spreadsheet(QPainter& on) {
  sheet(on);
  box(on, {4, 6, 8, 7}, leaf, paper);
  on.fillRect(QRectF(4, 6, 8, 2), leaf);
  on.fillRect(QRectF(4, 10, 8, 1), leaf);
  on.fillRect(QRectF(7, 6, 1, 7), leaf);
}

void clock(QPainter& on) {
  disc(on, {8, 8}, 6.5, ink, downwards(paper, shadow));
  stroke(on, ink, 1.2, {{8, 4.2}, {8, 8}, {11, 9.5}});
}

void cup(QPainter& on) {
  const QColor brown(0x8A, 0x5A, 0x2B);
  on.setPen(QPen(brown, 1.2));
  on.setBrush(Qt::NoBrush);
  on.drawEllipse(QPointF(12, 9), 2.4, 2.2);
  shape(on, {{2.5, 6.5}, {11.5, 6.5}, {10.5, 13.5}, {3.5, 13.5}}, brown,
        downwards(QColor(0xFF, 0xF6, 0xE8), QColor(0xE4, 0xC0, 0x92)));
  for (const double x : {5.0, 8.5})
    stroke(on, QColor(0xA8, 0xA8, 0xA8), 0.9, {{x, 4.8}, {x + 0.8, 3.6}, {x, 2.4}, {x + 0.8, 1.2}});
}

void letter(QPainter& on) {
  box(on, {1, 3, 14, 10}, edge, downwards(paper, shadow));
  stroke(on, edge, 1, {{2, 4}, {8, 9}, {14, 4}});
}

void pencil(QPainter& on) {
  shape(on, {{2.5, 13.5}, {3.5, 10}, {11, 2.5}, {13.5, 5}, {6, 12.5}}, goldEdge,
        downwards(QColor(0xFF, 0xE6, 0x96), gold));
  on.setPen(Qt::NoPen);
  on.setBrush(QColor(0x40, 0x38, 0x30));
  on.drawPolygon(QPolygonF({{2, 14}, {2.6, 11.8}, {4.2, 13.4}}));
  on.setBrush(QColor(0xD8, 0x6A, 0x6A));
  on.drawPolygon(QPolygonF({{10, 3.5}, {11.5, 2}, {14, 4.5}, {12.5, 6}}));
}

Glyph swatch(const QColor& colour) {
  return [colour](QPainter& on) { box(on, {1, 1, 14, 14}, colour.darker(150), colour); };
}

}  // namespace gallery
