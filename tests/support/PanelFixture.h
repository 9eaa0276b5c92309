// A panel on a real PPD, with real widgets, under a recording host and a recorded trace.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QSlider>

#include "panels/ColorPDE.h"
#include "panels/Media7032PDE.h"
#include "panels/MediaPDE.h"
#include "panels/SharpenPDE.h"
#include "qt/QtInterfaceLoader.h"
#include "qt/QtUserInput.h"
#include "tests/support/Dialogs.h"
#include "tests/support/RecordingHost.h"

namespace kwopde::test {

/// Names panels by a number and counts how often it is asked.
class CountingBundle final : public Bundle {
public:
  std::string_view className() const override { return "CountingBundle"; }
  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *,
                                                   const std::string *) const override {
    return key + std::to_string(++asked);
  }
  mutable int asked = 0;
};

/// The widgets of the interface files as long as it lives.
class InterfaceFiles {
public:
  explicit InterfaceFiles(
      const qt::QtInterfaceLoader::Interfaces &interfaces = qt::QtInterfaceLoader::ownInterfaces())
      : loader_(interfaces), before_(Bundle::setInterfaceLoader(&loader_)) {}
  InterfaceFiles(const InterfaceFiles &) = delete;
  InterfaceFiles &operator=(const InterfaceFiles &) = delete;
  ~InterfaceFiles() { Bundle::setInterfaceLoader(before_); }

private:
  qt::QtInterfaceLoader loader_;
  InterfaceLoader *before_;
};

/// A panel of class `P`; null when it was refused.
template <class P>
struct PanelOn {
  explicit PanelOn(const std::string &options)
      : ppd(options), host(std::make_shared<RecordingHost>(ppd.get())) {
    panel = PanelBase::initWithCallback<P>(host, bundle.get());
  }

  /// As a dialog opens it.
  PanelOn &shown() {
    panel->restoreValuesAndReturnError(nullptr);
    panel->panelView();
    panel->willShow();
    host->requests.clear();
    trace.take();
    return *this;
  }

  template <class Widget>
  Widget &widget(const char *outlet) const {
    return test::widget<Widget>(*static_cast<QWidget *>(panel->pdeView->nativeView()), outlet);
  }

  InterfaceFiles files;
  TraceRecorder trace;
  TestPpd ppd;
  std::shared_ptr<RecordingHost> host;
  std::shared_ptr<CountingBundle> bundle = std::make_shared<CountingBundle>();
  std::shared_ptr<P> panel;
  qt::QtUserInput user;
};

}  // namespace kwopde::test
