#pragma once

#include "ui/appkit/icon.h"
#include "ui/appkit/section.h"
#include "ui/page.hpp"

/// What a run has done, a line each.
@interface KelmarSummarySection : KelmarSection {
    NSMutableArray* rows_;
}

- (void)render:(const std::vector<kelmar::SummaryRow>&)rows;

@end

/// Something that was not removed, and why.
@interface KelmarProblemRow : KelmarFlippedView {
    KelmarIconView* sign_;
    KelmarTextLabel* path_;
    KelmarTextLabel* reason_;
    KelmarHairline* divider_;
}

+ (instancetype)row;

- (void)render:(const kelmar::ProblemRow&)row;
- (void)setFirst:(BOOL)first;

@end

/// Everything that was not removed.
@interface KelmarProblemsSection : KelmarSection {
    NSMutableArray* rows_;
}

- (void)render:(const kelmar::ProblemsSection&)section;

@end
