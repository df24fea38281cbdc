#pragma once

#include "Lists.h"

#include <functional>
#include <utility>

namespace norvane {

/// A list of ten rows that writes down what it tells its host.
class HearingListTest : public ListTest, public __nvList {
 protected:
  HearingListTest() {
    headless.resize(200, 133);
    list.addSink(*this);
    headless.container().onPropertyChanged = [this](std::string_view name) {
      told += (told.empty() ? "" : " ") + std::string(name);
      onPropertyChanged();
    };
  }

  void ErrorWrongIndex(Variant& Index) override {
    told += "(" + Index.toText() + ")";
    onWrongIndex(Index);
  }

  /// Since the last call: the properties marked, refused indexes in brackets, a * for each repaint.
  std::string heard() {
    const int repaints = headless.surface().frames() - frames;
    frames += repaints;
    return std::exchange(told, {}) + std::string(static_cast<std::size_t>(repaints), '*');
  }

  /// Empties the list and adds items with the texts 0, 1, ...
  void fill(int count) {
    list.AutoRedraw(false);
    list.ItemsClear();
    for (int i = 0; i < count; ++i) list.ItemsAdd(i);
    list.AutoRedraw(true);
    heard();
  }

  std::function<void()> onPropertyChanged = [] {};
  std::function<void(Variant&)> onWrongIndex = [](Variant&) {};
  std::string told;
  int frames = 0;
};

}  // namespace norvane
