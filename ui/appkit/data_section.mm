#include "ui/appkit/data_section.h"

#include "ui/appkit/accessible.h"
#include "ui/appkit/folder_list.h"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/row_list.h"
#include "ui/appkit/run_loop_modes.h"
#include "ui/appkit/state.h"
#include "ui/look.hpp"

#include <algorithm>
#include <cmath>

@implementation KelmarDataSection

+ (instancetype)sectionWithActions:(const kelmar::WindowActions*)actions {
    return [[[self alloc] initWithActions:actions] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        actions_ = actions;
        lists_ = [[NSMutableArray alloc] init];
        label_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                            tone:kelmar::TextTone::primary];
        // The switch has it for its name.
        kelmar::setAccessible(label_, false);
        total_ = [KelmarSizeLabel label];
        switch_ = [[[NSSwitch alloc] initWithFrame:NSZeroRect] autorelease];
        [switch_ sizeToFit];
        [switch_ setTarget:self];
        [switch_ setAction:@selector(toggle:)];
        line_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                           tone:kelmar::TextTone::secondary];
        folders_ = [KelmarPushButton buttonWithActions:actions];
        KelmarCardView* const card = [self card];
        [card addSubview:label_];
        [card addSubview:total_];
        [card addSubview:switch_];
        [card addSubview:line_];
        [card addSubview:folders_];
    }
    return self;
}

- (void)dealloc {
    [switch_ setTarget:nil];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [lists_ release];
    [super dealloc];
}

- (void)render:(const kelmar::DataSection&)section {
    [self showTitle:section.title.text];
    [label_ showText:section.label];
    [total_ render:section.total];
    isOn_ = section.on ? YES : NO;
    [self showOn];
    kelmar::setAccessibleName(switch_, section.label);
    kelmar::setAccessibleHelp(switch_, section.line);
    [line_ showText:section.line];
    [folders_ render:section.folders];
    kelmar::renderRows<KelmarFolderList>(
        [self card], folders_, lists_, section.lists,
        [actions = actions_] { return [KelmarFolderList listWithActions:actions]; },
        [](KelmarFolderList* list, const kelmar::FolderList& record) { [list render:record]; });
}

- (void)showOn {
    kelmar::setState(switch_, isOn_);
}

/// As with the boxes of the folders.
- (void)toggle:(id)sender {
    static_cast<void>(sender);
    [self performSelector:@selector(showOn) withObject:nil afterDelay:0
                  inModes:kelmar::everyRunLoopMode()];
    const bool on = [switch_ state] == NSControlStateValueOn;
    kelmar::fromToolkit([actions = actions_, on] { actions->setDeleteAllData(on); });
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat inside = width - 2 * cardPadding;
    const NSSize toggle = kelmar::alignedSize(switch_);
    const CGFloat totalWidth = [total_ naturalWidth];
    const CGFloat labelWidth = inside - toggle.width - totalWidth - 2 * partGap;
    const CGFloat labelHeight = [label_ heightForWidth:labelWidth];
    const CGFloat totalHeight = [total_ heightForWidth:inside];
    const CGFloat height = std::max({toggle.height, labelHeight, totalHeight});
    const CGFloat right = width - cardPadding;
    const auto centred = [height](CGFloat each) { return cardPadding + (height - each) / 2; };
    kelmar::place(label_, cardPadding, centred(labelHeight), labelWidth);
    kelmar::setAlignedFrame(switch_, NSMakeRect(right - toggle.width, centred(toggle.height),
                                                toggle.width, toggle.height));
    kelmar::setFrame(total_, NSMakeRect(right - toggle.width - partGap - totalWidth,
                                        centred(totalHeight), totalWidth, totalHeight));
    CGFloat below = kelmar::place(line_, cardPadding, cardPadding + height + lineGap,
                                  inside - toggle.width - columnGap);
    const NSSize button = kelmar::alignedSize(folders_);
    kelmar::setAlignedFrame(folders_,
                            NSMakeRect(cardPadding, below + partGap, button.width, button.height));
    below += partGap + button.height + cardPadding;
    CGFloat widest = 0;
    for (KelmarFolderList* list in lists_) {
        widest = std::max(widest, [list nameWidth]);
    }
    for (KelmarFolderList* list in lists_) {
        // A long name leaves the other half to the summaries.
        [list setNameWidth:std::min(widest, std::floor(inside / 2))];
        below = kelmar::place(list, 0, below, width);
    }
    return below;
}

@end
