#include "plugin/KWOPDEPlugin.h"

#include <cups/ppd.h>

#include "platform/Kept.h"
#include "platform/Numbers.h"
#include "plugin/PDELogging.h"

namespace kwopde {

namespace {

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

}  // namespace

bool KWOPDEPlugIn::initWithBundle(Bundle *bundle) {
  PDEProlog(this, "initWithBundle:(%@, %p)", {bundle, bundle});
  pluginBundle = bundle;
  PDEEpilog(this, "initWithBundle:=BOOL(YES)");
  return true;
}

const PanelList *KWOPDEPlugIn::PDEPanelsForType(const std::string *type,
                                                const std::shared_ptr<HostCallback> &withHostInfo) {
  PDEProlog(this, "PDEPanelsForType:(%@) withHostInfo:(%@)", {type, withHostInfo});
  // Kept: a host that asks twice may still be using the panels of its first call.
  if (PDEs) keepForever(PDEs);
  PDEs = std::make_shared<PanelList>();
  PDEs->reserve(3);
  if (type && *type == kPrinterModuleTypeIDStr) {
    const Models ours = isExtendedModel(this, withHostInfo ? withHostInfo->ppdFile() : nullptr)
                            ? Models::extended
                            : Models::others;
    for (const PanelClass &panelClass : panelClasses()) {
      if (panelClass.models != Models::all && panelClass.models != ours) continue;
      const auto panel = makePanel(panelClass, withHostInfo, pluginBundle);
      PDELog(this, "Creating PDE of type kPrinterModuleTypeIDStr(%@) %@ (%p)",
             {kPrinterModuleTypeIDStr, panelClass.name, panel});
      if (panel) PDEs->push_back(panel);
    }
    if (PDEs->empty()) PDEs.reset();
  }
  PDEEpilog(this, "PDEPanelsForType:withHostInfo:=");
  return PDEs.get();
}

std::shared_ptr<Panel> KWOPDEPlugIn::makePanel(const PanelClass &panelClass,
                                               const std::shared_ptr<HostCallback> &host,
                                               Bundle *bundle) {
  return panelClass.initWithCallback(host, bundle);
}

}  // namespace kwopde
