#pragma once

#include <nvlist/platform/UserControl.h>

namespace norvane {

/// A hidden control that measures text in the list's font. The list's own surface cannot be used
/// for this, because painted rows change its font flags.
class MeasuringLabel final : public UserControl {
 public:
  explicit MeasuringLabel(std::unique_ptr<Container> place) : UserControl(std::move(place)) {
    Visible(false);
  }

  void Font(const norvane::Font& font) { surface_.Font(font); }
  float widthOf(std::string_view text) { return surface_.TextWidth(text); }
};

}  // namespace norvane
