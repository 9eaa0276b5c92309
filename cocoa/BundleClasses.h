// The bundle's classes as an AppKit print dialog sees them: the contract of platform/PlugIn.h and
// platform/Panel.h, with its operations under their full names. nil is allowed for every argument.
#pragma once

#import <AppKit/AppKit.h>
#include <cups/ppd.h>

/// What a panel asks of the host. A host may leave out willChangePPDOptionKeyValue:ppdChoice:.
@protocol KWOPDEHostCallback
- (ppd_file_t *)ppdFile;
- (BOOL)willChangePPDOptionKeyValue:(NSString *)key ppdChoice:(NSString *)choice;
@end

/// The principal class.
@interface KWOPDEPlugIn : NSObject {
  struct KWOPDEPlugInParts *parts;
}
- (BOOL)initWithBundle:(NSBundle *)bundle;
/// Panels of the classes below, owned by the plug-in.
- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)host;

// For tools of ours.
/// Sends the trace to a `kwopde::LogSink`, borrowed; null stands for NSLog. Returns the one before.
+ (void *)setTraceSink:(void *)sink;
/// Returns a `kwopde::ModuleInspector`.
+ (const void *)moduleInspector;
@end

/// What MediaPDE, Media7032PDE, ColorPDE and SharpenPDE are.
@interface KWOPDEPanel : NSObject {
  struct KWOPDEPanelParts *parts;
}
- (id)initWithCallback:(id)callback andBundle:(NSBundle *)bundle;
- (NSView *)panelView;
- (NSString *)panelName;
- (NSString *)panelKind;
- (NSArray *)supportedPPDOptionKeys;
- (void)willShow;
- (BOOL)shouldHide;
- (BOOL)shouldPrint;
- (BOOL)shouldShowHelp;
- (void)PPDOptionKeyValueDidChange:(NSString *)key ppdChoice:(NSString *)choice;
- (BOOL)restoreValuesAndReturnError:(NSError **)error;
- (BOOL)saveValuesAndReturnError:(NSError **)error;
- (NSDictionary *)summaryInfo;
- (void)getNonPPDSettingsFromPrintSettings;
- (void)writeNonPPDSettingsToPrintSettings;

// For tools of ours; not traced.
/// Returns a `kwopde::PanelInspector`, which lives as long as the panel.
- (const void *)inspector;
@end

@interface MediaPDE : KWOPDEPanel
@end
@interface Media7032PDE : KWOPDEPanel
@end
@interface ColorPDE : KWOPDEPanel
@end
@interface SharpenPDE : KWOPDEPanel
@end
