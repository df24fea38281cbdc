#include "scenes.h"

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/platform/headless/HeadlessList.h>

using namespace norvane;

namespace scenes {
namespace {

/// A picture in which every pixel has its own colour.
Picture icon(int size) {
  return art::drawn("icon", size, size, [&](int row, int column) {
    const auto part = [&](int value) { return static_cast<std::uint8_t>(value * 255 / size); };
    return art::Pixel{part(row), part(column), part(size - row)};
  });
}

void addItems(nvList& list, int count) {
  const Picture small = icon(16);
  for (int i = 0; i < count; ++i)
    // Every third text is wide enough for a horizontal bar.
    list.ItemsAdd({.aText = std::string(i % 3 == 1 ? 60 : 4, ' '),
                   .aIcon = i % 4 == 3 ? nullptr : small,
                   .aChecked = i % 2 == 0,
                   .aBackColor = i % 5 == 2 ? Variant(rgb(255, 240, 200)) : Variant(defaultMark),
                   .aAlignment = static_cast<cItemAlignment>(i % 3),
                   .aEnabled = i % 6 != 4,
                   // The system's own colours differ.
                   .aBackColorDis = rgb(225, 225, 225)});
}

const struct {
  const char* name;
  int items;
  int current;
  const char* properties;
} scenes[] = {
    {"plain", 3, -1, ""},
    {"boxes", 40, 2, "Style = 1\nGridLines = true\nScrollBars = 2"},
    {"icons-silver", 200, 100, "Style = 2\nColorStyle = 1\nScrollColorStyle = 1\nScrollBars = 3"},
    {"both-olive", 30, 2,
     "Style = 3\nColorStyle = 2\nScrollColorStyle = 2\nScrollBars = 3\nFullRowSelect = true\n"
     "MultiSelect = true"},
    {"custom", 30, 3,
     "ColorStyle = 99\nValueColor = &HA04696\nBackColor = &HFFF5FA\nScrollBars = 2\n"
     "MinHeight = 24"},
    {"disabled", 8, -1, "Style = 3\nEnabled = false"},
    {"bar-pressed", 60, 20, "ScrollBars = 2"},
    {"preview", 0, -1, "Style = 1"},
};

void visit(const std::string& name, HeadlessContainer& place,
           const std::function<void(const Image&)>& take) {
  RecordingSurface& surface = place.ownSurface();
  if (surface.ScaleWidth() >= 1 && surface.ScaleHeight() >= 1) take({name, surface});
  int number = 0;
  for (HeadlessContainer* child : place.children()) {
    ++number;
    if (child->isShown()) visit(name + "-" + std::to_string(number), *child, take);
  }
}

}  // namespace

void forEachImage(const std::function<void(const Image&)>& take) {
  for (const auto& [name, items, current, properties] : scenes) {
    HeadlessList list(200, 100);
    const bool isPreview = items == 0;
    list.container().userMode = !isPreview;
    list.container().name = "  ";
    list.list().UserControl_ReadProperties(propertiesOf(properties));
    addItems(list.list(), items);
    list.list().ListIndex(current);
    if (list.list().MultiSelect())
      for (const int i : {1, 3, 5}) list.list().ItemSelected(i, true);
    // The button at the lower end of the bar.
    if (std::string_view(name) == "bar-pressed") list.container().press(190, 90);
    list.surface().image();  // draws pending calls
    visit(name, list.container(), take);
  }
}

}  // namespace scenes
