#include "ui/appkit/note_row.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"

#include <algorithm>

@implementation KelmarNoteRow

+ (instancetype)rowWithColumn:(kelmar::Look::IconColumn)column
                        style:(kelmar::TextStyle)style
                         tone:(kelmar::TextTone)tone {
    return [[[self alloc] initWithColumn:column style:style tone:tone] autorelease];
}

- (instancetype)initWithColumn:(kelmar::Look::IconColumn)column
                         style:(kelmar::TextStyle)style
                          tone:(kelmar::TextTone)tone {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        column_ = column;
        icon_ = [KelmarIconView icon];
        text_ = [KelmarTextLabel labelWithStyle:style tone:tone];
        [self addSubview:icon_];
        [self addSubview:text_];
    }
    return self;
}

- (void)showSymbol:(const std::string&)symbol
              tint:(kelmar::Tint)tint
              text:(const std::string&)text {
    [icon_ showSymbol:symbol tint:tint pointSize:column_.icon];
    [text_ showText:text];
}

- (void)renderNote:(const kelmar::FooterNote&)note {
    [self showSymbol:note.symbol tint:kelmar::Tint::secondary text:note.text];
    [self setToolTip:kelmar::foundationText(note.help)];
    kelmar::setAccessibleHelp(text_, note.help);
}

- (void)renderSummary:(const kelmar::SummaryRow&)row {
    [self showSymbol:row.symbol tint:row.tint text:row.text];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    const CGFloat icon = column_.icon;
    const CGFloat text = column_.width + column_.gap;
    const CGFloat textHeight = [text_ heightForWidth:width - text];
    const CGFloat height = std::max(icon, textHeight);
    // A single line stands at the symbol's middle, more of them begin beside it.
    const CGFloat top = textHeight <= icon ? (icon - textHeight) / 2 : 0;
    kelmar::setFrame(icon_, NSMakeRect((column_.width - icon) / 2, 0, icon, icon));
    kelmar::place(text_, text, top, width - text);
    return height;
}

@end
