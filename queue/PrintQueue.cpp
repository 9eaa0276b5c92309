#include "queue/PrintQueue.h"

#include <cups/cups.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "host/Error.h"
#include "queue/CupsConnection.h"
#include "queue/Presets.h"

namespace kwopde::host {

namespace {

/// What the names of attributes that hold a queue's defaults end in.
constexpr std::string_view kDefault = "-default";

/// The first printer of a class of printers; empty when `queue` is no class.
std::string firstMember(CupsConnection &server, const std::string &queue) {
  const IppMessage answer = server.ask(requestAbout(queue, IPP_OP_GET_PRINTER_ATTRIBUTES), "/");
  ipp_attribute_t *members = ippFindAttribute(answer.get(), "member-names", IPP_TAG_NAME);
  return members ? ippGetString(members, 0, nullptr) : std::string();
}

/// A PPD that no session has.
struct SparePpd {
  std::string language;  // which its texts are in
  PpdFile ppd;
};

/// The one of the session that was dropped last: applications open one dialog after another, and to
/// read a PPD takes most of what the panels add to one.
std::optional<SparePpd> &sparePpd() {
  // Never destroyed: sessions may live longer than what is static.
  static auto *const spare = new std::optional<SparePpd>;
  return *spare;
}

std::string nameOfPpd(const std::string &queue) {
  return fmt::format("the PPD of the printer {}", queue);
}

/// Fetches the PPD of a printer, or of the first one of a class; null when there is none. Throws
/// `JobError` when it did not come whole.
Stream fetchPpd(const std::string &queue, const GoesOn &goesOn) {
  const auto fetch = [](CupsConnection &server, const std::string &printer) {
    return server.fetch("/printers/" + printer + ".ppd");
  };
  try {
    CupsConnection server(goesOn);
    Stream ppd = fetch(server, queue);
    if (!ppd)
      if (const std::string member = firstMember(server, queue); !member.empty())
        ppd = fetch(server, member);
    return ppd;
  } catch (const JobError &error) {
    throw JobError(fmt::format("{} did not come: {}", nameOfPpd(queue), error.what()));
  }
}

/// How often the library is asked again for a printer that is there.
constexpr int kMostLookUps = 5;

/// Returns whether the server has the printer, or with an empty name a default one. Throws
/// `JobError` when it does not answer.
bool hasPrinter(CupsConnection &server, const std::string &queue) {
  const IppMessage question = queue.empty() ? IppMessage(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT))
                                            : requestAbout(queue, IPP_OP_GET_PRINTER_ATTRIBUTES);
  ippAddString(question.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-name");
  return faultIn(server.ask(question, "/")).empty();
}

bool hasPreset(const std::string &queue, const std::string &preset, const GoesOn &goesOn) {
  const auto names = Presets(queue, goesOn).names();
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string &name) { return isSameKey(name, preset); });
}

/// Throws `JobError` when `server` does not answer.
void expectAnswer(CupsConnection &server) {
  hasPrinter(server, {});
}

}  // namespace

PrintQueue::PrintQueue(const std::string &name, const GoesOn &goesOn) {
  CupsConnection server(goesOn);
  // The library takes a server that does not answer for one without that printer.
  expectAnswer(server);
  const auto slash = std::min(name.find('/'), name.size());
  const std::string queue = name.substr(0, slash);
  const std::string instance = name.substr(std::min(slash + 1, name.size()));
  const auto find = [&] {
    const NoOtherConnection only;
    return cupsGetNamedDest(server.get(), queue.empty() ? nullptr : queue.c_str(),
                            instance.empty() ? nullptr : instance.c_str());
  };
  cups_dest_t *dest = find();
  // To the library, a connection that was lost is a printer that is not there.
  for (int repeats = 0; !dest && hasPrinter(server, queue); ++repeats) {
    if (repeats == kMostLookUps && queue.empty()) break;
    if (repeats == kMostLookUps)
      throw JobError(fmt::format("the CUPS server did not tell of the printer {}", queue));
    dest = find();
  }
  if (!dest)
    throw Error(name.empty() ? "there is no default printer: name one with --printer, or a PPD "
                               "file with --ppd"
                             : fmt::format("there is no printer {}: lpstat -e lists them", name));
  name_ = dest->name;
  if (dest->instance) instance_ = dest->instance;
  for (int i = 0; i < dest->num_options; ++i)
    options_.push_back({dest->options[i].name, dest->options[i].value});
  cupsFreeDests(1, dest);
  // The library makes an instance of every name.
  if (!instance.empty() && !hasPreset(name_, instance, goesOn))
    throw Error(
        fmt::format("the printer {} has no preset {}: lpstat -e lists them", name_, instance));
}

