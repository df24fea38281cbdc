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
  const char* beside;
  double ratio;
};

/// A row may have several aims.
constexpr Aim aims[] = {
    {"Add/", subject::listWidget, 0.4},         {"AddShown/", subject::listWidget, 0.3},
    {"InsertFront/", subject::listWidget, 1.0}, {"RemoveFront/", subject::listWidget, 1.0},
    {"IsInList/", subject::listWidget, 0.15},   {"IndexByKey", subject::listWidget, 0.3},
    {"Sort/", subject::listWidget, 0.1},        {"Sort/", subject::floor, 1.0},
    {"Redraw/", subject::listWidget, 0.5},      {"ItemsRemoveDouble", subject::floor, 6.0},
    {"Memory/", subject::listWidget, 0.8},      {"Frame ", subject::listWidget, 0.5},
    {"ScrollRow/", subject::floor, 1.5},        {"DragThumb/", subject::floor, 1.5},
    {"CheckItemWidth/", subject::floor, 1.3},   {"ListSave", subject::dataStream, 0.5},
    {"ListInput", subject::dataStream, 0.25},
};

bool isMemory(std::string_view work) { return work.starts_with("Memory/"); }

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
  std::cout << "| work | nvList | headless | Qt | floor | nvList / Qt | "
               "nvList / floor | aim | |\n"
               "|---|--:|--:|--:|--:|--:|--:|---|---|\n";
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
              << amount(floor, isBytes) << " | " << ratio(mine, qt) << " | " << ratio(mine, floor)
              << " | ";
    std::string wanted, reached;
    for (const Aim& aim : aims) {
      if (!work.starts_with(aim.workPrefix)) continue;
      const auto beside = aim.beside == subject::floor ? floor : qt;
      append(wanted, format("%g of ", aim.ratio) + aim.beside);
      if (mine && beside) append(reached, *mine <= aim.ratio * *beside ? "met" : "**missed**");
    }
    std::cout << wanted << " | " << reached << " |\n";
  }
}
