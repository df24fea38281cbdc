#include <QApplication>
#include <string>

#include "Measure.h"
#include "Subjects.h"

namespace {

void addHidden(int count) {
  const std::string work = "Add/" + std::to_string(count);
  addFresh(
      work, subject::nvList, count,
      [count] {
        texts(count);
        return makeNvList(false);
      },
      [count](auto& widget) { fill(widget->list(), count); });
  addFresh(
      work, subject::headless, count,
      [count] {
        texts(count);
        return makeHeadlessList();
      },
      [count](auto& list) { fill(list->list(), count); });
  addFresh(
      work, subject::listWidget, count,
      [count] {
        qtTexts(count);
        return makeListWidget(false);
      },
      [count](auto& widget) { fill(*widget, count); });
  addFresh(
      work, subject::floor, count,
      [count] {
        texts(count);
        return PlainList();
      },
      [count](PlainList& list) {
        for (const std::string& text : texts(count)) {
          list.push_back(std::make_shared<PlainItem>());
          list.back()->text = text;
        }
      });
}

/// One round of filling a visible list and processing the events that result. The time for the
/// events is also reported on its own.
template <class Widget, class Fill>
void fillShown(benchmark::State& state, Widget make, Fill fillList) {
  double eventTime = 0;
  measure(state, false, make, [&](auto& widget) {
    fillList(*widget);
    const double filled = processorTime();
    QApplication::processEvents();
    eventTime += (processorTime() - filled) * 1e3;
  });
  state.counters["events_ms"] = benchmark::Counter(eventTime, benchmark::Counter::kAvgIterations);
}

void addShown(int count) {
  const std::string work = "AddShown/" + std::to_string(count);
  add(work, subject::nvList, false, [count](benchmark::State& state) {
    texts(count);
    fillShown(
        state, [] { return makeNvList(true); },
        [count](auto& widget) { fill(widget.list(), count); });
  });
  add(work, subject::listWidget, false, [count](benchmark::State& state) {
    qtTexts(count);
    fillShown(
        state, [] { return makeListWidget(true); }, [count](auto& widget) { fill(widget, count); });
  });
}

}  // namespace

void addAddBenchmarks() {
  for (const int count : {1'000, 10'000, 100'000, 1'000'000}) addHidden(count);
  addShown(10'000);
}
