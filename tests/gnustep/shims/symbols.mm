#import "tests/gnustep/shims/symbols.h"

#import "tests/gnustep/shims/side_values.h"

/// Draws the square of a symbol.
@interface KelmarSymbolDrawing : NSObject {
    NSString* letter_;
}
@end

@implementation KelmarSymbolDrawing

- (instancetype)initWithLetter:(NSString*)letter {
    self = [super init];
    letter_ = [letter copy];
    return self;
}

- (void)dealloc {
    [letter_ release];
    [super dealloc];
}

- (void)draw:(NSCustomImageRep*)representation {
    const NSSize size = [representation size];
    const NSRect square = NSInsetRect(NSMakeRect(0, 0, size.width, size.height), 1, 1);
    [[NSColor darkGrayColor] set];
    NSFrameRect(square);
    NSFont* const font = [NSFont systemFontOfSize:size.height * 0.6];
    NSDictionary* const attributes = [NSDictionary dictionaryWithObject:font
                                                                 forKey:NSFontAttributeName];
    const NSSize letter = [letter_ sizeWithAttributes:attributes];
    [letter_ drawAtPoint:NSMakePoint((size.width - letter.width) / 2,
                                     (size.height - letter.height) / 2)
          withAttributes:attributes];
}

@end

@implementation KelmarSymbolImage

- (instancetype)initWithSymbolName:(NSString*)name side:(CGFloat)side {
    self = [super initWithSize:NSMakeSize(side, side)];
    name_ = [name copy];
    NSString* const letter = [[name substringToIndex:1] uppercaseString];
    // A drawing lives as long as the program: its image is told nothing of whose it is.
    KelmarSymbolDrawing* const drawing = [[KelmarSymbolDrawing alloc] initWithLetter:letter];
    NSCustomImageRep* const representation =
        [[[NSCustomImageRep alloc] initWithDrawSelector:@selector(draw:)
                                               delegate:drawing] autorelease];
    [representation setSize:[self size]];
    [self addRepresentation:representation];
    return self;
}

- (void)dealloc {
    [name_ release];
    [super dealloc];
}

- (NSString*)symbolName {
    return name_;
}

@end

@implementation NSImageSymbolConfiguration

+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight {
    static_cast<void>(weight);
    NSImageSymbolConfiguration* const configuration = [[self new] autorelease];
    configuration->pointSize_ = pointSize;
    return configuration;
}

- (CGFloat)pointSize {
    return pointSize_;
}

@end

@implementation NSImage (KelmarSymbols)

+ (NSImage*)imageWithSystemSymbolName:(NSString*)name
             accessibilityDescription:(NSString*)description {
    static_cast<void>(description);
    constexpr CGFloat usualSide = 16;
    return [name length] == 0
               ? nil
               : [[[KelmarSymbolImage alloc] initWithSymbolName:name side:usualSide] autorelease];
}

- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration {
    if (![self isKindOfClass:[KelmarSymbolImage class]]) {
        return self;
    }
    NSString* const name = [static_cast<KelmarSymbolImage*>(self) symbolName];
    return [[[KelmarSymbolImage alloc] initWithSymbolName:name
                                                     side:[configuration pointSize]] autorelease];
}

@end

@implementation NSImageView (KelmarSymbols)

- (void)setSymbolConfiguration:(NSImageSymbolConfiguration*)configuration {
    [self keep:configuration under:@"symbolConfiguration"];
}

- (NSImageSymbolConfiguration*)symbolConfiguration {
    return [self keptUnder:@"symbolConfiguration"];
}

- (void)setContentTintColor:(NSColor*)colour {
    [self keep:colour under:@"contentTintColor"];
}

- (NSColor*)contentTintColor {
    return [self keptUnder:@"contentTintColor"];
}

@end
