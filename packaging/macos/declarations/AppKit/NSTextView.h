// Apple Developer Documentation: AppKit, NSTextView, NSTextStorage, NSTextContainer, NSLayoutManager
#pragma once

#import <AppKit/NSPasteboard.h>
#import <AppKit/NSText.h>

@interface NSTextStorage : NSMutableAttributedString
@end

@interface NSTextContainer : NSObject
@property BOOL widthTracksTextView;
@end

@interface NSLayoutManager : NSObject
@property BOOL allowsNonContiguousLayout;
@end

@interface NSTextView : NSText
- (nonnull instancetype)initWithFrame:(NSRect)frame;
@property (nullable, assign) NSTextContainer *textContainer;
@property (nullable, readonly, assign) NSLayoutManager *layoutManager;
@property (nullable, readonly, assign) NSTextStorage *textStorage;
@property NSSize textContainerInset;
@property (nonnull, readonly, copy) NSArray *writablePasteboardTypes;
- (BOOL)writeSelectionToPasteboard:(nonnull NSPasteboard *)pasteboard type:(nonnull NSPasteboardType)type;
@end
