// Any bytes as a PPD, through a whole session with all panels.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

#include "check/PpdCheck.h"
#include "fuzz/Session.h"
#include "host/Error.h"

namespace {

const std::string &script() {
  static const std::string text = [] {
    std::string lines = "plugin.initWithBundle\nplugin.PDEPanelsForType\n";
    for (const std::string panel : {"media", "color", "sharpen"})
      for (const char *operation :
           {"restoreValuesAndReturnError", "panelName", "panelKind", "supportedPPDOptionKeys",
            "panelView", "willShow", "summaryInfo", "shouldHide"})
        lines += panel + "." + operation + "\n";
    lines +=
        "pick media.printQualityPopUp 1\npick media.printFinishPopUp 0\n"
        "pick media.matteLevelPopUp 2\npick color.colorModePopUp 1\n"
        "pick sharpen.enableFilterPopUp 1\nslide color.gammaSlider 1.789\n"
        "slide sharpen.amountSlider 35\ntype media.pageScaleEdit 85\nmedia.shouldPrint\n"
        "color.shouldPrint\nsharpen.saveValuesAndReturnError\nmark printQuality Draft\n"
        "mark pageScale 123\nrefuse on\nmedia.shouldHide\nmedia.willShow\ncontrols media\n"
        "controls color\nmedia.summaryInfo\ncolor.summaryInfo\nsharpen.summaryInfo\nmarked\n"
        "release\n";
    return lines;
  }();
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const int file = memfd_create("ppd", 0);
  if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
    return 0;
  const std::string path = "/proc/self/fd/" + std::to_string(file);
  try {
    kwopde::fuzz::runScript(
        std::make_shared<kwopde::host::PpdSession>(kwopde::host::PpdFile::open(path)), script());
    static kwopde::headless::Module module;
    kwopde::check::checkPpd(module, path);
  } catch (const kwopde::host::Error &) {
    // The usual end of a PPD that is none.
  }
  return 0;
}
