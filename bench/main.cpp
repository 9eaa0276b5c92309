// Measures the extension's share of a print dialog. Every figure is a ratio of two things that are
// measured in turns in this very run.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/Measurements.h"
#include "bench/Table.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  const auto memory = kwopde::bench::measureMemory();
  kwopde::bench::Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  kwopde::bench::printTable(medians, memory);
}
