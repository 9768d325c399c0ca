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
        return [KelmarNoteRow rowWithColumn:kelmar::Look::rowIcons style:kelmar::TextStyle::body
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
        sign_ = [KelmarIconView icon];
        // The sign at every item's beginning makes a list of what is else a wall of paths.
        [sign_ showSymbol:kelmar::ProblemRow::symbol tint:kelmar::ProblemRow::tint
                pointSize:kelmar::Look::noteSymbol];
        path_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                           tone:kelmar::TextTone::primary];
        reason_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                             tone:kelmar::TextTone::secondary];
        [path_ setSelectable:YES];
        [reason_ setSelectable:YES];
        [self addSubview:divider_];
        [self addSubview:sign_];
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
    const CGFloat text = rowTextIndent;
    const CGFloat inside = width - text - cardPadding;
    kelmar::setFrame(divider_, NSMakeRect(text, 0, width - text, hairline));
    kelmar::setFrame(sign_, NSMakeRect(cardPadding + (rowIcons.width - noteSymbol) / 2.0,
                                       rowPadding, noteSymbol, noteSymbol));
    const CGFloat below = kelmar::place(path_, text, rowPadding, inside);
    return kelmar::place(reason_, text, below + textGap, inside) + rowPadding;
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
