#pragma once

#include <nvlist/drawing/Surface.h>
#include <nvlist/platform/Bounds.h>
#include <nvlist/platform/UserControl.h>

namespace norvane::scroll {

/// The axis of a scroll bar. A part has a start and a length along the axis, and an offset and a
/// breadth across it.
enum class Axis { vertical, horizontal };

constexpr float along(Axis axis, float x, float y) { return axis == Axis::vertical ? y : x; }
constexpr float across(Axis axis, float x, float y) { return axis == Axis::vertical ? x : y; }

inline float start(Axis axis, const UserControl& part) {
  return along(axis, part.Left(), part.Top());
}
inline void start(Axis axis, UserControl& part, float value) {
  axis == Axis::vertical ? part.Top(value) : part.Left(value);
}

inline float length(Axis axis, const UserControl& part) {
  return along(axis, part.Width(), part.Height());
}
inline float length(Axis axis, const Surface& surface) {
  return axis == Axis::vertical ? surface.ScaleHeight() : surface.ScaleWidth();
}
inline void length(Axis axis, UserControl& part, float value) {
  axis == Axis::vertical ? part.Height(value) : part.Width(value);
}

inline float offset(Axis axis, const UserControl& part) {
  return across(axis, part.Left(), part.Top());
}
inline void offset(Axis axis, UserControl& part, float value) {
  axis == Axis::vertical ? part.Left(value) : part.Top(value);
}

inline float breadth(Axis axis, const UserControl& part) {
  return across(axis, part.Width(), part.Height());
}
inline float breadth(Axis axis, const Surface& surface) {
  return axis == Axis::vertical ? surface.ScaleWidth() : surface.ScaleHeight();
}
inline void breadth(Axis axis, UserControl& part, float value) {
  axis == Axis::vertical ? part.Width(value) : part.Height(value);
}

constexpr Bounds bounds(Axis axis, float start, float offset, float length, float breadth) {
  return axis == Axis::vertical ? Bounds{offset, start, breadth, length}
                                : Bounds{start, offset, length, breadth};
}

}  // namespace norvane::scroll
