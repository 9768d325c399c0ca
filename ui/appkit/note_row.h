#pragma once

#include "ui/appkit/flipped_view.h"
#include "ui/appkit/icon.h"
#include "ui/appkit/text_label.h"
#include "ui/look.hpp"

/// A symbol and the text beside it: a notice, a line of the result, a note of the footer.
@interface KelmarNoteRow : KelmarFlippedView {
    KelmarIconView* icon_;
    KelmarTextLabel* text_;
    kelmar::Look::IconColumn column_;
}

- (instancetype)initWithColumn:(kelmar::Look::IconColumn)column
                         style:(kelmar::TextStyle)style
                          tone:(kelmar::TextTone)tone;
+ (instancetype)rowWithColumn:(kelmar::Look::IconColumn)column
                        style:(kelmar::TextStyle)style
                         tone:(kelmar::TextTone)tone;

- (void)showSymbol:(const std::string&)symbol tint:(kelmar::Tint)tint text:(const std::string&)text;
- (void)renderNote:(const kelmar::FooterNote&)note;
- (void)renderSummary:(const kelmar::SummaryRow&)row;

@end
