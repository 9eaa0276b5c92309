// The extension as a host has it open: a plug-in of a module, and its panels.
#pragma once

#include <memory>
#include <string>

#include "host/PpdSession.h"
#include "platform/PlugIn.h"

namespace kwopde::host {

class Extension {
public:
  /// Makes a plug-in of `module`, which must outlive this, for the PPD of `session`. It is neither
  /// initialised nor asked for panels yet.
  Extension(PlugInModule &module, const std::shared_ptr<PpdSession> &session)
      : Extension(module, session, *session) {}

  /// The same for a host object that stands before `session` and owns it.
  Extension(PlugInModule &module, std::shared_ptr<HostCallback> host, PpdSession &session);

  Extension(const Extension &) = delete;
  Extension &operator=(const Extension &) = delete;

  /// Drops the plug-in. The session lives on, and announces to no panel.
  ~Extension();

  /// Initialises the plug-in with the module's bundle and asks it for the printer's panels. Returns
  /// what `panels` does from now on.
  const PanelList *open();

  /// Asks the plug-in for the panels of `type`, which may be null; the session announces to them
  /// from now on, and to those of an earlier call no more.
  const PanelList *ask(const std::string *type);

  /// Returns the panels that were asked for last, owned by the plug-in; null when there are none.
  const PanelList *panels() const { return panels_; }

  PlugIn &plugIn() const { return *plugIn_; }
  Bundle *bundle() const { return bundle_.get(); }
  PpdSession &session() const { return session_; }

private:
  // In the order of making; dropped in the opposite one.
  std::shared_ptr<HostCallback> host_;
  PpdSession &session_;
  std::shared_ptr<Bundle> bundle_;
  std::unique_ptr<PlugIn> plugIn_;
  const PanelList *panels_ = nullptr;
};

}  // namespace kwopde::host
