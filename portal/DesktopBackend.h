// The print portal that a desktop brings itself, for machines without a printer of ours.
#pragma once

#include <QString>

#include "portal/Request.h"

namespace kwopde::portal {

/// Returns the bus name of the backend that serves printing on `desktop`, as XDG_CURRENT_DESKTOP
/// has it ("ubuntu:GNOME"), by the files in xdg-desktop-portal/portals of the data folders; the one
/// of GTK when the desktop has none. Empty when there is none but ours.
QString desktopBackend(const QString &desktop);

/// Hands the call of `request`, and its end, on to the backend with that bus name.
void forward(Request &request, const QString &backend);

}  // namespace kwopde::portal
