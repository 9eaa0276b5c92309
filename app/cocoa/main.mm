// kwopde-cocoa: drives the AppKit bundle by scripts, as `kwopde run` drives the Qt module.
#import <AppKit/AppKit.h>
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>

#include "app/cocoa/BundleModule.h"
#include "cocoa/CocoaUserInput.h"
#include "cocoa/Strings.h"
#include "host/Error.h"
#include "host/Extension.h"
#include "host/PpdSession.h"
#include "host/TraceTo.h"
#include "script/ScriptRunner.h"

namespace {

using namespace kwopde;

/// Saves a picture of every panel's view in `folder`.
void takePictures(const PanelList &panels, const std::string &folder) {
  for (const auto &panel : panels) {
    panel->restoreValuesAndReturnError(nullptr);
    View *view = panel->panelView();
    panel->willShow();
    auto *native = static_cast<NSView *>(view->nativeView());
    NSWindow *window = [[NSWindow alloc] initWithContentRect:[native frame]
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    [window setTitle:cocoa::stringFrom(panel->panelName())];
    [[window contentView] addSubview:native];
    [window orderFront:nil];
    [native display];
    [native lockFocus];
    NSBitmapImageRep *picture =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[native bounds]] autorelease];
    [native unlockFocus];
    const std::string path = folder + "/" + std::string(panel->className()) + ".png";
    [[picture representationUsingType:NSPNGFileType properties:[NSDictionary dictionary]]
        writeToFile:cocoa::stringFrom(&path)
         atomically:NO];
    [native removeFromSuperview];
    [window close];
  }
}

int run(const std::string &bundle, const std::string &ppd, bool noConstraintHandling,
        const std::string &script, const std::string &pictures) {
  auto session =
      std::make_shared<host::PpdSession>(host::PpdFile::open(ppd), !noConstraintHandling);
  cocoa::BundleModule module(bundle);
  cocoa::CocoaUserInput user;
  if (!pictures.empty()) {
    host::Extension extension(module, session);
    if (const PanelList *panels = extension.open()) takePictures(*panels, pictures);
    return 0;
  }
  std::ifstream file;
  if (script != "-") {
    file.open(script);
    if (!file) throw host::Error(script + ": cannot be read");
  }
  script::ScriptRunner runner(module, session, user, std::cout, std::cerr);
  const host::TraceTo trace(module, &runner);
  return runner.run(script == "-" ? std::cin : file, script) ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv) {
  CLI::App commandLine("Drives the AppKit bundle of the print-dialog extension", "kwopde-cocoa");
  commandLine.require_subcommand(1);
  auto *command =
      commandLine.add_subcommand("run", "Drives the panels by a script and writes a transcript");
  std::string ppd;
  std::string bundle = KWOPDE_BUNDLE;
  std::string script = "-";
  std::string pictures;
  bool noConstraintHandling = false;
  command->add_option("--ppd", ppd, "The printer's PPD file")->required()->type_name("FILE");
  command->add_option("--bundle", bundle, "The bundle")->type_name("FOLDER");
  command->add_flag("--no-constraint-handling", noConstraintHandling,
                    "Acts as a host that marks nothing on request");
  command->add_option("--snapshot", pictures, "Saves a picture of every panel there instead")
      ->type_name("DIR");
  command->add_option("script", script, "The script; - is standard input")->type_name("SCRIPT");
  try {
    commandLine.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return commandLine.exit(error) == 0 ? 0 : 2;
  }
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  int status = 2;
  try {
    [NSApplication sharedApplication];
    status = run(bundle, ppd, noConstraintHandling, script, pictures);
  } catch (const host::Error &error) {
    std::cerr << "kwopde-cocoa: " << error.what() << '\n';
  }
  [pool release];
  return status;
}
