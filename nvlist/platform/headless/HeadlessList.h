#pragma once

#include <nvlist/nvList.h>
#include <nvlist/platform/headless/HeadlessContainer.h>
#include <nvlist/platform/headless/HeadlessSurface.h>

namespace norvane {

/// A list without a screen, with the surface it draws on and the place it stands in.
class HeadlessList {
 public:
  /// Size in pixels.
  explicit HeadlessList(float width = 200, float height = 100) : surface_(width, height) {
    list_.UserControl_InitProperties();
  }

  nvList& list() { return list_; }
  HeadlessSurface& surface() { return surface_; }
  HeadlessContainer& container() { return container_; }

  /// What the list shows now, one drawing call a line.
  std::string picture() const { return surface_.image().text(); }

  void resize(float width, float height) {
    surface_.resize(width, height);
    list_.UserControl_Resize();
  }

 private:
  HeadlessContainer container_;
  HeadlessSurface surface_;
  nvList list_{container_, surface_};
};

}  // namespace norvane
