#include "ui/appkit/footer.h"

#include "ui/appkit/note_row.h"
#include "ui/appkit/push_button.h"
#include "ui/appkit/row_list.h"
#include "ui/look.hpp"

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
        return [KelmarNoteRow rowWithColumn:kelmar::Look::noteIcons style:kelmar::TextStyle::callout
                                       tone:kelmar::TextTone::secondary];
    };
    kelmar::renderRows<KelmarNoteRow>(
        self, nil, notes_, footer.notes, makeNote,
        [](KelmarNoteRow* row, const kelmar::FooterNote& note) { [row renderNote:note]; });
    [busy_ render:footer.busy];
    const auto makeButton = [actions = actions_] {
        KelmarPushButton* const button = [KelmarPushButton buttonWithActions:actions];
        [button setControlSize:NSControlSizeLarge];
        return button;
    };
    kelmar::renderRows<KelmarPushButton>(
        self, busy_, buttons_, footer.buttons, makeButton,
        [](KelmarPushButton* each, const kelmar::Button& button) { [each render:button]; });
}

/// Answers the x of the first button, or of the trailing margin if there is none.
- (CGFloat)layOutButtonsForWidth:(CGFloat)width height:(CGFloat)height {
    using namespace kelmar::Look;
    CGFloat left = width - pageMargin;
    CGFloat right = left;
    for (KelmarPushButton* button in [buttons_ reverseObjectEnumerator]) {
        const NSSize size = kelmar::alignedSize(button);
        const CGFloat each = std::max<CGFloat>(size.width, buttonWidth);
        left = right - each;
        kelmar::setAlignedFrame(button,
                                NSMakeRect(left, (height - size.height) / 2, each, size.height));
        right = left - buttonGap;
    }
    return left;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat buttons = [self layOutButtonsForWidth:width height:footerHeight];
    const CGFloat inside = buttons - sectionGap - pageMargin;
    CGFloat notes = -lineGap;
    for (KelmarNoteRow* note in notes_) {
        notes += [note layOutForWidth:inside] + lineGap;
    }
    const CGFloat busy = [busy_ layOutForWidth:inside];
    kelmar::setFrame(busy_, NSMakeRect(pageMargin, (footerHeight - busy) / 2, inside, busy));
    const CGFloat height = std::max<CGFloat>(footerHeight, notes + 2 * footerPadding);
    CGFloat below = (height - notes) / 2;
    for (KelmarNoteRow* note in notes_) {
        below = kelmar::place(note, pageMargin, below, inside) + lineGap;
    }
    if (height > footerHeight) {
        [self layOutButtonsForWidth:width height:height];
        kelmar::setFrame(busy_, NSMakeRect(pageMargin, (height - busy) / 2, inside, busy));
    }
    return height;
}

@end
