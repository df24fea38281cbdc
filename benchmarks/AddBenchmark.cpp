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
  const bool isLong = count >= manyItems;
  add(work, subject::nvList, isLong, [count](benchmark::State& state) {
    texts(count);
    fillShown(
        state, [] { return makeNvList(true); },
        [count](auto& widget) { fill(widget.list(), count); });
  });
  add(work, subject::listWidget, isLong, [count](benchmark::State& state) {
    qtTexts(count);
    fillShown(
        state, [] { return makeListWidget(true); }, [count](auto& widget) { fill(widget, count); });
  });
}

void addAllFields(int count) {
  const std::string work = "AddAllFields/" + std::to_string(count);
  addFresh(
      work, subject::nvList, count,
      [count] {
        texts(count), keys(count);
        return makeNvList(false);
      },
      [count](auto& widget) { fillAllFields(widget->list(), count); });
  addFresh(
      work, subject::listWidget, count,
      [count] {
        qtTexts(count), keys(count);
        return makeListWidget(false);
      },
      [count](auto& widget) { fillAllFields(*widget, count); });
}

/// Each item is on the screen before the next one is added.
void addFrames(int count) {
  const std::string work = "AddFrames/" + std::to_string(count);
  const auto processed = [count](auto add) {
    for (int i = 0; i < count; ++i) {
      add(static_cast<std::size_t>(i));
      QApplication::processEvents();
    }
  };
  addFresh(
      work, subject::nvList, count, [] { return makeNvList(true); },
      [=](auto& widget) {
        processed([&](std::size_t i) { widget->list().ItemsAdd(texts(count)[i]); });
      });
  add(work, subject::listWidget, true, [=](benchmark::State& state) {
    measure(
        state, false, [] { return makeListWidget(true); },
        [=](auto& widget) {
          processed([&](std::size_t i) { widget->addItem(qtTexts(count)[i]); });
        });
  });
}

template <class Make>
void addDestroy(const char* who, int count, Make make) {
  addFresh(
      "Destroy/" + std::to_string(count), who, count,
      [=] {
        auto widget = make();
        if constexpr (requires { widget->list(); })
          fill(widget->list(), count);
        else
          fill(*widget, count);
        return widget;
      },
      [](auto& widget) { widget.reset(); });
}

}  // namespace

void addAddBenchmarks() {
  for (const int count : {10'000, 1'000'000}) addHidden(count);
  for (const int count : {10'000, 1'000'000}) addShown(count);
  addAllFields(1'000'000);
  addFrames(10'000);
  addDestroy(subject::nvList, 1'000'000, [] { return makeNvList(false); });
  addDestroy(subject::listWidget, 1'000'000, [] { return makeListWidget(false); });
}
