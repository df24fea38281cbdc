#pragma once

#include <functional>

#include <nvlist/platform/qt/NvListWidget.h>

#include "Pages.h"

namespace gallery {

/// The list of pages, itself an nvList.
class Chooser : public norvane::NvListWidget, private norvane::__nvList {
 public:
  explicit Chooser(const QList<Page>& pages);
  ~Chooser() override;

  /// Called with the index of the current page after each click and each key release.
  std::function<void(int index)> onChosen;

 private:
  void MouseUp(std::int16_t&, std::int16_t&, float&, float&) override { tell(); }
  void KeyUp(std::int16_t&, std::int16_t&) override { tell(); }
  void tell();
};

}  // namespace gallery
