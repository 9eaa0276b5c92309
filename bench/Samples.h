// What the measured work is done on.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <string>

#include "headless/Headless.h"
#include "host/Stream.h"
#include "platform/HostCallback.h"

namespace kwopde::bench {

/// The path of the sample "KWO 7032".
extern const std::string kSample;

struct ClosePpd {
  void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, ClosePpd>;

/// Opens a PPD as the library does, and marks its defaults.
Ppd openPpd(const std::string &path);

/// A PPD with the text `options` behind its head, in a file.
host::Stream ppdFile(const std::string &options);

/// An option of `count` choices, C0, C1 and so on, with texts of one length.
std::string optionText(const std::string &key, int count);

/// A PPD whose print quality has `count` choices.
Ppd ppdWithChoices(int count);

/// The module without a screen, the same at every call.
headless::Module &module();

/// A host that grants everything, with or without marking it. It owns its PPD.
class WillingHost final : public HostCallback {
public:
  WillingHost(Ppd ppd, bool marks) : ppd_(std::move(ppd)), marks_(marks) {}
  std::string_view className() const override { return "WillingHost"; }
  ppd_file_t *ppdFile() override { return ppd_.get(); }
  bool respondsToSelector(std::string_view) const override { return true; }
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *choice) override {
    if (marks_) ppdMarkOption(ppd_.get(), key->c_str(), choice->c_str());
    return true;
  }

private:
  Ppd ppd_;
  bool marks_;
};

/// Everything that a dialog does with the panels, with 20 picks.
void wholeSession(const std::shared_ptr<HostCallback> &host);

}  // namespace kwopde::bench
