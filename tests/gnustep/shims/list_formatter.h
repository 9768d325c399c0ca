#pragma once

#import <Foundation/Foundation.h>

/// Stands for the Mac's class of that name (macOS 10.15), which lists texts as the person's
/// language does. This one speaks English only; it shows that the program asks, and hands over
/// every word.
@interface NSListFormatter : NSFormatter
+ (NSString*)localizedStringByJoiningStrings:(NSArray*)strings;
@end
