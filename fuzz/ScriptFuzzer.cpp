// Any bytes as a script, on the sample PPD with all options.
#include <cstdint>
#include <cstdlib>

#include "fuzz/Session.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const std::string script(reinterpret_cast<const char *>(data), size);
  kwopde::fuzz::runScript(std::make_shared<kwopde::host::PpdSession>(
                              kwopde::host::PpdFile::open(std::getenv("KWOPDE_FUZZ_PPD"))),
                          script);
  return 0;
}
