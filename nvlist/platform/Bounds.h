#pragma once

namespace norvane {

/// Where something stands in the control around it, in pixels of that one.
struct Bounds {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  friend bool operator==(const Bounds&, const Bounds&) = default;
};

}  // namespace norvane
