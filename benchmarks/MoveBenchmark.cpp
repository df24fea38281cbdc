#include <string>
#include <vector>

#include "Measure.h"
#include "Subjects.h"

namespace {

void insertAtFront(norvane::nvList& list, int count) {
  for (const std::string& text : texts(count)) list.ItemsAdd(text, 0);
}

void insertAtFront(QListWidget& list, int count) {
  for (const QString& text : qtTexts(count)) list.insertItem(0, text);
}

using References = std::vector<void*>;

void addInsert(int count) {
  const std::string work = "InsertFront/" + std::to_string(count);
  addFresh(
      work, subject::nvList, count,
      [count] {
        texts(count);
        return makeNvList(false);
      },
      [count](auto& widget) { insertAtFront(widget->list(), count); });
  addFresh(
      work, subject::listWidget, count,
      [count] {
        qtTexts(count);
        return makeListWidget(false);
      },
      [count](auto& widget) { insertAtFront(*widget, count); });
  addFresh(
      work, subject::floor, count, [] { return References(); },
      [count](References& references) {
        for (int i = 0; i < count; ++i) references.insert(references.begin(), nullptr);
        benchmark::DoNotOptimize(references.data());
      });
}

void addRemove(int count) {
  const std::string work = "RemoveFront/" + std::to_string(count);
  addFresh(
      work, subject::nvList, count,
      [count] {
        auto widget = makeNvList(false);
        fill(widget->list(), count);
        return widget;
      },
      [count](auto& widget) {
        for (int i = 0; i < count; ++i) widget->list().ItemsRemove(0);
      });
  addFresh(
      work, subject::listWidget, count,
      [count] {
        auto widget = makeListWidget(false);
        fill(*widget, count);
        return widget;
      },
      [count](auto& widget) {
        for (int i = 0; i < count; ++i) delete widget->takeItem(0);
      });
  addFresh(
      work, subject::floor, count, [count] { return References(static_cast<std::size_t>(count)); },
      [count](References& references) {
        for (int i = 0; i < count; ++i) {
          references.erase(references.begin());
          benchmark::DoNotOptimize(references.data());
        }
      });
}

/// The same in a list on the screen, and `ItemsSelectedRemove` of every second item.
void addMovesShown(int count) {
  const std::string number = '/' + std::to_string(count);
  addFresh(
      "InsertFrontShown" + number, subject::nvList, count, [] { return makeNvList(true); },
      [count](auto& widget) { insertAtFront(widget->list(), count); });
  addFresh(
      "InsertFrontShown" + number, subject::listWidget, count, [] { return makeListWidget(true); },
      [count](auto& widget) { insertAtFront(*widget, count); });
  const auto filledList = [count] {
    auto widget = makeNvList(true);
    fill(widget->list(), count);
    return widget;
  };
  addFresh("RemoveFrontShown" + number, subject::nvList, count, filledList, [count](auto& widget) {
    for (int i = 0; i < count; ++i) widget->list().ItemsRemove(0);
  });
  addFresh(
      "RemoveFrontShown" + number, subject::listWidget, count,
      [count] {
        auto widget = makeListWidget(true);
        fill(*widget, count);
        return widget;
      },
      [count](auto& widget) {
        for (int i = 0; i < count; ++i) delete widget->takeItem(0);
      });
  addFresh(
      "ItemsSelectedRemove" + number, subject::nvList, count,
      [=] {
        auto widget = filledList();
        widget->list().AutoRedraw(false);
        for (int i = 0; i < count; i += 2) widget->list().ItemSelected(i, true);
        widget->list().AutoRedraw(true);
        return widget;
      },
      [](auto& widget) { widget->list().ItemsSelectedRemove(); });
}

}  // namespace

void addMoveBenchmarks() {
  for (const int count : {10'000, 100'000}) addMovesShown(count);
  for (const int count : {10'000, 100'000}) {
    addInsert(count);
    addRemove(count);
  }
}
