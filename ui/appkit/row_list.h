#pragma once

#include "ui/appkit/flipped_view.h"

#include <vector>

#import <AppKit/AppKit.h>

namespace kelmar {

/// Shows `records` in the views of `rows`, as many as there are records, all of them subviews of
/// `parent`, which come after its subview `before`, or without one ahead of all others: subviews
/// stand in the order in which a screen reader goes through them. A record that stays keeps its
/// view, and with it focus and all: only the last ones come and go. `make()` makes a view,
/// `render(view, record)` shows a record in it.
template <typename Row, typename Record, typename Make, typename Render>
void renderRows(NSView* parent, NSView* before, NSMutableArray* rows,
                const std::vector<Record>& records, const Make& make, const Render& render) {
    while ([rows count] > records.size()) {
        [static_cast<Row*>([rows lastObject]) removeFromSuperview];
        [rows removeLastObject];
    }
    while ([rows count] < records.size()) {
        Row* const row = make();
        insertSubview(parent, row, [rows count] > 0 ? [rows lastObject] : before);
        [rows addObject:row];
    }
    for (std::size_t index = 0; index < records.size(); ++index) {
        render(static_cast<Row*>([rows objectAtIndex:index]), records[index]);
    }
}

} // namespace kelmar
