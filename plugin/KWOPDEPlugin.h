// The principal class of the extension: it makes the panels.
#pragma once

#include <memory>

#include "panels/PanelClasses.h"
#include "platform/PlugIn.h"

namespace kwopde {

class KWOPDEPlugIn : public PlugIn {
public:
  std::string_view className() const override { return "KWOPDEPlugIn"; }

  bool initWithBundle(Bundle *bundle) override;

  /// Returns the media panel (by the PPD's model number), the colour and the sharpen panel, in this
  /// order, without those that the PPD has no use for.
  const PanelList *PDEPanelsForType(const std::string *type,
                                    const std::shared_ptr<HostCallback> &withHostInfo) override;

protected:
  /// Makes a panel of `panelClass`; an adapter that has objects of its own for panels says how.
  /// Null when the PPD has no use for it.
  virtual std::shared_ptr<Panel> makePanel(const PanelClass &panelClass,
                                           const std::shared_ptr<HostCallback> &host,
                                           Bundle *bundle);

private:
  Bundle *pluginBundle = nullptr;  // the host's
  std::shared_ptr<PanelList> PDEs;
};

}  // namespace kwopde
