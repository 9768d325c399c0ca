#include "ui/appkit/page.h"

@implementation KelmarPageView

+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame {
    KelmarPageView* const view = [[[self alloc] initWithFrame:frame] autorelease];
    view->header_ = [KelmarHeaderView header];
    view->upper_ = [KelmarHairline line];
    view->content_ = [KelmarContentView viewWithActions:actions frame:[view bounds]];
    view->lower_ = [KelmarHairline line];
    view->footer_ = [KelmarFooterView footerWithActions:actions];
    // In reading order, which is also the order of the keyboard's focus.
    [view addSubview:view->header_];
    [view addSubview:view->upper_];
    [view addSubview:view->content_];
    [view addSubview:view->lower_];
    [view addSubview:view->footer_];
    return view;
}

- (void)dealloc {
    delete shown_;
    [super dealloc];
}

/// The content gets what header and footer leave.
- (void)layOutAround {
    const NSSize size = [self bounds].size;
    const CGFloat top = kelmar::place(header_, 0, 0, size.width);
    const CGFloat footer = [footer_ layOutForWidth:size.width];
    const CGFloat bottom = size.height - footer;
    kelmar::setFrame(footer_, NSMakeRect(0, bottom, size.width, footer));
    kelmar::setFrame(upper_, NSMakeRect(0, top, size.width, 1));
    kelmar::setFrame(lower_, NSMakeRect(0, bottom - 1, size.width, 1));
    kelmar::setFrame(content_, NSMakeRect(0, top + 1, size.width, bottom - top - 2));
}

- (void)render:(const kelmar::Page&)page {
    if (shown_ != nullptr && *shown_ == page) {
        return;
    }
    const bool first = shown_ == nullptr;
    const bool newPhase = first || shown_->content.index() != page.content.index();
    const bool headerChanges = newPhase || shown_->header != page.header;
    const bool footerChanges = first || shown_->footer != page.footer;
    if (headerChanges) {
        [header_ render:page.header announced:newPhase ? YES : NO];
    }
    if (footerChanges) {
        [footer_ render:page.footer];
    }
    const NSRect before = [content_ frame];
    if (headerChanges || footerChanges) {
        [self layOutAround];
    }
    if (first || shown_->content != page.content || !NSEqualRects(before, [content_ frame])) {
        [content_ render:page.content];
    }
    delete shown_;
    shown_ = new kelmar::Page(page);
}

@end
