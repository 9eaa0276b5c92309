#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <map>
#include <memory>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/Commands.h"
#include "app/Files.h"
#include "app/JobReport.h"
#include "app/Output.h"
#include "app/TraceOption.h"
#include "headless/Headless.h"
#include "host/CupsOptions.h"
#include "host/Error.h"
#include "host/HostLog.h"
#include "host/JobOptions.h"
#include "host/PpdSession.h"
#include "host/Refusals.h"
#include "host/TraceTo.h"
#include "queue/EndingSignals.h"
#include "queue/PrintJob.h"
#include "queue/PrintQueue.h"
#include "script/ScriptRunner.h"

namespace kwopde::app {

namespace {

struct PrintOptions {
  std::string printer;               // a queue or an instance; empty: the default one
  std::string script;                // empty: none; "-": standard input
  std::vector<std::string> options;  // as lp(1) takes them: KEY=CHOICE, KEY, noKEY
  std::string title;                 // empty: the first document's name
  int copies = 0;                    // 0: not said
  std::string pages;                 // page-ranges; empty: not said
  bool force = false;                // print although something was refused
  std::vector<std::string> documents;
  std::string trace = "syslog";
  bool json = false;
};

/// Returns how many letters have to be changed, put in or taken out to make `b` of `a`.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = std::exchange(row[j + 1], std::min({changed, row[j] + 1, row[j + 1] + 1}));
    }
  }
  return row.back();
}

/// Tells of an option that the printer does not have, but one of nearly the same name.
void noteUnknown(const std::string &key, const host::PpdFile &ppd) {
  ppd.forEachOption([&](const ppd_option_t &option) {
    if (distance(key, option.keyword) <= 2)
      tell("kwopde: note: -o {}: the printer has no such option, but {}", key, option.keyword);
  });
}

using Marks = std::map<std::string, std::string>;  // by option

Marks marksOf(const host::PpdSession &session) {
  Marks marks;
  session.ppd().forEachOption([&](const ppd_option_t &option) {
    if (const auto marked = session.markedChoice(option.keyword)) marks[option.keyword] = *marked;
  });
  return marks;
}

/// Asks for what the library takes from attributes of a job ("media", "sides") for the options of
/// the printer, but for those in `asked`, which come first there too. Returns what was asked for.
Marks askForAttributes(const std::vector<host::OptionChoice> &attributes,
                       const std::set<std::string> &asked, const host::PrintQueue &queue,
                       host::PpdSession &session) {
  Marks implied;
  if (attributes.empty()) return implied;
  const auto plain = queue.openSession();
  const Marks before = marksOf(*plain);
  plain->markSaved(attributes);
  for (const auto &[key, choice] : marksOf(*plain)) {
    const auto names = [&option = key](const host::OptionChoice &attribute) {
      return host::isSameSetting(attribute.key, option);
    };
    const auto was = before.find(key);
    const bool isNew = was != before.end() && was->second != choice;
    if (asked.contains(key) ||
        (!isNew && std::none_of(attributes.begin(), attributes.end(), names)))
      continue;
    session.willChangePPDOptionKeyValue(&key, &choice);
    implied[key] = choice;
  }
  return implied;
}

/// Reads each -o as lp(1) does. Options of the printer are asked for, the others go with the job.
/// Returns what those others ask of the printer's options.
Marks apply(const std::vector<std::string> &options, const host::PrintQueue &queue,
            host::PpdSession &session, host::JobOptions &job) {
  std::vector<host::OptionChoice> attributes;
  std::set<std::string> asked;
  for (const std::string &words : options) {
    host::CupsOptions parsed;
    parsed.count = cupsParseOptions(words.c_str(), 0, &parsed.options);
    if (parsed.count == 0) throw host::Error(fmt::format("-o {}: not an option", words));
    for (int i = 0; i < parsed.count; ++i) {
      const std::string key = parsed.options[i].name;
      const std::string choice = parsed.options[i].value;
      if (const auto *option = ppdFindOption(session.ppdFile(), key.c_str())) {
        session.willChangePPDOptionKeyValue(&key, &choice);
        asked.insert(option->keyword);
      } else {
        noteUnknown(key, session.ppd());
        job.set(key, choice);
        attributes.push_back({key, choice});
      }
    }
  }
  return askForAttributes(attributes, asked, queue, session);
}

