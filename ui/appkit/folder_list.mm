#include "ui/appkit/folder_list.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/metrics.hpp"
#include "ui/appkit/row_list.h"
#include "system/text/harmless_text.hpp"

#include <algorithm>

@implementation KelmarFolderRow

+ (instancetype)rowWithActions:(const kelmar::WindowActions*)actions {
    KelmarFolderRow* const row = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    row->actions_ = actions;
    row->path_ = new std::string;
    row->check_ = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
    [row->check_ setButtonType:NSButtonTypeSwitch];
    [row->check_ setTarget:row];
    [row->check_ setAction:@selector(toggle:)];
    row->summary_ = [KelmarTextLabel lineWithStyle:kelmar::TextStyle::callout
                                              tone:kelmar::TextTone::secondary];
    row->size_ = [KelmarSizeLabel label];
    [row addSubview:row->check_];
    [row addSubview:row->summary_];
    [row addSubview:row->size_];
    return row;
}

- (void)dealloc {
    [check_ setTarget:nil];
    delete path_;
    [super dealloc];
}

- (void)render:(const kelmar::FolderRow&)row {
    *path_ = row.path;
    NSString* const name = kelmar::foundationText(kelmar::harmlessText(row.name));
    if (![[check_ title] isEqualToString:name]) {
        [check_ setTitle:name];
        [check_ sizeToFit];
    }
    if (([check_ state] == NSControlStateValueOn) != row.checked) {
        [check_ setState:row.checked ? NSControlStateValueOn : NSControlStateValueOff];
    }
    [check_ setAccessibilityHelp:kelmar::foundationText(row.summary)];
    [summary_ showText:row.summary];
    [size_ render:row.size];
}

- (void)toggle:(id)sender {
    static_cast<void>(sender);
    const bool checked = [check_ state] == NSControlStateValueOn;
    // A copy: what the press does may render the row anew.
    kelmar::fromToolkit(
        [actions = actions_, path = *path_, checked] { actions->setSelected(path, checked); });
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Metrics;
    const NSSize check = [check_ frame].size;
    const CGFloat sizeWidth = [size_ naturalWidth];
    const CGFloat checkWidth = std::min(check.width, width - sizeWidth - partGap);
    const CGFloat summary = checkWidth + partGap;
    const CGFloat summaryWidth = std::max<CGFloat>(0, width - summary - sizeWidth - partGap);
    const CGFloat textHeight = [summary_ heightForWidth:width];
    const CGFloat sizeHeight = [size_ heightForWidth:width];
    const CGFloat height = std::max({check.height, textHeight, sizeHeight});
    kelmar::setFrame(check_, NSMakeRect(0, (height - check.height) / 2, checkWidth, check.height));
    kelmar::setFrame(summary_,
                     NSMakeRect(summary, (height - textHeight) / 2, summaryWidth, textHeight));
    kelmar::setFrame(
        size_, NSMakeRect(width - sizeWidth, (height - sizeHeight) / 2, sizeWidth, sizeHeight));
    return height;
}

@end

@implementation KelmarFolderList

+ (instancetype)listWithActions:(const kelmar::WindowActions*)actions {
    KelmarFolderList* const list = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    list->actions_ = actions;
    list->rows_ = [[NSMutableArray alloc] init];
    list->divider_ = [KelmarHairline line];
    list->heading_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                                tone:kelmar::TextTone::secondary];
    list->others_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::callout
                                               tone:kelmar::TextTone::secondary];
    [list addSubview:list->divider_];
    [list addSubview:list->heading_];
    [list addSubview:list->others_];
    return list;
}

- (void)dealloc {
    [rows_ release];
    [super dealloc];
}

- (void)render:(const kelmar::FolderList&)list {
    [heading_ showText:list.heading];
    kelmar::renderRows<KelmarFolderRow>(
        self, rows_, list.rows,
        [actions = actions_] { return [KelmarFolderRow rowWithActions:actions]; },
        [](KelmarFolderRow* row, const kelmar::FolderRow& record) { [row render:record]; });
    [others_ setHidden:list.otherItems ? NO : YES];
    [others_ showText:list.otherItems.value_or("")];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Metrics;
    const CGFloat inside = width - 2 * cardPadding;
    kelmar::setFrame(divider_, NSMakeRect(0, 0, width, 1));
    CGFloat below = kelmar::place(heading_, cardPadding, cardPadding, inside);
    for (KelmarFolderRow* row in rows_) {
        below = kelmar::place(row, cardPadding, below + partGap, inside);
    }
    if (![others_ isHidden]) {
        below = kelmar::place(others_, cardPadding, below + partGap, inside);
    }
    return below + cardPadding;
}

@end
