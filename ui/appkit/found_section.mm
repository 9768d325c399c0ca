#include "ui/appkit/found_section.h"

#include "ui/appkit/row_list.h"
#include "ui/look.hpp"

#include <algorithm>
#include <variant>

@implementation KelmarFoundRow

+ (instancetype)row {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        divider_ = [KelmarHairline line];
        icon_ = [KelmarIconView icon];
        title_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                            tone:kelmar::TextTone::primary];
        detail_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                             tone:kelmar::TextTone::secondary];
        [self addSubview:divider_];
        [self addSubview:icon_];
        [self addSubview:title_];
        [self addSubview:detail_];
    }
    return self;
}

- (void)setFirst:(BOOL)first {
    [divider_ setHidden:first];
}

- (void)forgetIcon {
    [icon_ forget];
}

- (void)render:(const kelmar::FoundRow&)row {
    if (const auto* const symbol = std::get_if<kelmar::FoundRow::Symbol>(&row.icon)) {
        [icon_ showSymbol:symbol->name tint:kelmar::Tint::secondary
                pointSize:kelmar::Look::rowSymbol];
    } else {
        [icon_ showIconOfFile:std::get<kelmar::FoundRow::Image>(row.icon).path];
    }
    [title_ showText:row.title];
    [detail_ showText:row.detail];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat text = rowTextIndent;
    const CGFloat textWidth = width - text - cardPadding;
    kelmar::setFrame(divider_, NSMakeRect(text, 0, width - text, hairline));
    CGFloat below = kelmar::place(title_, text, rowPadding, textWidth);
    below = kelmar::place(detail_, text, below + textGap, textWidth) + rowPadding;
    const CGFloat height = std::max<CGFloat>(below, rowIcon + 2 * rowPadding);
    kelmar::setFrame(icon_, NSMakeRect(cardPadding, (height - rowIcon) / 2, rowIcon, rowIcon));
    return height;
}

@end

@implementation KelmarFoundSection

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

- (void)render:(const kelmar::FoundSection&)section {
    [self showTitle:section.title.text];
    // Over nothing it is a remark rather than a heading.
    [title_ setTone:section.rows.empty() ? kelmar::TextTone::secondary : kelmar::TextTone::primary];
    kelmar::renderRows<KelmarFoundRow>(
        [self card], nil, rows_, section.rows, [] { return [KelmarFoundRow row]; },
        [](KelmarFoundRow* row, const kelmar::FoundRow& record) { [row render:record]; });
}

- (void)forgetIcons {
    for (KelmarFoundRow* row in rows_) {
        [row forgetIcon];
    }
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    CGFloat below = 0;
    for (KelmarFoundRow* row in rows_) {
        [row setFirst:below == 0 ? YES : NO];
        below = kelmar::place(row, 0, below, width);
    }
    return below;
}

@end
