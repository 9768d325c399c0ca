#include "ui/appkit/note_row.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"
#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarNoteRow

+ (instancetype)rowWithSymbolSize:(CGFloat)size
                            style:(kelmar::TextStyle)style
                             tone:(kelmar::TextTone)tone {
    return [[[self alloc] initWithSymbolSize:size style:style tone:tone] autorelease];
}

- (instancetype)initWithSymbolSize:(CGFloat)size
                             style:(kelmar::TextStyle)style
                              tone:(kelmar::TextTone)tone {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        symbolSize_ = size;
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
    [icon_ showSymbol:symbol tint:tint pointSize:symbolSize_];
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
    const CGFloat text = symbolSize_ + kelmar::Look::partGap;
    const CGFloat textHeight = [text_ heightForWidth:width - text];
    const CGFloat height = std::max(symbolSize_, textHeight);
    // A single line stands at the symbol's middle, more of them begin beside it.
    const CGFloat top = textHeight <= symbolSize_ ? (symbolSize_ - textHeight) / 2 : 0;
    kelmar::setFrame(icon_, NSMakeRect(0, 0, symbolSize_, symbolSize_));
    kelmar::place(text_, text, top, width - text);
    return height;
}

@end
