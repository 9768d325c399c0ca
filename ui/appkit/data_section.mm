#include "ui/appkit/data_section.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/folder_list.h"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/row_list.h"
#include "ui/look.hpp"

#include <algorithm>

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
    [lists_ release];
    [super dealloc];
}

- (void)render:(const kelmar::DataSection&)section {
    [self showTitle:section.title.text];
    [label_ showText:section.label];
    [total_ render:section.total];
    const NSControlStateValue state = section.on ? NSControlStateValueOn : NSControlStateValueOff;
    if ([switch_ state] != state) {
        [switch_ setState:state];
    }
    [switch_ setAccessibilityLabel:kelmar::foundationText(section.label)];
    [switch_ setAccessibilityHelp:kelmar::foundationText(section.line)];
    [line_ showText:section.line];
    [folders_ render:section.folders];
    kelmar::renderRows<KelmarFolderList>(
        [self card], lists_, section.lists,
        [actions = actions_] { return [KelmarFolderList listWithActions:actions]; },
        [](KelmarFolderList* list, const kelmar::FolderList& record) { [list render:record]; });
}

- (void)toggle:(id)sender {
    static_cast<void>(sender);
    const bool on = [switch_ state] == NSControlStateValueOn;
    kelmar::fromToolkit([actions = actions_, on] { actions->setDeleteAllData(on); });
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat inside = width - 2 * cardPadding;
    const NSSize toggle = [switch_ frame].size;
    const CGFloat totalWidth = [total_ naturalWidth];
    const CGFloat labelWidth = inside - toggle.width - totalWidth - 2 * partGap;
    const CGFloat labelHeight = [label_ heightForWidth:labelWidth];
    const CGFloat totalHeight = [total_ heightForWidth:inside];
    const CGFloat height = std::max({toggle.height, labelHeight, totalHeight});
    const CGFloat right = width - cardPadding;
    const auto centred = [height](CGFloat each) { return cardPadding + (height - each) / 2; };
    kelmar::place(label_, cardPadding, centred(labelHeight), labelWidth);
    kelmar::setFrame(switch_, NSMakeRect(right - toggle.width, centred(toggle.height), toggle.width,
                                         toggle.height));
    kelmar::setFrame(total_, NSMakeRect(right - toggle.width - partGap - totalWidth,
                                        centred(totalHeight), totalWidth, totalHeight));
    CGFloat below = kelmar::place(line_, cardPadding, cardPadding + height + lineGap,
                                  inside - toggle.width - columnGap);
    const NSSize button = [folders_ frame].size;
    kelmar::setFrame(folders_,
                     NSMakeRect(cardPadding, below + partGap, button.width, button.height));
    below += partGap + button.height + cardPadding;
    for (KelmarFolderList* list in lists_) {
        below = kelmar::place(list, 0, below, width);
    }
    return below;
}

@end
