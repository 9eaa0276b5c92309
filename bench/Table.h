// The figures that scripts/bench prints: ratios of what was measured in turns in one run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

#include "bench/Measurements.h"

namespace kwopde::bench {

/// Keeps the median time of every benchmark.
class Medians final : public benchmark::ConsoleReporter {
public:
  Medians() : ConsoleReporter(OO_None) {}
  void ReportRuns(const std::vector<Run> &runs) override {
    for (const Run &run : runs) {
      const std::string name = run.run_name.str();
      if (run.aggregate_name != "median") continue;
      times_[name] = run.GetAdjustedRealTime();
      for (const auto &[counter, value] : run.counters)
        counters_[name + "." + counter] = static_cast<double>(value);
    }
    ConsoleReporter::ReportRuns(runs);
  }
  double time(const std::string &name) const { return times_.at(name); }
  double counter(const std::string &name) const { return counters_.at(name); }

private:
  std::map<std::string, double> times_;
  std::map<std::string, double> counters_;
};

/// Prints every figure with its target, as a table of Markdown.
void printTable(const Medians &medians, const Memory &memory);

}  // namespace kwopde::bench
