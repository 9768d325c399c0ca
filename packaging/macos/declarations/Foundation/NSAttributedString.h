// Apple Developer Documentation: Foundation, NSAttributedString, NSMutableAttributedString
#pragma once

#import <Foundation/NSRange.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString *NSAttributedStringKey;

@interface NSAttributedString : NSObject
- (instancetype)initWithString:(NSString *)string attributes:(nullable NSDictionary<NSAttributedStringKey, id> *)attributes;
@property (readonly) NSUInteger length;
@end

@interface NSMutableAttributedString : NSAttributedString
- (void)replaceCharactersInRange:(NSRange)range withString:(NSString *)string;
- (void)appendAttributedString:(NSAttributedString *)string;
@end

NS_ASSUME_NONNULL_END
