// Apple Developer Documentation: AppKit, NSBezierPath
#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSBezierPath : NSObject
+ (NSBezierPath *)bezierPathWithRoundedRect:(NSRect)rect xRadius:(CGFloat)x yRadius:(CGFloat)y;
- (void)fill;
- (void)stroke;
@end

NS_ASSUME_NONNULL_END
