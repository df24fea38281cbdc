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
void addBytes(const char* who, Make make, Fill fillList) {
  add("Memory/1000000", who, true, [=](benchmark::State& state) {
    texts(count);
    auto list = make();
    const double before = allocatedBytes();
    measure(
        state, false, [] { return 0; }, [&](int) { fillList(list); });
    state.counters["bytes"] = (allocatedBytes() - before) / count;
  });
}

}  // namespace

void addMemoryBenchmarks() {
  addBytes(
      subject::nvList, [] { return makeNvList(false); },
      [](auto& widget) { fill(widget->list(), count); });
  addBytes(
      subject::listWidget, [] { return makeListWidget(false); },
      [](auto& widget) {
        for (const std::string& text : texts(count)) widget->addItem(QString::fromStdString(text));
      });
  addBytes(
      subject::floor, [] { return PlainList(); },
      [](PlainList& list) {
        for (const std::string& text : texts(count)) {
          list.push_back(std::make_shared<PlainItem>());
          list.back()->text = text;
        }
      });
}
