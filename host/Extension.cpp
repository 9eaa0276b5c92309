#include "host/Extension.h"

namespace kwopde::host {

Extension::Extension(PlugInModule &module, std::shared_ptr<HostCallback> host, PpdSession &session)
    : host_(std::move(host)),
      session_(session),
      bundle_(module.bundle()),
      plugIn_(module.makePlugIn()) {}

Extension::~Extension() {
  session_.setPanels(nullptr);
}

const PanelList *Extension::open() {
  plugIn_->initWithBundle(bundle_.get());
  const std::string type(kPrinterModuleTypeIDStr);
  return ask(&type);
}

const PanelList *Extension::ask(const std::string *type) {
  panels_ = plugIn_->PDEPanelsForType(type, host_);
  session_.setPanels(panels_);
  return panels_;
}

}  // namespace kwopde::host
