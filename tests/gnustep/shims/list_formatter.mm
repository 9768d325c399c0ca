#import "tests/gnustep/shims/list_formatter.h"

@implementation NSListFormatter

+ (NSString*)localizedStringByJoiningStrings:(NSArray*)strings {
    const NSUInteger count = [strings count];
    if (count < 2) {
        return count == 0 ? @"" : [strings objectAtIndex:0];
    }
    NSString* const last = [strings lastObject];
    if (count == 2) {
        return [NSString stringWithFormat:@"%@ and %@", [strings objectAtIndex:0], last];
    }
    NSArray* const others = [strings subarrayWithRange:NSMakeRange(0, count - 1)];
    return [NSString stringWithFormat:@"%@, and %@", [others componentsJoinedByString:@", "], last];
}

@end
