#pragma once

#include "ui/uninstaller_view.hpp"

#import <AppKit/AppKit.h>

namespace kelmar {
struct WindowState;
}

/// The application: one model, one window, and the rule that nothing ends while a run is going on.
/// On the main thread only.
@interface AppDelegate : NSObject <NSApplicationDelegate, NSWindowDelegate> {
    kelmar::WindowState* state_;
}

/// Starts nothing yet.
- (instancetype)init;
- (instancetype)initWithPaths:(const kelmar::KelmarPaths&)paths
                      sources:(const kelmar::UninstallerModel::Sources&)sources;

- (kelmar::UninstallerModel&)model;
- (kelmar::UninstallerView&)view;

/// Not while the question is open, over which the panel would lie.
- (void)showAboutPanel:(id)sender;

/// Nil until the application has finished launching.
- (NSWindow*)window;

@end
