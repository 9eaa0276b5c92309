#include "queue/PrintQueue.h"

#include <cups/cups.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "host/Error.h"
#include "queue/CupsConnection.h"

namespace kwopde::host {

namespace {

/// What the names of attributes that hold a queue's defaults end in.
constexpr std::string_view kDefault = "-default";

Stream fetchPpd(CupsConnection &server, const std::string &queue) {
  return server.fetch("/printers/" + queue + ".ppd");
}

/// The first printer of a class of printers; empty when `queue` is no class.
std::string firstMember(CupsConnection &server, const std::string &queue) {
  const IppMessage answer = server.ask(requestAbout(queue, IPP_OP_GET_PRINTER_ATTRIBUTES), "/");
  ipp_attribute_t *members = ippFindAttribute(answer.get(), "member-names", IPP_TAG_NAME);
  return members ? ippGetString(members, 0, nullptr) : std::string();
}

/// A PPD that no session has, and what it was read from.
struct SparePpd {
  std::string text;      // of the file
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

std::string textOf(std::FILE *file) {
  std::string text;
  std::array<char, 16384> block;
  while (const auto size = std::fread(block.data(), 1, block.size(), file))
    text.append(block.data(), size);
  return text;
}

/// Throws `JobError` when `server` does not answer.
void expectAnswer(CupsConnection &server) {
  const IppMessage question(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
  ippAddString(question.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-name");
  server.ask(question, "/");
}

}  // namespace

PrintQueue::PrintQueue(const std::string &name) {
  CupsConnection server;
  // The library takes a server that does not answer for one without that printer.
  expectAnswer(server);
  const auto slash = std::min(name.find('/'), name.size());
  const std::string queue = name.substr(0, slash);
  const std::string instance = name.substr(std::min(slash + 1, name.size()));
  cups_dest_t *const dest = cupsGetNamedDest(server.get(), queue.empty() ? nullptr : queue.c_str(),
                                             instance.empty() ? nullptr : instance.c_str());
  if (!dest) expectAnswer(server);
  if (!dest)
    throw Error(name.empty() ? "there is no default printer: name one with --printer, or a PPD "
                               "file with --ppd"
                             : fmt::format("there is no printer {}: lpstat -e lists them", name));
  name_ = dest->name;
  if (dest->instance) instance_ = dest->instance;
  for (int i = 0; i < dest->num_options; ++i)
    options_.push_back({dest->options[i].name, dest->options[i].value});
  cupsFreeDests(1, dest);
}

std::vector<std::string> PrintQueue::names(std::string_view models) {
  CupsConnection server;
  expectAnswer(server);
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

std::vector<OptionChoice> PrintQueue::defaults() const {
  CupsConnection server;
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

std::shared_ptr<PpdSession> PrintQueue::openSession() const {
  Stream ppd;
  try {
    CupsConnection server;
    ppd = fetchPpd(server, name_);
    if (!ppd)
      if (const std::string member = firstMember(server, name_); !member.empty())
        ppd = fetchPpd(server, member);
  } catch (const JobError &error) {
    throw JobError(fmt::format("the PPD of the printer {} did not come: {}", name_, error.what()));
  }
  if (!ppd)
    throw Error(
        fmt::format("the printer {} has no PPD, so it has no panels: choose another, or "
                    "set it up with a PPD (lpadmin -p {} -P FILE)",
                    name_, name_));
  const std::string text = textOf(ppd.get());
  const std::string language = cupsLangDefault()->language;
  auto spare = std::exchange(sparePpd(), {});
  if (!spare || spare->text != text || spare->language != language)
    spare = {text, language,
             PpdFile::read(ppd.get(), fmt::format("the PPD of the printer {}", name_))};
  const std::shared_ptr<PpdSession> session(new PpdSession(std::move(spare->ppd)),
                                            [text, language](PpdSession *dropped) {
                                              sparePpd() = {text, language, dropped->takePpd()};
                                              delete dropped;
                                            });
  session->markSaved(options_);
  return session;
}

}  // namespace kwopde::host
