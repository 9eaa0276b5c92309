#include "cocoa/CocoaInterfaceLoader.h"

#import <AppKit/AppKit.h>

#include "cocoa/CocoaControls.h"

namespace kwopde::cocoa {

bool CocoaInterfaceLoader::loadNibNamed(std::string_view name, InterfaceOwner &owner) {
  id object = nativeOf(&owner);
  if (!object) return false;
  const bool loaded = [NSBundle loadNibNamed:stringFrom(name) owner:object];
  NSDictionary *outlets = [object takeOutlets];
  NSView *top = [outlets objectForKey:@"pdeView"];
  if (!loaded || ![top isKindOfClass:[NSView class]]) return false;
  const auto view = std::make_shared<CocoaPanelView>(top);
  // Loading leaves the file's own reference to whom it was loaded for.
  [top release];
  forEach<NSString>([outlets keyEnumerator], [&](NSString *outlet) {
    if (const auto control = view->control([outlets objectForKey:outlet]))
      owner.setOutlet(textOf(outlet), control);
  });
  owner.setOutlet("pdeView", view);
  return true;
}

}  // namespace kwopde::cocoa