/// Runs the script on panels without a screen. Returns whether all of it could be run.
bool runScript(const PrintOptions &options, const std::shared_ptr<host::PpdSession> &session,
               LogSink &sink) {
  TextSource source(options.script);
  headless::Module module;
  const host::TraceTo trace(module, &sink);
  headless::UserInput user;
  std::ostream transcript(nullptr);  // discarded: print tells of the job only
  return script::ScriptRunner(module, session, user, transcript, std::cerr)
      .run(source.stream(), source.name());
}

/// Sends the job, and tells how far it is on a terminal. Returns its number; none when interrupted.
std::optional<int> send(const host::PrintJob &job, host::HostLog &log) try {
  log.carries(job.options);
  // Kept to the very end of the process, so that a job that was sent is also told as sent.
  static const auto *const ending = new host::EndingSignals;
  const bool showsProgress = isatty(STDERR_FILENO) != 0;
  const auto id = host::send(job, [&](long long sent, long long total) {
    if (showsProgress)
      std::fprintf(stderr, "\rsending: %lld %%",
                   std::min(sent * 100 / std::max(total, 1LL), 100LL));
    return !ending->wereHeard();
  });
  if (showsProgress) std::fputc('\n', stderr);
  if (!id) log.jobFailed("cancelled");
  return id;
} catch (const host::Error &error) {
  log.jobFailed(error.what());
  throw;
}

int print(const PrintOptions &options) {
  const host::PrintQueue queue(options.printer);
  const auto session = queue.openSession();
  std::vector<std::string> inputs = options.documents;
  if (!options.script.empty()) inputs.push_back(options.script);
  expectReadable(inputs);
  const auto sink = openTrace(options.trace);
  host::HostLog log(sink.get(), *session);
  host::JobOptions carried(queue.options());
  Marks implied;
  {
    const host::Refusals refusals(*session);
    implied = apply(options.options, queue, *session, carried);
    if (options.copies > 0) carried.set("copies", std::to_string(options.copies));
    if (!options.pages.empty()) carried.set("page-ranges", options.pages);
    if (!options.script.empty() && !runScript(options, session, *sink)) return kNotDone;
    const auto refused = refusals.sentences();
    for (const std::string &sentence : refused) tell("kwopde: {}", sentence);
    if (!refused.empty() && !options.force) {
      tell("kwopde: nothing was printed; --force prints all the same");
      return kNotDone;
    }
  }
  std::set<std::string> asAttributes;  // carried in the person's own words
  for (const auto &[key, choice] : implied)
    if (session->markedChoice(key) == choice) asAttributes.insert(key);
  carried.carry(*session, asAttributes);

  host::PrintJob job{queue.name(), options.title, options.documents, carried.all()};
  if (job.title.empty()) job.title = host::documentName(job.documents.front());
  const auto id = send(job, log);
  if (!id) {
    tell("kwopde: cancelled; the printer has no job");
    return kNotDone;
  }
  try {
    JobReport{carried.chosen(), job, *id}.write(options.json);
    log.jobWasSent(*id);
  } catch (const std::exception &) {
    noteLostOutput("what the job carries");  // it is sent, whatever becomes of the report
  }
  return kDone;
}

}  // namespace

Command printCommand() {
  const auto options = std::make_shared<PrintOptions>();
  return {
      "print",
      "Sends documents to a queue as one job, without a dialog",
      {{"--printer,-d", &options->printer, "QUEUE",
        "The queue, or an instance of it (QUEUE/NAME); else the default one"},
       {"--script", &options->script, "SCRIPT",
        "Sets the panels by this script first; - is standard input"},
       {"-o", &options->options, "KEY=CHOICE",
        "An option of the printer, or an attribute of the job such as sides=one-sided; as lp "
        "takes it"},
       {"--copies,-n", &options->copies, "N", "How many copies", Option::Check::positive},
       {"--pages,-P", &options->pages, "LIST", "The pages: 1-4,7"},
       {"--title,-t", &options->title, "TITLE", "The job's title"},
       {"--force", &options->force, "", "Prints although an option was refused or had to give way"},
       traceOption(options->trace),
       {"--json", &options->json, "", "Writes the job and what it carries as JSON"},
       {"documents", &options->documents, "DOCUMENT", "What to print; - is standard input",
        Option::Check::required}},
      [options] { return print(*options); }};
}

}  // namespace kwopde::app
