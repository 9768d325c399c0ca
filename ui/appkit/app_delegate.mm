#include "ui/appkit/app_delegate.h"

#include "system/process/retained_macos.hpp"
#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/confirmation.h"
#include "ui/appkit/dispatcher.hpp"
#include "ui/appkit/field_editor.h"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/menu.h"
#include "ui/appkit/page.h"
#include "ui/appkit/run_loop_modes.h"
#include "ui/appkit/text_label.h"
#include "ui/look.hpp"
#include "ui/texts.hpp"

namespace kelmar {

/// What the delegate owns.
struct WindowState {
    WindowState(const KelmarPaths& paths, const UninstallerModel::Sources& sources)
        : model(std::make_shared<UninstallerModel>(paths, std::make_shared<QueueDispatcher>(),
                                                   sources)),
          view(model, [] { [NSApp terminate:nil]; }) {}

    std::shared_ptr<UninstallerModel> model;
    UninstallerView view;
    const WindowActions actions{
        [this](Action action) { view.perform(action); },
        [this](bool all) { view.setDeleteAllData(all); },
        [this](const std::string& path, bool selected) { view.setSelected(path, selected); }};
    Retained<NSWindow> window;
    Retained<KelmarConfirmationSheet> sheet;
    Retained<KelmarFieldEditor> editor; ///< of the labels
    KelmarPageView* page = nil;         ///< the window's content
    bool renderIsDue = false;           ///< in the next turn of the run loop
};

namespace {

NSWindow* makeWindow() {
    const NSRect frame = NSMakeRect(0, 0, Look::windowWidth, Look::windowHeight);
    const NSWindowStyleMask style =
        NSWindowStyleMaskTitled | NSWindowStyleMaskClosable | NSWindowStyleMaskMiniaturizable;
    NSWindow* const window = [[NSWindow alloc] initWithContentRect:frame styleMask:style
                                                           backing:NSBackingStoreBuffered
                                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    return window;
}

} // namespace

} // namespace kelmar

@implementation AppDelegate

- (instancetype)init {
    return [self initWithPaths:kelmar::KelmarPaths::current() sources:{}];
}

- (instancetype)initWithPaths:(const kelmar::KelmarPaths&)paths
                      sources:(const kelmar::UninstallerModel::Sources&)sources {
    self = [super init];
    if (self != nil) {
        state_ = new kelmar::WindowState(paths, sources);
        state_->view.observe([self] { [self renderSoon]; });
    }
    return self;
}

- (void)dealloc {
    state_->view.observe([] {});
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [state_->window.get() setDelegate:nil];
    delete state_;
    [super dealloc];
}

- (kelmar::UninstallerModel&)model {
    return *state_->model;
}

- (kelmar::UninstallerView&)view {
    return state_->view;
}

- (NSWindow*)window {
    return state_->window.get();
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    static_cast<void>(notification);
    kelmar::fromToolkit([self] {
        // A program of one window has no use for tabs, and else gets items for them in its menu.
        [NSWindow setAllowsAutomaticWindowTabbing:NO];
        kelmar::installMainMenu(NSApp, kelmar::mainMenu());
        [self openWindow];
        [NSApp activateIgnoringOtherApps:YES];
        state_->model->scan();
    });
}

- (void)openWindow {
    state_->window = kelmar::Retained<NSWindow>::adopt(kelmar::makeWindow());
    NSWindow* const window = state_->window.get();
    const NSSize size = NSMakeSize(kelmar::Look::windowWidth, kelmar::Look::windowHeight);
    state_->page = [KelmarPageView viewWithActions:&state_->actions
                                             frame:NSMakeRect(0, 0, size.width, size.height)];
    state_->sheet = kelmar::Retained<KelmarConfirmationSheet>::adopt(
        [[KelmarConfirmationSheet alloc] initWithActions:&state_->actions window:window]);
    [window setContentView:state_->page];
    [window setContentSize:size];
    [window setTitle:kelmar::foundationText(kelmar::Texts::program)];
    [window setRestorable:NO];
    [window setDelegate:self];
    [window setAutorecalculatesKeyViewLoop:YES];
    [self render];
    [window center];
    [window makeKeyAndOrderFront:nil];
}

/// What changes is seen only after this call; and many changes make one picture.
- (void)renderSoon {
    if (!state_->renderIsDue) {
        state_->renderIsDue = true;
        [self performSelector:@selector(render) withObject:nil afterDelay:0
                      inModes:kelmar::everyRunLoopMode()];
    }
}

- (void)render {
    kelmar::fromToolkit([self] {
        state_->renderIsDue = false;
        if (state_->page != nil) {
            const kelmar::Page page = state_->view.page();
            [state_->page render:page];
            [state_->sheet.get() render:page.confirmation];
        }
    });
}

- (void)showAboutPanel:(id)sender {
    [NSApp orderFrontStandardAboutPanel:sender];
}

/// Asked for the items that come here, which is the one above.
- (BOOL)validateMenuItem:(NSMenuItem*)item {
    static_cast<void>(item);
    return [state_->sheet.get() alert] != nil ? NO : YES;
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
    static_cast<void>(application);
    return YES;
}

- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)application {
    static_cast<void>(application);
    return state_->model->isWorking() ? NSTerminateCancel : NSTerminateNow;
}

- (id)windowWillReturnFieldEditor:(NSWindow*)window toObject:(id)client {
    static_cast<void>(window);
    if (![client isKindOfClass:[KelmarTextLabel class]]) {
        return nil;
    }
    if (state_->editor.get() == nil) {
        state_->editor = kelmar::Retained<KelmarFieldEditor>::retain([KelmarFieldEditor editor]);
    }
    return state_->editor.get();
}

- (BOOL)windowShouldClose:(NSWindow*)window {
    static_cast<void>(window);
    return state_->model->isWorking() ? NO : YES;
}

/// There is no state to restore, and the system is to know that it would be safe.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
    static_cast<void>(application);
    return YES;
}

@end
