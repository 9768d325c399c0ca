#pragma once

#include "ui/appkit/card.h"
#include "ui/appkit/content.h"
#include "ui/appkit/footer.h"
#include "ui/appkit/header.h"

/// All of the window: header, line, content, line, footer. It shows a page and, of the next one,
/// only what is different.
@interface KelmarPageView : KelmarFlippedView {
    KelmarHeaderView* header_;
    KelmarHairline* upper_;
    KelmarContentView* content_;
    KelmarHairline* lower_;
    KelmarFooterView* footer_;
    kelmar::Page* shown_;
}

/// `actions` outlive the view.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame;
+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame;

/// Everything of the page but the confirmation, which is a sheet.
- (void)render:(const kelmar::Page&)page;

@end
