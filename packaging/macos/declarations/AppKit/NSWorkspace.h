// Apple Developer Documentation: AppKit, NSWorkspace
#pragma once

#import <AppKit/NSImage.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSWorkspace : NSObject
@property (class, readonly, strong) NSWorkspace *sharedWorkspace;
- (NSImage *)iconForFile:(NSString *)path;
@end

NS_ASSUME_NONNULL_END
