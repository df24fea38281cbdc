#pragma once

namespace norvane {

/// The position and size of a control, in pixels of the control or form around it.
struct Bounds {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  friend bool operator==(const Bounds&, const Bounds&) = default;
};

}  // namespace norvane
