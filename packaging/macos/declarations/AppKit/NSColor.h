// Apple Developer Documentation: AppKit, NSColor
#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSColor : NSObject
@property (class, readonly, strong) NSColor *controlBackgroundColor;
@property (class, readonly, strong) NSColor *labelColor;
@property (class, readonly, strong) NSColor *secondaryLabelColor;
@property (class, readonly, strong) NSColor *separatorColor;
@property (class, readonly, strong) NSColor *systemGreenColor;
@property (class, readonly, strong) NSColor *systemOrangeColor;
@property (class, readonly, strong) NSColor *textColor;
@property (class, readonly, strong) NSColor *windowBackgroundColor;
- (NSColor *)colorWithAlphaComponent:(CGFloat)alpha;
- (void)setFill;
- (void)setStroke;
@end

NS_ASSUME_NONNULL_END
