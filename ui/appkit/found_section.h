#pragma once

#include "ui/appkit/icon.h"
#include "ui/appkit/section.h"
#include "ui/page.hpp"

/// A row of the found section: icon, title, detail, and a line above all but the first.
@interface KelmarFoundRow : KelmarFlippedView {
    KelmarIconView* icon_;
    KelmarTextLabel* title_;
    KelmarTextLabel* detail_;
    KelmarHairline* divider_;
}

+ (instancetype)row;

- (void)render:(const kelmar::FoundRow&)row;
- (void)setFirst:(BOOL)first;
- (void)forgetIcon;

@end

/// What was found, a row each.
@interface KelmarFoundSection : KelmarSection {
    NSMutableArray* rows_;
}

- (void)render:(const kelmar::FoundSection&)section;

/// The next page comes from another scan, and its apps may have been replaced.
- (void)forgetIcons;

@end
