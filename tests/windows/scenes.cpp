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

/// Wide enough for a horizontal bar.
const std::string blanks(60, ' ');

void addItems(nvList& list, int count) {
  const Picture small = icon(16);
  for (int i = 0; i < count; ++i)
    list.ItemsAdd({.aText = i % 3 == 1 ? blanks : std::string(4, ' '),
                   .aIcon = i % 4 == 3 ? nullptr : small,
                   .aChecked = i % 2 == 0,
                   .aBackColor = i % 5 == 2 ? Variant(rgb(255, 240, 200)) : Variant(defaultMark),
                   .aAlignment = static_cast<cItemAlignment>(i % 3),
                   .aEnabled = i % 6 != 4,
                   // The system's own colours differ.
                   .aBackColorDis = rgb(225, 225, 225)});
}

struct Scene {
  const char* name;
  std::function<void(HeadlessList&)> build;
};

const Scene all[] = {
    {"plain", [](HeadlessList& it) { addItems(it.list(), 3); }},
    {"boxes",
     [](HeadlessList& it) {
       it.list().Style(cCheckBoxes);
       it.list().GridLines(true);
       it.list().ScrollBars(vbVertical);
       addItems(it.list(), 40);
       it.list().ListIndex(2);
     }},
    {"icons-silver",
     [](HeadlessList& it) {
       it.list().Style(cIcons);
       it.list().ColorStyle(cXPSilver);
       it.list().ScrollBars(vbBoth);
       addItems(it.list(), 200);
       it.list().ListIndex(100);
     }},
    {"both-olive",
     [](HeadlessList& it) {
       it.list().Style(cCheckBoxesIcons);
       it.list().ColorStyle(cXPOlive);
       it.list().FullRowSelect(true);
       it.list().MultiSelect(true);
       it.list().ScrollBars(vbBoth);
       addItems(it.list(), 30);
       for (const int i : {1, 2, 3, 5}) it.list().ItemSelected(i, true);
     }},
    {"custom",
     [](HeadlessList& it) {
       it.list().ColorStyle(cCustom);
       it.list().ValueColor(rgb(150, 70, 160));
       it.list().BackColor(rgb(250, 245, 255));
       it.list().ScrollBars(vbVertical);
       it.list().MinHeight(24);
       addItems(it.list(), 30);
       it.list().ListIndex(3);
     }},
    {"disabled",
     [](HeadlessList& it) {
       it.list().Style(cCheckBoxesIcons);
       addItems(it.list(), 8);
       it.list().Enabled(false);
     }},
    {"bar-pressed",
     [](HeadlessList& it) {
       it.list().ScrollBars(vbVertical);
       addItems(it.list(), 60);
       it.list().TopIndex(20);
       // The button at the lower end of the bar.
       it.container().press(190, 90);
     }},
    {"preview",
     [](HeadlessList& it) {
       it.container().userMode = false;
       it.container().name = "  ";
       it.list().Style(cCheckBoxes);
       it.list().Redraw();
     }},
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
  for (const Scene& scene : all) {
    HeadlessList list(200, 100);
    scene.build(list);
    list.surface().image();  // draws pending calls
    visit(scene.name, list.container(), take);
  }
}

}  // namespace scenes
