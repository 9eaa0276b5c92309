// The principal class of the extension: it makes the panels.
#pragma once

#include <memory>

#include "platform/PlugIn.h"

namespace kwopde {

class KWOPDEPlugIn : public PlugIn {
public:
  std::string_view className() const override { return "KWOPDEPlugIn"; }

  bool initWithBundle(Bundle *bundle) override;

  /// The media panel (by the PPD's model number), the colour and the sharpen panel, in this order,
  /// without those that the PPD has no use for.
  const PanelList *PDEPanelsForType(const std::string *type,
                                    const std::shared_ptr<HostCallback> &withHostInfo) override;

  /// What the classes of panels need, in the order of making.
  static std::vector<PanelRequirement> requirements();

protected:
  /// Makes the core's panel of one class; null when the PPD has no use for it.
  using PanelMaker = std::shared_ptr<Panel> (*)(const std::shared_ptr<HostCallback> &host,
                                                Bundle *bundle);

  /// Makes a panel, by `make` unless an adapter has objects of its own for the panels of that
  /// class.
  virtual std::shared_ptr<Panel> makePanel(std::string_view className, PanelMaker make,
                                           const std::shared_ptr<HostCallback> &host,
                                           Bundle *bundle);

private:
  void addPanel(std::string_view className, PanelMaker make, const char *creating,
                const std::shared_ptr<HostCallback> &host);

  Bundle *pluginBundle_ = nullptr;  // the host's
  std::shared_ptr<PanelList> PDEs_;
};

}  // namespace kwopde
