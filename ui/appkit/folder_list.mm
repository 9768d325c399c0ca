#include "ui/appkit/folder_list.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/row_list.h"
#include "ui/appkit/run_loop_modes.h"
#include "ui/appkit/state.h"
#include "ui/drawn_text.hpp"
#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarFolderRow

+ (instancetype)rowWithActions:(const kelmar::WindowActions*)actions {
    return [[[self alloc] initWithActions:actions] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        actions_ = actions;
        path_ = new std::string;
        check_ = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
        [check_ setButtonType:NSButtonTypeSwitch];
        [[check_ cell] setLineBreakMode:NSLineBreakByTruncatingMiddle];
        [check_ setTarget:self];
        [check_ setAction:@selector(toggle:)];
        summary_ = [KelmarTextLabel lineWithStyle:kelmar::TextStyle::callout
                                             tone:kelmar::TextTone::secondary];
        size_ = [KelmarSizeLabel label];
        [self addSubview:check_];
        [self addSubview:summary_];
        [self addSubview:size_];
    }
    return self;
}

- (void)dealloc {
    [check_ setTarget:nil];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    delete path_;
    [super dealloc];
}

- (void)render:(const kelmar::FolderRow&)row {
    *path_ = row.path;
    NSString* const name = kelmar::foundationText(kelmar::drawnText(row.name));
    if (![[check_ title] isEqualToString:name]) {
        [check_ setTitle:name];
        kelmar::setAccessibleName(check_, row.name);
        [check_ sizeToFit];
        nameWidth_ = kelmar::alignedSize(check_).width;
    }
    isChecked_ = row.checked ? YES : NO;
    [self showChecked];
    kelmar::setAccessibleHelp(check_, row.summary);
    [summary_ showText:row.summary];
    [size_ render:row.size];
}

- (void)showChecked {
    kelmar::setState(check_, isChecked_);
}

/// The box has changed by itself: that asks for the change, and what the page answers is shown.
- (void)toggle:(id)sender {
    static_cast<void>(sender);
    [self performSelector:@selector(showChecked) withObject:nil afterDelay:0
                  inModes:kelmar::everyRunLoopMode()];
    const bool checked = [check_ state] == NSControlStateValueOn;
    // A copy: what the press does may render the row anew.
    kelmar::fromToolkit(
        [actions = actions_, path = *path_, checked] { actions->setSelected(path, checked); });
}

- (CGFloat)nameWidth {
    return nameWidth_;
}

- (void)setNameWidth:(CGFloat)width {
    column_ = width;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const NSSize check = kelmar::alignedSize(check_);
    const CGFloat sizeWidth = [size_ naturalWidth];
    const CGFloat checkWidth = std::min(nameWidth_, column_);
    const CGFloat summary = column_ + partGap;
    const CGFloat summaryWidth = std::max<CGFloat>(0, width - summary - sizeWidth - partGap);
    const CGFloat textHeight = [summary_ heightForWidth:width];
    const CGFloat sizeHeight = [size_ heightForWidth:width];
    const CGFloat height = std::max({check.height, textHeight, sizeHeight});
    kelmar::setAlignedFrame(check_,
                            NSMakeRect(0, (height - check.height) / 2, checkWidth, check.height));
    kelmar::setFrame(summary_,
                     NSMakeRect(summary, (height - textHeight) / 2, summaryWidth, textHeight));
    kelmar::setFrame(
        size_, NSMakeRect(width - sizeWidth, (height - sizeHeight) / 2, sizeWidth, sizeHeight));
    return height;
}

@end

@implementation KelmarFolderList

+ (instancetype)listWithActions:(const kelmar::WindowActions*)actions {
    return [[[self alloc] initWithActions:actions] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        actions_ = actions;
        rows_ = [[NSMutableArray alloc] init];
        divider_ = [KelmarHairline line];
        heading_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                              tone:kelmar::TextTone::secondary];
        others_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                             tone:kelmar::TextTone::secondary];
        [self addSubview:divider_];
        [self addSubview:heading_];
        [self addSubview:others_];
    }
    return self;
}

- (void)dealloc {
    [rows_ release];
    [super dealloc];
}

- (void)render:(const kelmar::FolderList&)list {
    [heading_ showText:list.heading];
    kelmar::renderRows<KelmarFolderRow>(
        self, heading_, rows_, list.rows,
        [actions = actions_] { return [KelmarFolderRow rowWithActions:actions]; },
        [](KelmarFolderRow* row, const kelmar::FolderRow& record) { [row render:record]; });
    [others_ setHidden:list.otherItems ? NO : YES];
    [others_ showText:list.otherItems.value_or("")];
}

- (CGFloat)nameWidth {
    CGFloat widest = 0;
    for (KelmarFolderRow* row in rows_) {
        widest = std::max(widest, [row nameWidth]);
    }
    return widest;
}

- (void)setNameWidth:(CGFloat)width {
    for (KelmarFolderRow* row in rows_) {
        [row setNameWidth:width];
    }
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat inside = width - 2 * cardPadding;
    kelmar::setFrame(divider_, NSMakeRect(0, 0, width, hairline));
    CGFloat below = kelmar::place(heading_, cardPadding, cardPadding, inside);
    CGFloat gap = partGap;
    for (KelmarFolderRow* row in rows_) {
        below = kelmar::place(row, cardPadding, below + gap, inside);
        gap = lineGap;
    }
    if (![others_ isHidden]) {
        below = kelmar::place(others_, cardPadding, below + partGap, inside);
    }
    return below + cardPadding;
}

@end
