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
constexpr std::int16_t keyUp = 38;
constexpr std::int16_t keyDown = 40;

int at(HeadlessList& on, int time) { return time * 7919 % on.list().ItemsCount(); }

void drag(HeadlessContainer& form, float from, float to, std::int16_t shift = 0) {
  form.press(380, from, 1, shift);
  form.moveTo(380, to, 1);
  form.release(380, to);
}

void pressRow(HeadlessContainer& form, int row, std::int16_t shift = 0) {
  const auto y = static_cast<float>(10 + row * 13);
  form.press(100, y, 1, shift);
  form.release(100, y);
}

/// Selects every `step`-th item.
void selectEach(nvList& list, int step) {
  list.AutoRedraw(false);
  for (int i = 0; i < list.ItemsCount(); i += step) list.ItemSelected(i, true);
  list.TopIndex(0);
  list.AutoRedraw(true);
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
       [](nvList& list) { selectEach(list, 2); }},
      {"ItemsSelectedRemove of ten", Growth::proportional, 1,
       [](L& on, int) { on.list().ItemsSelectedRemove(); },
       [](nvList& list) { selectEach(list, list.ItemsCount() / 10); }},
      {"ItemsRemoveDouble", Growth::proportional, 1,
       [](L& on, int) { on.list().ItemsRemoveDouble(); }},
      {"MoveItemDown to the end and back", Growth::none, 100,
       [](L& on, int) {
         on.list().MoveItemDown(0, on.list().ItemsCount());
         on.list().MoveItemUp(on.list().ItemsCount() - 1, on.list().ItemsCount());
       }},
      {"ListIndex", Growth::none, 300, [](L& on, int i) { on.list().ListIndex(at(on, i)); }},
      {"TopIndex", Growth::none, 300, [](L& on, int i) { on.list().TopIndex(at(on, i)); }},
      {"ItemSelected of one", Growth::none, 300,
       [](L& on, int i) { on.list().ItemSelected(at(on, i), i % 2 == 0); }},
      {"ItemChecked", Growth::none, 300,
       [](L& on, int i) { on.list().ItemChecked(at(on, i), i % 2 == 0); }},
      {"ItemText", Growth::none, 300, [](L& on, int i) { on.list().ItemText(at(on, i), "x"); }},
      {"ItemText and ItemsRemove", Growth::none, 200,
       [](L& on, int i) {
         on.list().ItemText(at(on, i), "x");
         on.list().ItemsRemove(at(on, 2 * i));
       }},
      {"ItemBold", Growth::none, 300, [](L& on, int i) { on.list().ItemBold(at(on, i), true); }},
      {"ItemKey", Growth::none, 300, [](L& on, int i) { on.list().ItemKey(at(on, i), "k"); }},
      {"ItemTag", Growth::none, 300, [](L& on, int i) { on.list().ItemTag(at(on, i), i); }},
      {"Down and Up", Growth::none, 300,
       [](L& on, int) {
         key(on.list(), keyDown);
         key(on.list(), keyUp);
       }},
      {"wheel", Growth::none, 300, [](L& on, int) { on.container().turnWheel(-120); }},
      {"wheel on the current item", Growth::none, 300,
       [](L& on, int) { on.container().turnWheel(-120); },
       [](nvList& list) { list.WheelFunction(norvane::cWheelListIndex); }},
      {"press on a row", Growth::none, 300, [](L& on, int i) { pressRow(on.container(), i % 20); }},
      {"Shift range of twenty rows", Growth::none, 300,
       [](L& on, int i) { pressRow(on.container(), i % 2 * 20, i % 2 == 0 ? 0 : 1); },
       [](nvList& list) { list.MultiSelect(true); }},
      {"editing a row", Growth::none, 300,
       [](L& on, int i) {
         on.list().SetEdit(i % 20);
         on.container().textBoxes().at(0)->typeCharacter(13);
       },
       [](nvList& list) {
         list.AllowEdit(true);
         for (int i = 0; i < 20; ++i) list.ItemAllowEdit(i, true);
       }},
      {"drag of the thumb", Growth::none, 100,
       [](L& on, int i) { drag(on.container(), 25, static_cast<float>(30 + i)); }},
      {"press on the track", Growth::none, 100,
       [](L& on, int) {
         on.container().press(390, 200);
         on.container().release(390, 200);
       }},
      {"Redraw", Growth::none, 300, [](L& on, int) { on.list().Redraw(); }},
      {"CheckScroll", Growth::none, 300, [](L& on, int) { on.list().CheckScroll(); }},
      {"IndexByKey of an unchanged list", Growth::none, 300,
       [](L& on, int i) { on.list().IndexByKey(textOf(at(on, i))); },
       [](nvList& list) {
         for (int i = 0; i < 2; ++i) list.IndexByKey("none");
       }},
      {"Text of an unchanged list", Growth::none, 300,
       [](L& on, int i) { on.list().Text(textOf(at(on, i))); },
       [](nvList& list) {
         for (int i = 0; i < 2; ++i) list.Text("none");
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
  std::printf("| operation, us each | 1,000 | 10,000 | 100,000 | growth | at most | |\n");
  std::printf("|---|--:|--:|--:|--:|--:|---|\n");
  for (const Operation& operation : operations()) {
    std::array<double, counts.size()> times{};
    for (std::size_t i = 0; i < counts.size(); ++i) times[i] = timeOf(operation, counts[i]);
    // Leaves room for caches that are too small, which is all the time of the shortest operations.
    const double growth = times.back() / times.front();
    const double most = operation.growth == Growth::none ? 4 : 250;
    const bool isWithin = growth <= most || times.back() < 1;
    std::printf("| %s | %.2f | %.2f | %.2f | %.1f | %.0f | %s |\n", operation.name, times[0],
                times[1], times[2], growth, most, isWithin ? "within" : "**exceeded**");
    isWithinBounds = isWithinBounds && isWithin;
  }
  return isWithinBounds;
}
