#include "ui/appkit/page.h"

#include "ui/appkit/accessible.h"
#include "ui/look.hpp"

@implementation KelmarPageView

+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame {
    return [[[self alloc] initWithActions:actions frame:frame] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        header_ = [KelmarHeaderView header];
        upper_ = [KelmarHairline line];
        content_ = [KelmarContentView viewWithActions:actions frame:[self bounds]];
        lower_ = [KelmarHairline line];
        footer_ = [KelmarFooterView footerWithActions:actions];
        // In reading order, which is also the order of the keyboard's focus.
        [self addSubview:header_];
        [self addSubview:upper_];
        [self addSubview:content_];
        [self addSubview:lower_];
        [self addSubview:footer_];
    }
    return self;
}

- (void)dealloc {
    delete shown_;
    [super dealloc];
}

/// The content gets what header and footer leave.
- (void)layOutAround {
    using kelmar::Look::hairline;
    const NSSize size = [self bounds].size;
    const CGFloat top = kelmar::place(header_, 0, 0, size.width);
    const CGFloat footer = [footer_ layOutForWidth:size.width];
    const CGFloat bottom = size.height - footer;
    kelmar::setFrame(footer_, NSMakeRect(0, bottom, size.width, footer));
    kelmar::setFrame(upper_, NSMakeRect(0, top, size.width, hairline));
    kelmar::setFrame(lower_, NSMakeRect(0, bottom - hairline, size.width, hairline));
    kelmar::setFrame(content_,
                     NSMakeRect(0, top + hairline, size.width, bottom - top - 2 * hairline));
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
        [header_ render:page.header];
    }
    if (newPhase) {
        kelmar::announce(page.announcement());
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
