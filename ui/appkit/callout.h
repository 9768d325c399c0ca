#pragma once

#include "ui/appkit/card.h"
#include "ui/appkit/note_row.h"

/// A notice: a symbol and a text in a box of the notice's colour.
@interface KelmarCalloutBox : KelmarFlippedView {
    KelmarCardView* card_;
    KelmarNoteRow* note_;
}

+ (instancetype)box;

- (void)render:(const kelmar::Callout&)callout;

@end
