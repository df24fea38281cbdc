#pragma once

#include <nvlist/nvList.h>
#include <nvlist/platform/headless/HeadlessContainer.h>

namespace norvane {

/// A list without a screen, on a form of its own.
class HeadlessList {
 public:
  /// Size in pixels.
  explicit HeadlessList(float width = 200, float height = 100) : container_(width, height) {
    list_.UserControl_InitProperties();
  }

  /// The control, its form and the form's surface. Valid as long as this object.
  nvList& list() { return list_; }
  HeadlessContainer& container() { return container_; }
  RecordingSurface& surface() { return container_.ownSurface(); }

  /// What can be seen of the list with its scroll bars, its frame and its edit box
  /// (HeadlessContainer::picture).
  std::string picture() { return container_.picture(); }
  /// What the list itself shows, without the controls in it: one drawing call a line.
  std::string face() { return surface().image().text(); }

  /// Changes the size in pixels.
  void resize(float width, float height) {
    surface().resize(width, height);
    list_.UserControl_Resize();
  }

 private:
  HeadlessContainer container_;
  nvList list_{container_};
};

}  // namespace norvane
