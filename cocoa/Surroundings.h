// The core's surroundings in an AppKit bundle: the host's callback object, the bundle, interface
// files and the log.
#pragma once

#import <AppKit/AppKit.h>

#include "platform/Bundle.h"
#include "platform/HostCallback.h"
#include "platform/LogSink.h"

namespace kwopde::cocoa {

/// The host's callback object, borrowed: every panel object retains it on its own.
class CocoaCallback final : public HostCallback {
public:
  explicit CocoaCallback(id host);

  std::string_view className() const override { return className_; }
  ppd_file_t *ppdFile() override;
  bool respondsToSelector(std::string_view selector) const override;
  bool willChangePPDOptionKeyValue(const std::string *key, const std::string *ppdChoice) override;

private:
  id host_;
  std::string className_;
};

/// A bundle of the system, borrowed, with its Localizable.strings.
class CocoaBundle final : public Bundle {
public:
  explicit CocoaBundle(NSBundle *bundle) : bundle_(bundle) {}

  std::string_view className() const override { return "NSBundle"; }
  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *value,
                                                   const std::string *table) const override;

private:
  NSBundle *bundle_;
};

/// Loads interface files of the bundle that this code is in.
class CocoaInterfaceLoader final : public InterfaceLoader {
public:
  bool loadNibNamed(std::string_view name, InterfaceOwner &owner) override;
};

class SystemLog final : public LogSink {
public:
  void writeLine(std::string_view line) override;
};

}  // namespace kwopde::cocoa
