#include "bench/Table.h"

#include <fmt/format.h>

namespace kwopde::bench {

void printTable(const Medians &medians, const Memory &memory) {
  const struct {
    const char *what;
    const char *one;
    const char *other;
    double scale;   // of the ratio, for figures per choice
    double target;  // 0: none
  } rows[] = {
      {"a whole session / opening its PPD", "session", "openingThePpd", 1, 0.20},
      {"a whole session / formatting its lines", "session", "formattingItsLines", 1, 1.5},
      {"a pick among 10,000 choices / among 10", "pick/10000", "pick/10", 1, 1.2},
      {"a request beside a conflict of others / without", "request/1", "request/0", 1, 3},
      {"create and fill per choice, 1,000 / 10", "createAndFill/1000", "createAndFill/10", 0.01,
       1.3},
      {"create and fill per choice, 100,000 / 10", "createAndFill/100000", "createAndFill/10",
       0.0001, 1.3},
      {"the same for bare objects and texts", "fillFloor/100000", "fillFloor/10", 0.0001, 0},
      {"a trace line / formatting its text", "tracingALine", "formattingTheLine", 1, 2.0},
      {"Qt's dialog with panels / without", "dialogWith", "dialogWithout", 1, 1.25},
      {"all panels shown / Qt's dialog without", "dialogWithAllPanelsShown", "dialogWithout", 1, 0},
  };
  fmt::print("\n| figure | measured | target | met |\n|---|---|---|---|\n");
  for (const auto &row : rows) {
    const double ratio = medians.time(row.one) / medians.time(row.other) * row.scale;
    if (row.target > 0)
      fmt::print("| {} | {:.2f} | {:.2f} | {} |\n", row.what, ratio, row.target,
                 ratio <= row.target ? "yes" : "no");
    else
      fmt::print("| {} | {:.2f} | | |\n", row.what, ratio);
  }
  fmt::print("| allocations of a trace line | {:.0f} | 0 | {} |\n",
             medians.counter("tracingALine.allocations"),
             medians.counter("tracingALine.allocations") == 0 ? "yes" : "no");
  fmt::print("| lines that a session traces | {:.0f} | | |\n",
             medians.counter("formattingItsLines.lines"));
  fmt::print(
      "| bytes per choice | {} | | |\n| bytes per open dialog | {} | | |\n"
      "| bytes left by a closed dialog | {} | | |\n",
      memory.perChoice, memory.perDialog, memory.leftByDialog);
}

}  // namespace kwopde::bench
