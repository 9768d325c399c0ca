#include "ui/appkit/result_sections.h"

#include "ui/appkit/note_row.h"
#include "ui/appkit/row_list.h"
#include "ui/look.hpp"

@implementation KelmarSummarySection

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        rows_ = [[NSMutableArray alloc] init];
    }
    return self;
}

- (void)dealloc {
    [rows_ release];
    [super dealloc];
}

- (void)render:(const std::vector<kelmar::SummaryRow>&)rows {
    const auto make = [] {
        return [KelmarNoteRow rowWithSymbolSize:kelmar::Look::rowSymbol
                                          style:kelmar::TextStyle::body
                                           tone:kelmar::TextTone::primary];
    };
    kelmar::renderRows<KelmarNoteRow>(
        [self card], nil, rows_, rows, make,
        [](KelmarNoteRow* row, const kelmar::SummaryRow& record) { [row renderSummary:record]; });
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    CGFloat below = 0;
    for (KelmarNoteRow* row in rows_) {
        below = kelmar::place(row, cardPadding, below + cardPadding, width - 2 * cardPadding);
    }
    return below + cardPadding;
}

@end

@implementation KelmarProblemRow

+ (instancetype)row {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        divider_ = [KelmarHairline line];
        path_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                           tone:kelmar::TextTone::primary];
        reason_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                             tone:kelmar::TextTone::secondary];
        [self addSubview:divider_];
        [self addSubview:path_];
        [self addSubview:reason_];
    }
    return self;
}

- (void)setFirst:(BOOL)first {
    [divider_ setHidden:first];
}

- (void)render:(const kelmar::ProblemRow&)row {
    [path_ showText:row.path];
    [reason_ showText:row.reason];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat inside = width - 2 * cardPadding;
    kelmar::setFrame(divider_, NSMakeRect(cardPadding, 0, width - cardPadding, hairline));
    const CGFloat below = kelmar::place(path_, cardPadding, rowPadding, inside);
    return kelmar::place(reason_, cardPadding, below + textGap, inside) + rowPadding;
}

@end

@implementation KelmarProblemsSection

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        rows_ = [[NSMutableArray alloc] init];
    }
    return self;
}

- (void)dealloc {
    [rows_ release];
    [super dealloc];
}

- (void)render:(const kelmar::ProblemsSection&)section {
    [self showTitle:section.title.text];
    kelmar::renderRows<KelmarProblemRow>(
        [self card], nil, rows_, section.rows, [] { return [KelmarProblemRow row]; },
        [](KelmarProblemRow* row, const kelmar::ProblemRow& record) { [row render:record]; });
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    CGFloat below = 0;
    for (KelmarProblemRow* row in rows_) {
        [row setFirst:below == 0 ? YES : NO];
        below = kelmar::place(row, 0, below, width);
    }
    return below;
}

@end
