#pragma once

#import <AppKit/AppKit.h>

/// Stands for a symbol of the Mac's own set: a square with the name's first letter in it. It shows
/// that a symbol of that name is asked for, and nothing about how the Mac's looks or whether it has
/// one of that name.
@interface KelmarSymbolImage : NSImage {
    NSString* name_;
}
- (NSString*)symbolName;
@end

@interface NSImageSymbolConfiguration : NSObject {
    CGFloat pointSize_;
}
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
- (CGFloat)pointSize;
@end

@interface NSImage (KelmarSymbols)
+ (NSImage*)imageWithSystemSymbolName:(NSString*)name
             accessibilityDescription:(NSString*)description;
- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
@end

@interface NSImageView (KelmarSymbols)
- (void)setSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
- (NSImageSymbolConfiguration*)symbolConfiguration;
- (void)setContentTintColor:(NSColor*)colour;
- (NSColor*)contentTintColor;
@end
