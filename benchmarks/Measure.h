#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include <nvlist/platform/qt/drawing/vectorRegisters.h>

/// What is measured; each has a column of the table.
namespace subject {
inline constexpr const char* nvList = "nvList";
inline constexpr const char* headless = "headless";
inline constexpr const char* listWidget = "QListWidget";
inline constexpr const char* dataStream = "QDataStream";
inline constexpr const char* fltk = "FLTK";
inline constexpr const char* floor = "floor";
}  // namespace subject

/// Seconds of processor time of this process, which other load hardly changes.
inline double processorTime() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// From this number of items on, a round is long and uses fresh memory.
constexpr int manyItems = 100'000;

/// Times `work(subject)` only; making the subject by `prepare()` and destroying it is not timed.
template <class Prepare, class Work>
void measure(benchmark::State& state, bool givesMemoryBack, Prepare&& prepare, Work&& work) {
  for (auto _ : state) {
    auto prepared = prepare();
    // Otherwise later rounds would reuse memory that earlier ones have already paged in.
    if (givesMemoryBack) malloc_trim(0);
    norvane::clearVectorRegisters();
    const double start = processorTime();
    work(prepared);
    state.SetIterationTime(processorTime() - start);
  }
}

/// The rows of the table in order.
inline std::vector<std::string> works;

/// Adds one benchmark: `work` is the row of the table, `who` the column. With `once`, a repetition
/// is one round; otherwise as many rounds as fill the minimum time.
template <class Function>
void add(const std::string& work, const char* who, bool once, Function&& function) {
  if (std::ranges::find(works, work) == works.end()) works.push_back(work);
  auto* added = benchmark::RegisterBenchmark((work + '|' + who).c_str(), function)
                    ->UseManualTime()
                    ->Unit(benchmark::kMillisecond);
  if (once) added->Iterations(1);
}

/// The same with a new subject for every round; `count` is the number of items.
template <class Prepare, class Work>
void addFresh(const std::string& work, const char* who, int count, Prepare prepare, Work body) {
  const bool isLong = count >= manyItems;
  add(work, who, isLong, [=](benchmark::State& state) { measure(state, isLong, prepare, body); });
}

/// The same with one subject for all rounds.
template <class Prepare, class Work>
void addShared(const std::string& work, const char* who, bool once, Prepare prepare, Work body) {
  add(work, who, once, [=](benchmark::State& state) {
    malloc_trim(0);
    auto prepared = prepare();
    body(prepared);
    measure(
        state, false, [] { return 0; }, [&](int) { body(prepared); });
  });
}

void addAddBenchmarks();
void addMoveBenchmarks();
void addSearchBenchmarks();
void addSortBenchmarks();
void addDuplicatesBenchmarks();
void addPaintBenchmarks();
void addScrollBenchmarks();
void addMemoryBenchmarks();
void addListFileBenchmarks();
void addSelectionBenchmarks();
void addWidthBenchmarks();
/// Built only where FLTK is installed.
void addFltkBenchmarks();

/// Prints how the time of each operation grows with the list. False if one grows too much.
bool printGrowth();
