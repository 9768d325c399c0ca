#include "ui/appkit/progress_section.h"

#include "ui/appkit/accessible.h"
#include "ui/appkit/row_list.h"
#include "ui/appkit/spinner.h"
#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarProgressRow

+ (instancetype)row {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        icon_ = [KelmarIconView icon];
        spinner_ = kelmar::makeSpinner();
        title_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                            tone:kelmar::TextTone::primary];
        [self addSubview:icon_];
        [self addSubview:spinner_];
        [self addSubview:title_];
    }
    return self;
}

- (void)render:(const kelmar::ProgressRow&)row {
    const bool running = !row.icon.symbol;
    kelmar::setSpinning(spinner_, running);
    [icon_ setHidden:running ? YES : NO];
    if (running) {
        kelmar::setAccessibleName(spinner_, row.icon.label);
    } else {
        [icon_ showSymbol:*row.icon.symbol tint:row.icon.tint pointSize:kelmar::Look::rowSymbol];
        [icon_ setMeaning:row.icon.label];
    }
    [title_ showText:row.title];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat text = rowIcons.width + rowIcons.gap;
    const CGFloat textHeight = [title_ heightForWidth:width - text];
    const CGFloat height = std::max<CGFloat>(rowSymbol, textHeight);
    const CGFloat middle = (height - rowSymbol) / 2;
    const CGFloat left = (rowIcons.width - rowSymbol) / 2.0;
    const CGFloat inset = (rowSymbol - spinner) / 2.0;
    kelmar::setFrame(icon_, NSMakeRect(left, middle, rowSymbol, rowSymbol));
    kelmar::setFrame(spinner_, NSMakeRect(left + inset, middle + inset, spinner, spinner));
    kelmar::place(title_, text, (height - textHeight) / 2, width - text);
    return height;
}

@end

@implementation KelmarProgressSection

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        rows_ = [[NSMutableArray alloc] init];
        detail_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                             tone:kelmar::TextTone::secondary];
        [[self card] addSubview:detail_];
    }
    return self;
}

- (void)dealloc {
    [rows_ release];
    [super dealloc];
}

- (void)render:(const kelmar::WorkingContent&)content {
    kelmar::renderRows<KelmarProgressRow>(
        [self card], nil, rows_, content.stages, [] { return [KelmarProgressRow row]; },
        [](KelmarProgressRow* row, const kelmar::ProgressRow& record) { [row render:record]; });
    [detail_ showText:content.detail];
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat inside = width - 2 * cardPadding;
    CGFloat below = 0;
    for (KelmarProgressRow* row in rows_) {
        below = kelmar::place(row, cardPadding, below + cardPadding, inside);
    }
    // Room for two lines of what is going on, so that the page below stands still meanwhile.
    constexpr CGFloat twoLines = 32;
    const CGFloat indent = rowTextIndent;
    const CGFloat top = below + cardPadding;
    const CGFloat end = kelmar::place(detail_, indent, top, width - indent - cardPadding);
    return std::max(end, top + twoLines) + cardPadding;
}

@end
