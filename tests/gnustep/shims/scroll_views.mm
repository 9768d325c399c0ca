#import "tests/gnustep/shims/scroll_views.h"

#import "tests/gnustep/shims/install.h"
#import "tests/gnustep/shims/side_values.h"

namespace {

void setAutohidesScrollers(id self, SEL /*command*/, BOOL hides) {
    [self keep:[NSNumber numberWithBool:hides] under:@"autohidesScrollers"];
}

BOOL autohidesScrollers(id self, SEL /*command*/) {
    return [[self keptUnder:@"autohidesScrollers"] boolValue];
}

void setFrame(id self, SEL /*command*/, NSRect frame) {
    [self setFrameOrigin:frame.origin];
    if (!NSEqualSizes([self frame].size, frame.size)) {
        [self setFrameSize:frame.size];
    }
}

} // namespace

void KelmarInstallScrollViews() {
    Class const scrollView = [NSScrollView class];
    KelmarReplace(scrollView, @selector(setAutohidesScrollers:), setAutohidesScrollers);
    KelmarReplace(scrollView, @selector(autohidesScrollers), autohidesScrollers);
    KelmarReplace(scrollView, @selector(setFrame:), setFrame);
}
