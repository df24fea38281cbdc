#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Writes each result to standard error as it arrives, and at the end a table of ratios to standard
/// output. Each result is the median of its repetitions.
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
