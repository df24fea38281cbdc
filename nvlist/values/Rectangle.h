#pragma once

#include <cstdint>

namespace norvane {

/// A rectangle in pixels. `Right` and `Bottom` are exclusive.
struct Rectangle {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;

  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

}  // namespace norvane
