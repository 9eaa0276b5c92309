#include "plugin/KWOPDEPlugin.h"

#include <cups/ppd.h>

#include "panels/ColorPDE.h"
#include "panels/Media7032PDE.h"
#include "panels/MediaPDE.h"
#include "panels/SharpenPDE.h"
#include "platform/Kept.h"
#include "platform/Numbers.h"
#include "plugin/PDELogging.h"

namespace kwopde {

namespace {

/// The printer model with the extended media panel.
constexpr int kExtendedModel = 7032;

bool isExtendedModel(const Object *self, ppd_file_t *ppd) {
  if (!ppd) {
    PDELog(self, "PPD: nil");
    return false;
  }
  const ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsModelNumber", nullptr);
  if (!attribute) {
    PDELog(self, "ATTR: nil");
    return false;
  }
  PDELog(self, "ATTR: [%s][%s][%s][%s]",
         {attribute->name, attribute->spec, attribute->text,
          attribute->value ? attribute->value : "NULL"});
  return attribute->value && leadingInteger(attribute->value) == kExtendedModel;
}

template <class P>
std::shared_ptr<Panel> makeWith(const std::shared_ptr<HostCallback> &host, Bundle *bundle) {
  return PanelBase::initWithCallback<P>(host, bundle);
}

}  // namespace

bool KWOPDEPlugIn::initWithBundle(Bundle *bundle) {
  PDEProlog(this, "initWithBundle:(%@, %p)", {bundle, bundle});
  pluginBundle_ = bundle;
  PDEEpilog(this, "initWithBundle:=BOOL(YES)");
  return true;
}

const PanelList *KWOPDEPlugIn::PDEPanelsForType(const std::string *type,
                                                const std::shared_ptr<HostCallback> &withHostInfo) {
  PDEProlog(this, "PDEPanelsForType:(%@) withHostInfo:(%@)", {type, withHostInfo});
  // Kept: a host that asks twice may still be using the panels of its first call.
  if (PDEs_) keepForever(PDEs_);
  PDEs_ = std::make_shared<PanelList>();
  if (type && *type == kPrinterModuleTypeIDStr) {
    PDEs_->reserve(3);
    if (isExtendedModel(this, withHostInfo ? withHostInfo->ppdFile() : nullptr))
      addPanel("Media7032PDE", makeWith<Media7032PDE>,
               "Creating PDE of type kPrinterModuleTypeIDStr(%@) Media7032PDE (%p)", withHostInfo);
    else
      addPanel("MediaPDE", makeWith<MediaPDE>,
               "Creating PDE of type kPrinterModuleTypeIDStr(%@) MediaPDE (%p)", withHostInfo);
    addPanel("ColorPDE", makeWith<ColorPDE>,
             "Creating PDE of type kPrinterModuleTypeIDStr(%@) ColorPDE (%p)", withHostInfo);
    addPanel("SharpenPDE", makeWith<SharpenPDE>,
             "Creating PDE of type kPrinterModuleTypeIDStr(%@) SharpenPDE (%p)", withHostInfo);
    if (PDEs_->empty()) PDEs_.reset();
  }
  PDEEpilog(this, "PDEPanelsForType:withHostInfo:=");
  return PDEs_.get();
}

void KWOPDEPlugIn::addPanel(std::string_view className, PanelMaker make, const char *creating,
                            const std::shared_ptr<HostCallback> &host) {
  const auto panel = makePanel(className, make, host, pluginBundle_);
  PDELog(this, creating, {kPrinterModuleTypeIDStr, panel});
  if (panel) PDEs_->push_back(panel);
}

std::shared_ptr<Panel> KWOPDEPlugIn::makePanel(std::string_view, PanelMaker make,
                                               const std::shared_ptr<HostCallback> &host,
                                               Bundle *bundle) {
  return make(host, bundle);
}

std::vector<PanelRequirement> KWOPDEPlugIn::requirements() {
  return {MediaPDE().requirement(), Media7032PDE().requirement(), ColorPDE().requirement(),
          SharpenPDE().requirement()};
}

}  // namespace kwopde
