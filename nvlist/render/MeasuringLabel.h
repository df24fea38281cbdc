#pragma once

#include <nvlist/platform/UserControl.h>

namespace norvane {

/// A hidden control that tells how wide a text is in the list's font, whatever flags the rows have
/// left on the list's own surface.
class MeasuringLabel final : public UserControl {
 public:
  explicit MeasuringLabel(std::unique_ptr<Container> place) : UserControl(std::move(place)) {
    Visible(false);
  }

  void Font(const norvane::Font& font) { surface_.Font(font); }
  float widthOf(std::string_view text) { return surface_.TextWidth(text); }
};

}  // namespace norvane
