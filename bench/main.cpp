// Repeats what the benchmarks compare.
//   kwopde-bench WORK...    does each in turn, and prints for one time of it the nanoseconds of
//                           processor; under callgrind, writes a profile of each
//   kwopde-bench --memory   prints what things take
#include <fmt/format.h>
#include <valgrind/callgrind.h>

#include <QApplication>
#include <algorithm>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Work.h"
#include "plugin/PDELogging.h"

namespace {

using kwopde::bench::Work;

class NullSink final : public kwopde::LogSink {
public:
  void writeLine(std::string_view) override {}
};

double processorTime() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

void count(const Work &work) {
  const auto once = work.prepare();
  once();  // what is made at the first time only
  const double before = processorTime();
  CALLGRIND_TOGGLE_COLLECT;
  for (int i = 0; i < work.times; ++i) once();
  CALLGRIND_TOGGLE_COLLECT;
  const double taken = (processorTime() - before) / work.times;
  const std::string title = fmt::format("{} {}", work.name, work.times);  // of the profile
  CALLGRIND_DUMP_STATS_AT(title.c_str());
  fmt::print("{} {:.0f}\n", work.name, taken);
}

}  // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  NullSink sink;
  kwopde::setTraceSink(&sink);
  const std::vector<std::string_view> names(argv + 1, argv + argc);
  if (names.size() == 1 && names.front() == "--memory") {
    kwopde::bench::printMemory();
    return 0;
  }
  std::vector<Work> all = kwopde::bench::works();
  for (Work &dialog : kwopde::bench::dialogs()) all.push_back(std::move(dialog));
  for (const std::string_view name : names) {
    const auto work =
        std::find_if(all.begin(), all.end(), [&](const Work &one) { return one.name == name; });
    if (work == all.end()) {
      fmt::print(stderr, "kwopde-bench: there is no work called {}\n", name);
      return 2;
    }
    count(*work);
  }
}
