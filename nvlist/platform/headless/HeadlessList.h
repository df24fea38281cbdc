#pragma once

#include <nvlist/nvList.h>
#include <nvlist/platform/headless/HeadlessContainer.h>

namespace norvane {

/// A list without a screen, with the place it stands in.
class HeadlessList {
 public:
  /// Size in pixels.
  explicit HeadlessList(float width = 200, float height = 100) : container_(width, height) {
    list_.UserControl_InitProperties();
  }

  nvList& list() { return list_; }
  HeadlessContainer& container() { return container_; }
  RecordingSurface& surface() { return container_.ownSurface(); }

  /// What the list shows now, one drawing call a line.
  std::string picture() { return surface().image().text(); }

  void resize(float width, float height) {
    surface().resize(width, height);
    list_.UserControl_Resize();
  }

 private:
  HeadlessContainer container_;
  nvList list_{container_};
};

}  // namespace norvane
