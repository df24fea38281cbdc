#include <array>
#include <cstdio>
#include <functional>

#include "Measure.h"
#include "Subjects.h"

namespace {

using norvane::HeadlessContainer;
using norvane::HeadlessList;
using norvane::nvList;

constexpr std::array counts = {1'000, 10'000, 100'000};

/// How the time of an operation may grow with the number of items.
enum class Growth { none, proportional };

struct Operation {
  const char* name;
  Growth growth;
  int times;  ///< how often it runs on one list
  std::function<void(HeadlessList&, int time)> run;
  std::function<void(nvList&)> prepare = [](nvList&) {};
};

void key(nvList& list, std::int16_t code) { list.UserControl_KeyDown(code, 0); }
constexpr std::int16_t keyDown = 40;

int at(HeadlessList& on, int time) { return time * 7919 % on.list().ItemsCount(); }

void drag(HeadlessContainer& form, float from, float to, std::int16_t shift = 0) {
  form.press(380, from, 1, shift);
  form.moveTo(380, to, 1);
  form.release(380, to);
}

const std::vector<Operation>& operations() {
  using L = HeadlessList;
  static const std::vector<Operation> all = {
      {"ItemsAdd at the end", Growth::none, 300, [](L& on, int) { on.list().ItemsAdd("x"); }},
      {"ItemsAdd at the front", Growth::none, 300, [](L& on, int) { on.list().ItemsAdd("x", 0); }},
      {"ItemsAdd in the middle", Growth::none, 300,
       [](L& on, int) { on.list().ItemsAdd("x", on.list().ItemsCount() / 2); }},
      {"ItemsRemove at the end", Growth::none, 300,
       [](L& on, int) { on.list().ItemsRemove(on.list().ItemsCount() - 1); }},
      {"ItemsRemove at the front", Growth::none, 300, [](L& on, int) { on.list().ItemsRemove(0); }},
      {"ItemsRemove in the middle", Growth::none, 300,
       [](L& on, int) { on.list().ItemsRemove(on.list().ItemsCount() / 2); }},
      {"ItemsSelectedRemove of every second", Growth::proportional, 1,
       [](L& on, int) { on.list().ItemsSelectedRemove(); },
       [](nvList& list) {
         list.AutoRedraw(false);
         for (int i = 0; i < list.ItemsCount(); i += 2) list.ItemSelected(i, true);
         list.AutoRedraw(true);
       }},
      {"MoveItemDown to the end and back", Growth::none, 100,
       [](L& on, int) {
         on.list().MoveItemDown(0, on.list().ItemsCount());
         on.list().MoveItemUp(on.list().ItemsCount() - 1, on.list().ItemsCount());
       }},
      {"ListIndex", Growth::none, 300, [](L& on, int i) { on.list().ListIndex(at(on, i)); }},
      {"TopIndex", Growth::none, 300, [](L& on, int i) { on.list().TopIndex(at(on, i)); }},
      {"ItemSelected of one", Growth::none, 300,
       [](L& on, int i) { on.list().ItemSelected(at(on, i), i % 2 == 0); }},
      {"ItemText", Growth::none, 300, [](L& on, int i) { on.list().ItemText(at(on, i), "x"); }},
      {"ItemText and ItemsRemove", Growth::none, 200,
       [](L& on, int i) {
         on.list().ItemText(at(on, i), "x");
         on.list().ItemsRemove(at(on, 2 * i));
       }},
      {"ItemBold", Growth::none, 300, [](L& on, int i) { on.list().ItemBold(at(on, i), true); }},
      {"ItemKey", Growth::none, 300, [](L& on, int i) { on.list().ItemKey(at(on, i), "k"); }},
      {"arrow key", Growth::none, 300, [](L& on, int) { key(on.list(), keyDown); }},
      {"wheel", Growth::none, 300, [](L& on, int) { on.container().turnWheel(-120); }},
      {"press on a row", Growth::none, 300,
       [](L& on, int i) {
         on.container().press(100, static_cast<float>(10 + i % 20 * 13));
         on.container().release(100, 10);
       }},
      {"drag of the thumb", Growth::none, 100,
       [](L& on, int i) { drag(on.container(), 25, static_cast<float>(30 + i)); }},
      {"Redraw", Growth::none, 300, [](L& on, int) { on.list().Redraw(); }},
      {"CheckScroll", Growth::none, 300, [](L& on, int) { on.list().CheckScroll(); }},
      {"IndexByKey of an unchanged list", Growth::none, 300,
       [](L& on, int i) { on.list().IndexByKey(textOf(at(on, i))); },
       [](nvList& list) {
         for (int i = 0; i < 2; ++i) list.IndexByKey("none");
       }},
      {"IsInList, a wildcard", Growth::proportional, 3,
       [](L& on, int) { on.list().IsInList("*no hit*"); }},
      {"ItemsSelectCount", Growth::proportional, 3,
       [](L& on, int) { on.list().ItemsSelectCount(); }},
      {"Sort", Growth::proportional, 1, [](L& on, int) { on.list().Sort(norvane::cDescending); }},
      {"Font", Growth::proportional, 3,
       [](L& on, int) { on.list().Font(on.list().Font()), on.list().AutoCheckScroll(true); }},
      {"ItemsClear", Growth::proportional, 1, [](L& on, int) { on.list().ItemsClear(); }},
  };
  return all;
}

/// Microseconds that one run takes, the best of several lists.
double timeOf(const Operation& operation, int count) {
  double best = 1e30;
  for (int round = 0; round < 5; ++round) {
    const auto subject = makeHeadlessList();
    fill(subject->list(), count);
    subject->list().AutoCheckScroll(true);
    subject->list().AutoRedraw(true);
    operation.prepare(subject->list());
    const double start = processorTime();
    for (int time = 0; time < operation.times; ++time) operation.run(*subject, time);
    best = std::min(best, (processorTime() - start) * 1e6 / operation.times);
  }
  return best;
}

}  // namespace

bool printGrowth() {
  bool isWithinBounds = true;
  std::printf("| operation, us each | 1,000 | 10,000 | 100,000 | growth | at most |\n");
  std::printf("|---|--:|--:|--:|--:|--:|\n");
  for (const Operation& operation : operations()) {
    std::array<double, counts.size()> times{};
    for (std::size_t i = 0; i < counts.size(); ++i) times[i] = timeOf(operation, counts[i]);
    // Twice what the operation should take leaves room for caches that are too small.
    const double growth = times.back() / times.front();
    const double most = operation.growth == Growth::none ? 4 : 250;
    std::printf("| %s | %.2f | %.2f | %.2f | %.1f | %.0f%s |\n", operation.name, times[0], times[1],
                times[2], growth, most, growth > most ? ", exceeded" : "");
    isWithinBounds = isWithinBounds && growth <= most;
  }
  return isWithinBounds;
}
