#include <benchmark/benchmark.h>

#include <QApplication>
#include <string_view>

#include "Measure.h"
#include "TableReporter.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  if (argc == 2 && std::string_view(argv[1]) == "--growth") return printGrowth() ? 0 : 1;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;

  addAddBenchmarks();
  addMoveBenchmarks();
  addSearchBenchmarks();
  addSortBenchmarks();
  addDuplicatesBenchmarks();
  addPaintBenchmarks();
  addScrollBenchmarks();
  addMemoryBenchmarks();
  addListFileBenchmarks();
  addSelectionBenchmarks();
  addWidthBenchmarks();
#ifdef NVLIST_BENCHMARK_FLTK
  addFltkBenchmarks();
#endif

  TableReporter table;
  benchmark::RunSpecifiedBenchmarks(&table);
  benchmark::Shutdown();
}
