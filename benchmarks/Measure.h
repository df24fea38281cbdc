#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

/// Who does the work; the table has a column for each.
namespace subject {
inline constexpr const char* nvList = "nvList";
inline constexpr const char* headless = "headless";
inline constexpr const char* listWidget = "QListWidget";
inline constexpr const char* dataStream = "QDataStream";
inline constexpr const char* floor = "floor";
}  // namespace subject

/// Seconds of processor time of this process: what else the machine does leaves it alone.
inline double processorTime() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Work on so many items is long and touches fresh memory.
constexpr int manyItems = 100'000;

/// Times `work(subject)` alone; `prepare()` makes the subject, which goes after the time is taken.
template <class Prepare, class Work>
void measure(benchmark::State& state, bool givesMemoryBack, Prepare&& prepare, Work&& work) {
  for (auto _ : state) {
    auto prepared = prepare();
    // Whoever runs later would otherwise find the memory of those before him already paged in.
    if (givesMemoryBack) malloc_trim(0);
    const double start = processorTime();
    work(prepared);
    state.SetIterationTime(processorTime() - start);
  }
}

/// The rows of the table from top to bottom.
inline std::vector<std::string> works;

/// Adds one benchmark: `work` is the row of the table, `who` the column. With `once` a repetition
/// is one round of work, otherwise as many as fill the least time.
template <class Function>
void add(const std::string& work, const char* who, bool once, Function&& function) {
  if (std::ranges::find(works, work) == works.end()) works.push_back(work);
  auto* added = benchmark::RegisterBenchmark((work + '|' + who).c_str(), function)
                    ->UseManualTime()
                    ->Unit(benchmark::kMillisecond)
                    ->Repetitions(5);
  if (once) added->Iterations(1);
}

/// The same where every round starts from new; `count` is the number of items.
template <class Prepare, class Work>
void addFresh(const std::string& work, const char* who, int count, Prepare prepare, Work body) {
  const bool isLong = count >= manyItems;
  add(work, who, isLong, [=](benchmark::State& state) { measure(state, isLong, prepare, body); });
}

/// The same where all rounds share what `prepare` made.
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
