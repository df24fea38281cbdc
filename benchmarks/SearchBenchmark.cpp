#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Measure.h"
#include "Subjects.h"

namespace {

constexpr int count = 1'000'000;

std::unique_ptr<norvane::NvListWidget> filledNvList() {
  auto widget = makeNvList(false);
  for (int i = 0; i < count; ++i) widget->list().ItemsAdd({.aText = textOf(i), .aKey = keyOf(i)});
  return widget;
}

std::unique_ptr<QListWidget> filledListWidget() {
  auto widget = makeListWidget(false);
  for (int i = 0; i < count; ++i) {
    auto* item = new QListWidgetItem(QString::fromStdString(textOf(i)));
    item->setData(Qt::UserRole, QString::fromStdString(keyOf(i)));
    widget->addItem(item);
  }
  return widget;
}

void addWildcard(const std::string& work, norvane::cFindCompare compare, Qt::MatchFlags flags) {
  addShared(work, subject::nvList, false, filledNvList, [compare](auto& widget) {
    benchmark::DoNotOptimize(widget->list().IsInList("*no hit*", compare));
  });
  addShared(work, subject::listWidget, true, filledListWidget, [flags](auto& widget) {
    benchmark::DoNotOptimize(widget->findItems("*no hit*", flags));
  });
  addShared(
      work, subject::floor, false, [] { return texts(count); },
      [](const std::vector<std::string>& all) {
        benchmark::DoNotOptimize(std::ranges::find_if(all, [](std::string_view text) {
          return text.find("no hit") != std::string_view::npos;
        }));
      });
}

void addByKey() {
  // As long as the existing keys, so that comparing lengths is not enough.
  static const std::string missing = "key 12345x";
  static const QString qtMissing = QString::fromStdString(missing);
  addShared("IndexByKey/1000000", subject::nvList, false, filledNvList,
            [](auto& widget) { benchmark::DoNotOptimize(widget->list().IndexByKey(missing)); });
  addShared("IndexByKey/1000000", subject::listWidget, true, filledListWidget, [](auto& widget) {
    int found = -1;
    for (int i = 0; i < widget->count() && found < 0; ++i)
      if (widget->item(i)->data(Qt::UserRole).toString() == qtMissing) found = i;
    benchmark::DoNotOptimize(found);
  });
  addShared(
      "IndexByKey/1000000", subject::floor, false, [] { return keys(count); },
      [](const std::vector<std::string>& all) {
        benchmark::DoNotOptimize(std::ranges::find(all, missing));
      });
  addShared("IndexByKey by match()/1000000", subject::nvList, false, filledNvList,
            [](auto& widget) { benchmark::DoNotOptimize(widget->list().IndexByKey(missing)); });
  addShared("IndexByKey by match()/1000000", subject::listWidget, true, filledListWidget,
            [](auto& widget) {
              const auto* model = widget->model();
              benchmark::DoNotOptimize(
                  model->match(model->index(0, 0), Qt::UserRole, qtMissing, 1, Qt::MatchExactly));
            });
}

/// The first search for a text since the list has changed, and a million searches for keys in a
/// list that does not change.
void addExact() {
  static const std::string last = textOf(count - 1);
  static const QString qtLast = QString::fromStdString(last);
  addShared("IsInList exact/1000000", subject::nvList, false, filledNvList, [](auto& widget) {
    widget->list().ItemText(0, "changed");
    benchmark::DoNotOptimize(widget->list().IsInList(last));
  });
  addShared("IsInList exact/1000000", subject::listWidget, true, filledListWidget,
            [](auto& widget) {
              benchmark::DoNotOptimize(
                  widget->findItems(qtLast, Qt::MatchExactly | Qt::MatchCaseSensitive));
            });
  addShared("IndexByKey of all keys/1000000", subject::nvList, true, filledNvList,
            [](auto& widget) {
              for (const std::string& key : keys(count))
                benchmark::DoNotOptimize(widget->list().IndexByKey(key));
            });
  addShared(
      "IndexByKey of all keys/1000000", subject::floor, true,
      [] {
        std::unordered_map<std::string, int> map;
        for (const std::string& key : keys(count)) map.emplace(key, static_cast<int>(map.size()));
        return map;
      },
      [](const auto& map) {
        for (const std::string& key : keys(count)) benchmark::DoNotOptimize(map.find(key));
      });
}

}  // namespace

void addSearchBenchmarks() {
  addExact();
  addWildcard("IsInList/1000000", norvane::cFindBinary, Qt::MatchWildcard | Qt::MatchCaseSensitive);
  addWildcard("IsInList any case/1000000", norvane::cFindText, Qt::MatchWildcard);
  addByKey();
}
