#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include <nvlist/platform/qt/NvListWidget.h>

#include "Pages.h"

namespace gallery {

/// The pages to choose from. It is such a list itself.
class Chooser : public norvane::NvListWidget, private norvane::__nvList {
 public:
  explicit Chooser(const std::vector<Page>& pages);
  ~Chooser() override;

  /// Told of the index of a page some time after it became the current item.
  std::function<void(int index)> onChosen;

 private:
  void Click() override { tell(); }
  void tell();
};

}  // namespace gallery
