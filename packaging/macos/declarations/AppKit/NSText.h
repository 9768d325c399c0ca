// Apple Developer Documentation: AppKit, NSText, NSTextAlignment
#pragma once

#import <AppKit/NSView.h>
#import <TargetConditionals.h>

// Macs with Apple's processors count as their kin do, those with Intel's as they always did.
typedef NS_ENUM(NSInteger, NSTextAlignment) {
#if TARGET_ABI_USES_IOS_VALUES
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
#else
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2,
#endif
};

@interface NSText : NSView
@property (getter=isEditable) BOOL editable;
@property (getter=isSelectable) BOOL selectable;
@property (getter=isRichText) BOOL richText;
@property BOOL drawsBackground;
@property NSSize minSize;
@property NSSize maxSize;
@property (getter=isHorizontallyResizable) BOOL horizontallyResizable;
@property (getter=isVerticallyResizable) BOOL verticallyResizable;
@property (getter=isFieldEditor) BOOL fieldEditor;
@property (copy) NSString *string;
@property NSRange selectedRange;
- (void)scrollRangeToVisible:(NSRange)range;
- (void)copy:(nullable id)sender;
- (void)selectAll:(nullable id)sender;
@end
