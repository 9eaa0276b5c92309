// The bundle's classes as an AppKit print dialog sees them: the contract of platform/PlugIn.h and
// platform/Panel.h, with its operations under their full names. nil is allowed for every object.
#pragma once

#import <AppKit/AppKit.h>
#include <cups/ppd.h>

/// What a panel asks of the host. A host may leave out willChangePPDOptionKeyValue:ppdChoice:.
@protocol KWOPDEHostCallback
- (ppd_file_t *)ppdFile;
- (BOOL)willChangePPDOptionKeyValue:(NSString *)key ppdChoice:(NSString *)choice;
@end

/// One choice of a PPD option, as every item of a pop-up menu carries it as its represented object.
/// The operations are those of choice/PDEChoice.h.
@interface PDEChoice : NSObject {
  struct PDEChoiceParts *parts;
}
+ (id)choiceWithChoice:(ppd_choice_t *)choice;
- (id)initWithChoice:(ppd_choice_t *)choice;
- (NSString *)userTitle;
- (NSString *)ppdTitle;
- (ppd_choice_t *)choice;
- (BOOL)isDefaultChoice;
@end

/// The principal class.
@interface KWOPDEPlugIn : NSObject {
  NSBundle *pluginBundle;  // the host's
  NSMutableArray *PDEs;    // owned
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

/// What MediaPDE, Media7032PDE, ColorPDE and SharpenPDE are. What they answer is owned by the
/// panel: the view and the name live as long as it, the kind and the keys for good.
///
/// A panel class also answers every action of its options ("changePrintQualityOption:", whose
/// sender is ignored) and a setter for every outlet ("setPrintQualityPopUp:"). Both come from the
/// tables of its options, so that a new option needs nothing here.
@interface KWOPDEPanel : NSObject {
  struct KWOPDEPanelParts *parts;
}
/// Returns nil when the PPD lacks the panel's key options.
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

// What a panel does inside, as panels/PanelBase.h tells it.
- (void)initializeUI;
- (void)updateUI;
- (void)updateMarkedSelections;
- (void)querySettingsFromUI;
- (void)querySettingsFromPPD;
- (void)saveSettingsToPPD;
- (void)queryIntFromPPD:(int *)value forKey:(const char *)key;
- (void)queryDoubleFromPPD:(double *)value forKey:(const char *)key;
/// `value` is nil or owned by the caller, before and after.
- (void)queryNSStringFromPPD:(NSString **)value forKey:(const char *)key;
- (void)saveIntToPPD:(int)value FieldKey:(NSString *)key;
- (void)saveNSStringToPPD:(NSString *)value FieldKey:(NSString *)key;
- (int)indexOfMarkedOption:(ppd_option_t *)option forKey:(const char *)key;
- (PDEChoice *)selectionForPopUp:(NSPopUpButton *)popUp withKey:(NSString *)key;
- (void)setViewTitleByTag:(int)tag fromOptions:(ppd_option_t *)option;

// For tools of ours; not traced.
/// Returns a `kwopde::PanelInspector`, which lives as long as the panel.
- (const void *)inspector;
@end

@interface MediaPDE : KWOPDEPanel
@end
@interface Media7032PDE : KWOPDEPanel
@end
@interface ColorPDE : KWOPDEPanel
- (void)saveDoubleToPPD:(double)value FieldKey:(NSString *)key;
/// `value` is nil or owned by the caller, before and after.
- (void)queryTextFieldFromUI:(NSString **)value FieldUI:(NSTextField *)field;
@end
@interface SharpenPDE : KWOPDEPanel
@end
