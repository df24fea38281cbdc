#include <QApplication>

#include "Measure.h"
#include "Subjects.h"

namespace {

constexpr int count = 1'000'000;

std::unique_ptr<norvane::NvListWidget> filledNvList() {
  auto widget = makeNvList(false);
  fill(widget->list(), count);
  return widget;
}

void select(norvane::nvList& list) {
  for (int i = 0; i < count; ++i) list.ItemSelected(i, true);
}

std::unique_ptr<QListWidget> filledListWidget() {
  auto widget = makeListWidget(false);
  widget->setSelectionMode(QAbstractItemView::ExtendedSelection);
  fill(*widget, count);
  return widget;
}

}  // namespace

void addSelectionBenchmarks() {
  addFresh("Select all/1000000", subject::nvList, count, filledNvList,
           [](auto& widget) { select(widget->list()); });
  addFresh("Select all/1000000", subject::listWidget, count, filledListWidget,
           [](auto& widget) { widget->selectAll(); });
  addFresh(
      "Clear selection/1000000", subject::nvList, count,
      [] {
        auto widget = filledNvList();
        select(widget->list());
        return widget;
      },
      [](auto& widget) { widget->list().ListIndex(0); });
  addFresh("Clear selection/1000000", subject::floor, count, filledNvList,
           [](auto& widget) { select(widget->list()); });
}
