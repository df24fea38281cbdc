#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Writes each result to the standard error stream as it comes, and at the end one table of ratios
/// to the standard output. Of several repetitions the median counts.
class TableReporter : public benchmark::ConsoleReporter {
 public:
  TableReporter() : ConsoleReporter(OO_None) {}

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  using BySubject = std::map<std::string, std::vector<double>>;

  std::map<std::string, BySubject> results_;
};