std::vector<std::string> PrintQueue::names(std::string_view models) {
  CupsConnection server;
  expectAnswer(server);
  const NoOtherConnection only;
  cups_dest_t *list = nullptr;
  const int count = cupsGetDests2(server.get(), &list);
  std::set<std::string> names;
  for (const cups_dest_t *dest = list; dest != list + count; ++dest) {
    const char *const model =
        cupsGetOption("printer-make-and-model", dest->num_options, dest->options);
    if (std::string_view(model ? model : "").starts_with(models)) names.insert(dest->name);
  }
  cupsFreeDests(count, list);
  return {names.begin(), names.end()};
}

std::vector<OptionChoice> PrintQueue::defaults(const GoesOn &goesOn) const {
  CupsConnection server(goesOn);
  const IppMessage answer = server.ask(requestAbout(name_, IPP_OP_GET_PRINTER_ATTRIBUTES), "/");
  std::vector<OptionChoice> defaults;
  for (ipp_attribute_t *attribute = ippFirstAttribute(answer.get()); attribute;
       attribute = ippNextAttribute(answer.get())) {
    const char *const text = ippGetName(attribute);
    const std::string_view name = text ? text : "";
    if (!name.ends_with(kDefault)) continue;
    std::array<char, IPP_MAX_LENGTH> value;
    ippAttributeString(attribute, value.data(), value.size());
    defaults.push_back({std::string(name.substr(0, name.size() - kDefault.size())), value.data()});
  }
  return defaults;
}

void PrintQueue::fetch(const GoesOn &goesOn) {
  ppd_ = fetchPpd(name_, goesOn);
  defaults_ = defaults(goesOn);
}

std::shared_ptr<PpdSession> PrintQueue::openSession() const {
  const Stream asked = ppd_ ? Stream() : fetchPpd(name_, {});
  std::FILE *const ppd = ppd_ ? ppd_->get() : asked.get();
  if (!ppd)
    throw Error(
        fmt::format("the printer {} has no PPD, so it has no panels: choose another, or "
                    "set it up with a PPD (lpadmin -p {} -P FILE)",
                    name_, name_));
  const std::string name = nameOfPpd(name_);
  std::string language = cupsLangDefault()->language;
  auto spare = std::exchange(sparePpd(), {});
  if (!spare || spare->language != language ||
      spare->ppd.fingerprint() != PpdFile::fingerprintOf(ppd, name))
    spare = {language, PpdFile::read(ppd, name)};
  // Nothing here needs memory, and so nothing fails: a job may have been sent.
  auto keep = [language = std::move(language)](PpdSession *dropped) mutable {
    sparePpd() = {std::move(language), dropped->takePpd()};
    delete dropped;
  };
  const std::shared_ptr<PpdSession> session(new PpdSession(std::move(spare->ppd)), std::move(keep));
  session->setPrinter(destination());
  session->markSaved(options_);
  if (!defaults_.empty()) session->setQueueDefaults(defaults_);
  return session;
}

bool PrintQueue::hasOtherPpd(const std::string &queue, std::size_t fingerprint,
                             const GoesOn &goesOn) {
  const Stream ppd = fetchPpd(queue, goesOn);
  return ppd && PpdFile::fingerprintOf(ppd.get(), nameOfPpd(queue)) != fingerprint;
}

}  // namespace kwopde::host
