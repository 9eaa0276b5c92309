#include "queue/ThreadAccess.h"

namespace kwopde::host {

ThreadAccess::ThreadAccess()
    : server_(cupsServer()), port_(ippPort()), user_(cupsUser()), encryption_(cupsEncryption()) {}

void ThreadAccess::use(const Password &password) const {
  cupsSetServer(server_.c_str());
  ippSetPort(port_);
  cupsSetUser(user_.c_str());
  cupsSetEncryption(encryption_);
  const auto ask = [](const char *prompt, http_t *http, const char *method, const char *resource,
                      void *given) {
    return (*static_cast<const Password *>(given))(prompt, http, method, resource);
  };
  cupsSetPasswordCB2(ask, const_cast<Password *>(&password));
}

}  // namespace kwopde::host
