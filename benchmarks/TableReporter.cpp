#include "TableReporter.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string_view>

#include "Measure.h"

namespace {

struct Aim {
  std::string_view workPrefix;
  const char* beside;  ///< a column, or nullptr for an amount in milliseconds or bytes
  double limit;
};

/// A row may have several aims.
constexpr Aim aims[] = {
    {"Add/1000000", subject::listWidget, 0.17},
    {"AddShown/1000000", subject::listWidget, 0.2},
    {"AddAllFields/", subject::listWidget, 0.12},
    {"AddFrames/", subject::listWidget, 0.12 / 6.5},
    {"Destroy/", subject::listWidget, 0.15},
    {"InsertFrontShown/100000", subject::listWidget, 0.6},
    {"RemoveFrontShown/100000", nullptr, 1000},
    {"ItemsSelectedRemove/100000", nullptr, 500},
    {"IsInList/", subject::listWidget, 0.1},
    {"IsInList exact/", subject::listWidget, 0.3},
    {"IndexByKey of all keys/", subject::floor, 20},
    {"Select all/", subject::listWidget, 2},
    {"Clear selection/", subject::floor, 0.2},
    {"TextWidth ", subject::floor, 1.1},
    {"Sort/", subject::listWidget, 0.1},
    {"Sort/", subject::floor, 1.0},
    {"Redraw/", subject::listWidget, 0.2},
    {"Frame ", subject::listWidget, 0.2},
    {"ItemsRemoveDouble", subject::floor, 6.0},
    {"Memory/", nullptr, 72},
    {"Memory, all fields/", nullptr, 88},
    {"Save from list/", subject::listWidget, 0.2},
    {"Load and read/", subject::listWidget, 0.2},
    {"ScrollRow/", subject::floor, 1.5},
    {"DragThumb/", subject::floor, 1.5},
    {"CheckItemWidth/", subject::floor, 1.3},
    {"ListSave", subject::dataStream, 0.5},
    {"ListInput", subject::dataStream, 0.25},
};

bool isMemory(std::string_view work) { return work.starts_with("Memory"); }

std::string format(const char* pattern, double value) {
  char text[32];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}

std::string amount(const std::optional<double>& value, bool isBytes) {
  if (!value) return "";
  if (isBytes) return format("%.0f bytes", *value);
  return format(*value < 0.1 ? "%.4f ms" : *value < 10 ? "%.2f ms" : "%.0f ms", *value);
}

std::string ratio(const std::optional<double>& value, const std::optional<double>& beside) {
  if (!value || !beside) return "";
  const double quotient = *value / *beside;
  return format(quotient < 0.01 ? "%.4f" : "%.2f", quotient);
}

void append(std::string& list, std::string_view text) {
  if (!list.empty()) list += ", ";
  list += text;
}

}  // namespace

bool TableReporter::ReportContext(const Context& context) {
  SetOutputStream(&std::cerr);
  SetErrorStream(&std::cerr);
  return ConsoleReporter::ReportContext(context);
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
  std::vector<Run> single;
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
    single.push_back(run);
    const std::string& name = run.run_name.function_name;
    const std::size_t bar = name.find('|');
    const std::string work = name.substr(0, bar);
    const auto bytes = run.counters.find("bytes");
    results_[work][name.substr(bar + 1)].push_back(
        bytes != run.counters.end() ? bytes->second.value : run.GetAdjustedRealTime());
  }
  ConsoleReporter::ReportRuns(single);
}

void TableReporter::Finalize() {
  std::cout << "| work | nvList | headless | Qt | FLTK | floor | nvList / Qt | "
               "nvList / floor | aim | |\n"
               "|---|--:|--:|--:|--:|--:|--:|--:|---|---|\n";
  for (const std::string& work : works) {
    // Absent if a filter excludes it.
    if (!results_.contains(work)) continue;
    const auto median = [&](const char* who) -> std::optional<double> {
      std::vector<double>& values = results_[work][who];
      if (values.empty()) return {};
      std::ranges::sort(values);
      return values[values.size() / 2];
    };
    const auto mine = median(subject::nvList);
    const auto headless = median(subject::headless);
    const auto listWidget = median(subject::listWidget);
    const auto qt = listWidget ? listWidget : median(subject::dataStream);
    const auto floor = median(subject::floor);
    const bool isBytes = isMemory(work);
    std::cout << "| " << work << " | " << amount(mine, isBytes) << " | "
              << amount(headless, isBytes) << " | " << amount(qt, isBytes) << " | "
              << amount(median(subject::fltk), isBytes) << " | " << amount(floor, isBytes) << " | "
              << ratio(mine, qt) << " | " << ratio(mine, floor) << " | ";
    std::string wanted, reached;
    for (const Aim& aim : aims) {
      if (!work.starts_with(aim.workPrefix)) continue;
      if (!aim.beside) {
        append(wanted, amount(aim.limit, isBytes));
        if (mine) append(reached, *mine <= aim.limit ? "met" : "**missed**");
        continue;
      }
      const auto beside = aim.beside == subject::floor ? floor : qt;
      append(wanted, format("%.3g of ", aim.limit) + aim.beside);
      if (mine && beside) append(reached, *mine <= aim.limit * *beside ? "met" : "**missed**");
    }
    std::cout << wanted << " | " << reached << " |\n";
  }
}
