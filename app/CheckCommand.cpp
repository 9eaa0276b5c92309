#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "app/Commands.h"
#include "app/Json.h"
#include "app/Output.h"
#include "check/PpdCheck.h"
#include "headless/Headless.h"
#include "host/Error.h"

namespace kwopde::app {

namespace {

using check::Finding;
using check::PpdReport;

void printText(const PpdReport &report) {
  printLine(
      "{}: {}", report.file,
      report.panels.empty() ? "no panels" : fmt::format("{}", fmt::join(report.panels, ", ")));
  for (const Finding &finding : report.findings) {
    const std::string where =
        finding.line > 0 ? fmt::format("{}:{}", report.file, finding.line) : report.file;
    const std::string about = finding.option.empty() ? "" : finding.option + ": ";
    printLine("{}: {}: {}{}; {}", where, check::nameOf(finding.severity), about, finding.message,
              finding.advice);
  }
}

nlohmann::json toJson(const PpdReport &report) {
  auto findings = nlohmann::json::array();
  for (const Finding &finding : report.findings)
    findings.push_back({{"severity", check::nameOf(finding.severity)},
                        {"option", finding.option},
                        {"line", finding.line},
                        {"message", finding.message},
                        {"advice", finding.advice}});
  return {{"file", report.file}, {"panels", report.panels}, {"findings", findings}};
}

struct CheckOptions {
  std::vector<std::string> ppds;
  bool json = false;
};

int check(const CheckOptions &options) {
  headless::Module module;
  int status = kDone;
  auto reports = nlohmann::json::array();
  for (const std::string &ppd : options.ppds) {
    try {
      const PpdReport report = check::checkPpd(module, ppd);
      if (options.json)
        reports.push_back(toJson(report));
      else
        printText(report);
      if (!report.isClean()) status = std::max(status, kNotDone);
    } catch (const host::Error &error) {
      tell("kwopde: {}", error.what());
      status = kBadInput;
    }
  }
  if (options.json) writeJson(reports, 2);
  return status;
}

}  // namespace

Command checkCommand() {
  const auto options = std::make_shared<CheckOptions>();
  return {"check",
          "Tells what the panels make of PPD files, and what is wrong with them",
          {{"--json", &options->json, "", "Writes the findings as JSON"},
           {"ppds", &options->ppds, "PPD", "The files", Option::Check::required}},
          [options] { return check(*options); }};
}

}  // namespace kwopde::app
