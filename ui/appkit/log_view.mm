#include "ui/appkit/log_view.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"
#include "ui/appkit/fonts.h"
#include "ui/look.hpp"

namespace kelmar {

namespace {

constexpr CGFloat unlimited = 10'000'000;
/// What an NSTextContainer keeps free left and right of its lines by default.
constexpr CGFloat lineFragmentPadding = 5;
/// Until the view is placed.
constexpr NSRect initialFrame{{0, 0}, {100, 100}};

NSTextView* makeTextView(NSSize size) {
    NSTextView* const text =
        [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)] autorelease];
    [text setEditable:NO];
    [text setSelectable:YES];
    [text setRichText:NO];
    [text setDrawsBackground:NO];
    [text setVerticallyResizable:YES];
    [text setHorizontallyResizable:NO];
    [text setAutoresizingMask:NSViewWidthSizable];
    [text setMinSize:NSMakeSize(0, 0)];
    [text setMaxSize:NSMakeSize(unlimited, unlimited)];
    constexpr CGFloat sides = Look::logPadding - lineFragmentPadding;
    [text setTextContainerInset:NSMakeSize(sides, Look::logPadding)];
    [[text textContainer] setWidthTracksTextView:YES];
    // Lines that nobody looks at are not laid out until somebody does.
    [[text layoutManager] setAllowsNonContiguousLayout:YES];
    return text;
}

NSAttributedString* attributedText(const std::string& text) {
    NSDictionary* const attributes = [NSDictionary
        dictionaryWithObjectsAndKeys:fontOf(TextStyle::log), NSFontAttributeName,
                                     [NSColor textColor], NSForegroundColorAttributeName, nil];
    return [[[NSAttributedString alloc] initWithString:foundationText(text)
                                            attributes:attributes] autorelease];
}

} // namespace

} // namespace kelmar

@implementation KelmarLogView

+ (instancetype)log {
    return [[[self alloc] initWithFrame:kelmar::initialFrame] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        shown_ = new kelmar::LogLines;
        text_ = kelmar::makeTextView([self contentSize]);
        [self setDrawsBackground:NO];
        [self setBorderType:NSNoBorder];
        [self setHasVerticalScroller:YES];
        [self setHasHorizontalScroller:NO];
        [self setAutohidesScrollers:YES];
        [self setDocumentView:text_];
    }
    return self;
}

- (void)dealloc {
    delete shown_;
    [super dealloc];
}

/// Whether the last line is to be seen, or the next one would be.
- (BOOL)isAtEnd {
    const NSRect seen = [[self contentView] documentVisibleRect];
    return NSMaxY(seen) >= NSMaxY([text_ frame]) - 1;
}

/// To the very end, and not to the last line: below that is some room.
- (void)scrollToEnd {
    // What is shown is laid out, and only then is it known how high the text is.
    [text_ scrollRangeToVisible:NSMakeRange([[text_ textStorage] length], 0)];
    const CGFloat height = NSHeight([[self contentView] documentVisibleRect]);
    [text_ scrollPoint:NSMakePoint(0, NSMaxY([text_ bounds]) - height)];
}

- (void)setFrameSize:(NSSize)size {
    const bool follows = text_ != nil && [self isAtEnd];
    [super setFrameSize:size];
    if (follows) {
        [self scrollToEnd];
    }
}

- (void)render:(const kelmar::LogLines&)log {
    const bool grows = log.continues(*shown_) && log.size() >= shown_->size();
    if (grows && log.size() == shown_->size()) {
        return;
    }
    const BOOL follows = [self isAtEnd];
    NSTextStorage* const storage = [text_ textStorage];
    if (!grows) {
        *shown_ = kelmar::LogLines();
        [storage replaceCharactersInRange:NSMakeRange(0, [storage length]) withString:@""];
    }
    // At the end of the text, where no selection and no line that is seen can be: they stay.
    const std::string separator = shown_->empty() ? "" : "\n";
    [storage appendAttributedString:kelmar::attributedText(separator + log.text(shown_->size()))];
    *shown_ = log;
    if (follows) {
        [self scrollToEnd];
    }
}

- (void)setName:(const std::string&)name {
    kelmar::setAccessibleName(text_, name);
}

@end
