#include <string>
#include <unordered_set>

#include "Measure.h"
#include "Subjects.h"

namespace {

void addDistinct(int count, bool ignoresCase) {
  const std::string work =
      std::string(ignoresCase ? "ItemsRemoveDouble" : "ItemsRemoveDouble by case") + '/' +
      std::to_string(count);
  // Nothing is removed, so every round has the same list.
  addShared(
      work, subject::nvList, true,
      [count] {
        auto widget = makeNvList(false);
        for (const std::string& key : keys(count)) widget->list().ItemsAdd(key);
        return widget;
      },
      [ignoresCase](auto& widget) { widget->list().ItemsRemoveDouble(ignoresCase); });
  addFresh(
      work, subject::floor, count,
      [count] {
        keys(count);
        return std::unordered_set<std::string>();
      },
      [count](auto& set) {
        for (const std::string& key : keys(count)) set.insert(key);
      });
}

}  // namespace

void addDuplicatesBenchmarks() {
  for (const int count : {100'000, 1'000'000})
    for (const bool ignoresCase : {true, false}) addDistinct(count, ignoresCase);
}
