#pragma once

#include <cmath>

namespace norvane {

/// A position in pixels.
struct Point {
  float x = 0;
  float y = 0;

  friend bool operator==(const Point&, const Point&) = default;
  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

/// A rectangle in pixels, usually that of a control in the control around it.
struct Bounds {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  Point origin() const { return {Left, Top}; }
  bool isEmpty() const { return Width <= 0 || Height <= 0; }
  /// The left and top edge belong to it, the right and bottom edge do not.
  bool contains(Point point) const {
    const Point inside = point - origin();
    return inside.x >= 0 && inside.y >= 0 && inside.x < Width && inside.y < Height;
  }
  /// The part that both cover, which may be empty.
  Bounds intersected(const Bounds& other) const {
    const float left = std::fmax(Left, other.Left);
    const float top = std::fmax(Top, other.Top);
    return {left, top, std::fmin(Left + Width, other.Left + other.Width) - left,
            std::fmin(Top + Height, other.Top + other.Height) - top};
  }

  friend bool operator==(const Bounds&, const Bounds&) = default;
};

}  // namespace norvane
