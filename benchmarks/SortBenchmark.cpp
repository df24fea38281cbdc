#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "Measure.h"
#include "Subjects.h"

namespace {

/// Eight to twenty letters: short ones fit into the string object, long ones need the heap.
std::string randomText(std::mt19937& random) {
  std::string text(8 + random() % 13, ' ');
  for (char& letter : text) letter = static_cast<char>('a' + random() % 26);
  return text;
}

/// Random texts, at most `different` distinct ones.
struct Texts {
  Texts(int count, int different) : plain(static_cast<std::size_t>(count)) {
    std::mt19937 random(7);
    std::vector<std::string> choice(static_cast<std::size_t>(different));
    for (std::string& text : choice) text = randomText(random);
    if (different == count)
      plain = choice;
    else
      for (std::string& text : plain) text = choice[random() % choice.size()];
    for (const std::string& text : plain) qt.push_back(QString::fromStdString(text));
  }

  std::vector<std::string> plain;
  std::vector<QString> qt;
};

const Texts& textsOf(int count, int different) {
  static std::map<std::pair<int, int>, Texts> made;
  return made.try_emplace({count, different}, count, different).first->second;
}

void addSort(const std::string& name, int count, int different) {
  const std::string work = name + '/' + std::to_string(count);
  addFresh(
      work, subject::nvList, count,
      [=] {
        auto widget = makeNvList(false);
        for (const std::string& text : textsOf(count, different).plain)
          widget->list().ItemsAdd(text);
        return widget;
      },
      [](auto& widget) { widget->list().Sort(norvane::cAscending); });
  addFresh(
      work, subject::listWidget, count,
      [=] {
        auto widget = makeListWidget(false);
        for (const QString& text : textsOf(count, different).qt) widget->addItem(text);
        return widget;
      },
      [](auto& widget) { widget->sortItems(); });
  addFresh(
      work, subject::floor, count,
      [=] {
        std::vector<const std::string*> pointers;
        for (const std::string& text : textsOf(count, different).plain) pointers.push_back(&text);
        return pointers;
      },
      [](auto& pointers) {
        std::ranges::sort(
            pointers, {}, [](auto* text) -> auto& { return *text; });
        benchmark::DoNotOptimize(pointers.data());
      });
}

}  // namespace

void addSortBenchmarks() {
  for (const int count : {10'000, 100'000, 1'000'000}) addSort("Sort", count, count);
  addSort("Sort many equal", 100'000, 100);
}
