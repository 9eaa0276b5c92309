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
void addPanel(const Object *self, PanelList &panels, const std::shared_ptr<HostCallback> &host,
              Bundle *bundle, const char *creating) {
  const auto panel = PanelBase::initWithCallback<P>(host, bundle);
  PDELog(self, creating, {kPrinterModuleTypeIDStr, panel});
  if (panel) panels.push_back(panel);
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
      addPanel<Media7032PDE>(this, *PDEs_, withHostInfo, pluginBundle_,
                             "Creating PDE of type kPrinterModuleTypeIDStr(%@) Media7032PDE (%p)");
    else
      addPanel<MediaPDE>(this, *PDEs_, withHostInfo, pluginBundle_,
                         "Creating PDE of type kPrinterModuleTypeIDStr(%@) MediaPDE (%p)");
    addPanel<ColorPDE>(this, *PDEs_, withHostInfo, pluginBundle_,
                       "Creating PDE of type kPrinterModuleTypeIDStr(%@) ColorPDE (%p)");
    addPanel<SharpenPDE>(this, *PDEs_, withHostInfo, pluginBundle_,
                         "Creating PDE of type kPrinterModuleTypeIDStr(%@) SharpenPDE (%p)");
    if (PDEs_->empty()) PDEs_.reset();
  }
  PDEEpilog(this, "PDEPanelsForType:withHostInfo:=");
  return PDEs_.get();
}

std::vector<PanelRequirement> KWOPDEPlugIn::requirements() {
  return {MediaPDE().requirement(), Media7032PDE().requirement(), ColorPDE().requirement(),
          SharpenPDE().requirement()};
}

}  // namespace kwopde
