#include "ui/appkit/footer.h"

#include "ui/appkit/metrics.hpp"
#include "ui/appkit/note_row.h"
#include "ui/appkit/push_button.h"
#include "ui/appkit/row_list.h"

#include <algorithm>

@implementation KelmarFooterView

+ (instancetype)footerWithActions:(const kelmar::WindowActions*)actions {
    return [[[self alloc] initWithActions:actions] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        actions_ = actions;
        notes_ = [[NSMutableArray alloc] init];
        buttons_ = [[NSMutableArray alloc] init];
        busy_ = [KelmarBusyRow row];
        [self addSubview:busy_];
    }
    return self;
}

- (void)dealloc {
    [notes_ release];
    [buttons_ release];
    [super dealloc];
}

- (void)render:(const kelmar::Footer&)footer {
    const auto makeNote = [] {
        return [KelmarNoteRow rowWithSymbolSize:kelmar::Metrics::noteSymbol
                                          style:kelmar::TextStyle::callout
                                           tone:kelmar::TextTone::secondary];
    };
    kelmar::renderRows<KelmarNoteRow>(
        self, notes_, footer.notes, makeNote,
        [](KelmarNoteRow* row, const kelmar::FooterNote& note) { [row renderNote:note]; });
    [busy_ render:footer.busy];
    const auto makeButton = [actions = actions_] {
        KelmarPushButton* const button = [KelmarPushButton buttonWithActions:actions];
        [button setControlSize:NSControlSizeLarge];
        return button;
    };
    kelmar::renderRows<KelmarPushButton>(
        self, buttons_, footer.buttons, makeButton,
        [](KelmarPushButton* each, const kelmar::Button& button) { [each render:button]; });
}

/// Answers how far the buttons reach from the trailing side.
- (CGFloat)layOutButtonsForWidth:(CGFloat)width height:(CGFloat)height {
    using namespace kelmar::Metrics;
    constexpr CGFloat least = 80;
    CGFloat right = width - pageMargin;
    for (KelmarPushButton* button in [buttons_ reverseObjectEnumerator]) {
        const NSSize size = [button frame].size;
        const CGFloat each = std::max(size.width, least);
        kelmar::setFrame(button,
                         NSMakeRect(right - each, (height - size.height) / 2, each, size.height));
        right -= each + partGap;
    }
    return width - right;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Metrics;
    const CGFloat taken = [self layOutButtonsForWidth:width height:footerHeight];
    const CGFloat inside = width - pageMargin - taken - partGap;
    const CGFloat gap = partGap / 2;
    CGFloat notes = -gap;
    for (KelmarNoteRow* note in notes_) {
        notes += [note layOutForWidth:inside] + gap;
    }
    const CGFloat busy = [busy_ layOutForWidth:inside];
    kelmar::setFrame(busy_, NSMakeRect(pageMargin, (footerHeight - busy) / 2, inside, busy));
    const CGFloat height = std::max<CGFloat>(footerHeight, notes + 2 * cardPadding);
    CGFloat below = (height - notes) / 2;
    for (KelmarNoteRow* note in notes_) {
        below = kelmar::place(note, pageMargin, below, inside) + gap;
    }
    if (height > footerHeight) {
        [self layOutButtonsForWidth:width height:height];
        kelmar::setFrame(busy_, NSMakeRect(pageMargin, (height - busy) / 2, inside, busy));
    }
    return height;
}

@end
