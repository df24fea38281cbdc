#include <malloc.h>

#include <string>

#include "Measure.h"
#include "Subjects.h"

namespace {

constexpr int count = 1'000'000;

double allocatedBytes() {
  const auto info = mallinfo2();
  return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

/// Heap bytes per item, including an unshared copy of its text.
template <class Make, class Fill>
void addBytes(const char* work, const char* who, Make make, Fill fillList) {
  add(work, who, true, [=](benchmark::State& state) {
    texts(count), keys(count);
    auto list = make();
    const double before = allocatedBytes();
    measure(
        state, false, [] { return 0; }, [&](int) { fillList(list); });
    state.counters["bytes"] = (allocatedBytes() - before) / count;
  });
}

}  // namespace

void addMemoryBenchmarks() {
  constexpr const char* plain = "Memory/1000000";
  constexpr const char* all = "Memory, all fields/1000000";
  const auto nvList = [] { return makeNvList(false); };
  const auto listWidget = [] { return makeListWidget(false); };
  addBytes(plain, subject::nvList, nvList, [](auto& widget) { fill(widget->list(), count); });
  addBytes(plain, subject::listWidget, listWidget, [](auto& widget) {
    for (const std::string& text : texts(count)) widget->addItem(QString::fromStdString(text));
  });
  addBytes(
      plain, subject::floor, [] { return PlainList(); },
      [](PlainList& list) {
        for (const std::string& text : texts(count)) {
          list.push_back(std::make_shared<PlainItem>());
          list.back()->text = text;
        }
      });
  addBytes(all, subject::nvList, nvList,
           [](auto& widget) { fillAllFields(widget->list(), count); });
  addBytes(all, subject::listWidget, listWidget,
           [](auto& widget) { fillAllFields(*widget, count); });
}
