#pragma once

#include "ui/appkit/icon.h"
#include "ui/appkit/section.h"

/// One stage of a run: its state and its title.
@interface KelmarProgressRow : KelmarFlippedView {
    KelmarIconView* icon_;
    NSProgressIndicator* spinner_;
    KelmarTextLabel* title_;
}

+ (instancetype)row;

- (void)render:(const kelmar::ProgressRow&)row;

@end

/// The stages of a run, and what it is doing now.
@interface KelmarProgressSection : KelmarSection {
    NSMutableArray* rows_;
    KelmarTextLabel* detail_;
}

- (void)render:(const kelmar::WorkingContent&)content;

@end
