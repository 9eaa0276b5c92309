#include <fmt/format.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Commands.h"
#include "app/Json.h"
#include "app/Output.h"
#include "headless/Headless.h"
#include "host/Extension.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "platform/PanelInspector.h"
#include "queue/PrintQueue.h"

namespace kwopde::app {

namespace {

struct OptionsOptions {
  std::string ppd;      // a file; empty: a queue
  std::string printer;  // empty: the default queue
  bool json = false;
};

struct Choice {
  std::string keyword;
  std::string text;
};

/// An option that can be set with -o, and with its control where it has one.
struct PrinterOption {
  std::string key;
  std::string title;
  std::string current;
  std::string usual;  // the PPD's default
  std::vector<Choice> choices;
  std::optional<host::NumberRange> range;  // in place of the choices where all are numbers
  std::string control;                     // "color.gammaLabel", as scripts name it
};

PrinterOption describe(const ppd_option_t &option, const host::PpdSession &session) {
  const host::PpdFile &ppd = session.ppd();
  const std::string key = option.keyword;
  PrinterOption described{key,
                          ppd.textOf(key),
                          session.markedChoice(key).value_or(""),
                          option.defchoice,
                          {},
                          session.range(key),
                          {}};
  for (int i = 0; !described.range && i < option.num_choices; ++i)
    described.choices.push_back(
        {option.choices[i].choice, ppd.textOf(key, option.choices[i].choice)});
  return described;
}

/// Returns the options of the PPD, in its order, with the controls of our panels.
std::vector<PrinterOption> describeAll(const std::shared_ptr<host::PpdSession> &session) {
  std::vector<PrinterOption> options;
  session->ppd().forEachOption([&](const ppd_option_t &option) {
    // Another name of PageSize, for printers that are told the paper by hand.
    if (std::string_view(option.keyword) != "PageRegion")
      options.push_back(describe(option, *session));
  });
  headless::Module module;
  const host::Untraced untraced(module);
  host::Extension extension(module, session);
  const PanelList *panels = extension.open();
  if (!panels) return options;
  for (const auto &panel : *panels)
    for (const PanelOption &row : optionsOf(*panel))
      for (PrinterOption &option : options)
        if (option.key == row.key)
          option.control =
              fmt::format("{}.{}", wordOf(*panel), row.popUp.empty() ? row.field : row.popUp);
  return options;
}

void printText(const std::vector<PrinterOption> &options) {
  for (const PrinterOption &option : options) {
    printLine("{}={}  {}{}", option.key, option.current, option.title,
              option.current == option.usual ? "" : fmt::format(" (usually {})", option.usual));
    if (option.range) printLine("    {} to {}", option.range->minimum, option.range->maximum);
    for (const Choice &choice : option.choices)
      printLine("    {}{}", choice.keyword,
                choice.text == choice.keyword ? "" : fmt::format("  {}", choice.text));
  }
}

nlohmann::json toJson(const std::vector<PrinterOption> &options) {
  auto list = nlohmann::json::array();
  for (const PrinterOption &option : options) {
    nlohmann::json entry{{"key", option.key},
                         {"title", option.title},
                         {"current", option.current},
                         {"default", option.usual}};
    if (option.range)
      entry["range"] = {{"minimum", option.range->minimum}, {"maximum", option.range->maximum}};
    else
      for (const Choice &choice : option.choices)
        entry["choices"].push_back({{"choice", choice.keyword}, {"text", choice.text}});
    if (!option.control.empty()) entry["control"] = option.control;
    list.push_back(std::move(entry));
  }
  return list;
}

int listOptions(const OptionsOptions &options) {
  const auto session = options.ppd.empty()
                           ? host::PrintQueue(options.printer).openSession()
                           : std::make_shared<host::PpdSession>(host::PpdFile::open(options.ppd));
  const auto described = describeAll(session);
  if (options.json)
    writeJson(toJson(described), 2);
  else
    printText(described);
  return kDone;
}

}  // namespace

Command optionsCommand() {
  const auto options = std::make_shared<OptionsOptions>();
  return {"options",
          "Lists what can be set for a printer with -o, and what is set now",
          {{"--ppd", &options->ppd, "FILE", "A printer's PPD file"},
           {"--printer,-d", &options->printer, "QUEUE", "A printer queue, or an instance of it",
            Option::Check::none, "--ppd"},
           {"--json", &options->json, "", "Writes the list as JSON"}},
          [options] { return listOptions(*options); }};
}

}  // namespace kwopde::app
