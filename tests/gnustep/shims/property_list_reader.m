#import <Foundation/Foundation.h>
#import <objc/runtime.h>

/// Stands before GNUstep's reader, so that what the Mac's is documented to do is what it does: it
/// throws nothing over a broken property list and answers nil; it reads text in UTF-8, UTF-16 and
/// UTF-32, by its byte order mark, and after blanks, where GNUstep's wants UTF-8 that begins at
/// once; and an entity that is not one of XML's own is an error, where GNUstep's takes it for
/// nothing. Not Objective-C++: caught there, GNUstep's exceptions leave it in a state in which the
/// next one ends the program.
@interface KelmarPropertyListReader : NSObject
@end

typedef id (*Reader)(id, SEL, NSData*, NSUInteger, NSPropertyListFormat*, NSError**);

static Reader gnustepReader = NULL;

static BOOL beginsWith(NSData* data, const char* bytes, NSUInteger length) {
    return [data length] >= length && memcmp([data bytes], bytes, length) == 0;
}

/// The text that `data` holds by its byte order mark; nil without one.
static NSString* markedText(NSData* data) {
    NSStringEncoding encoding = 0;
    NSUInteger mark = 2;
    if (beginsWith(data, "\xEF\xBB\xBF", 3)) {
        encoding = NSUTF8StringEncoding;
        mark = 3;
    } else if (beginsWith(data, "\xFF\xFE\0\0", 4)) {
        encoding = NSUTF32LittleEndianStringEncoding;
        mark = 4;
    } else if (beginsWith(data, "\0\0\xFE\xFF", 4)) {
        encoding = NSUTF32BigEndianStringEncoding;
        mark = 4;
    } else if (beginsWith(data, "\xFF\xFE", 2)) {
        encoding = NSUTF16LittleEndianStringEncoding;
    } else if (beginsWith(data, "\xFE\xFF", 2)) {
        encoding = NSUTF16BigEndianStringEncoding;
    } else {
        return nil;
    }
    NSData* const rest = [data subdataWithRange:NSMakeRange(mark, [data length] - mark)];
    return [[[NSString alloc] initWithData:rest encoding:encoding] autorelease];
}

/// In UTF-8, without what GNUstep's reader stumbles over.
static NSData* plainData(NSData* data) {
    NSString* text = markedText(data);
    if (text == nil && beginsWith(data, "bplist", 6)) {
        return data;
    }
    if (text == nil) {
        text = [[[NSString alloc] initWithData:data encoding:NSUTF8StringEncoding] autorelease];
    }
    NSString* const trimmed =
        [text stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceAndNewlineCharacterSet]];
    return trimmed == nil ? data : [trimmed dataUsingEncoding:NSUTF8StringEncoding];
}

/// XML with a reference to an entity that is not its own.
static BOOL hasOtherEntities(NSData* data) {
    if (!beginsWith(data, "<", 1)) {
        return NO;
    }
    NSString* const text = [[[NSString alloc] initWithData:data
                                                  encoding:NSUTF8StringEncoding] autorelease];
    NSArray* const parts = [text componentsSeparatedByString:@"&"];
    NSArray* const known =
        [NSArray arrayWithObjects:@"amp;", @"lt;", @"gt;", @"quot;", @"apos;", @"#", nil];
    for (NSUInteger part = 1; part < [parts count]; ++part) {
        BOOL isKnown = NO;
        for (NSString* name in known) {
            isKnown = isKnown || [[parts objectAtIndex:part] hasPrefix:name];
        }
        if (!isKnown) {
            return YES;
        }
    }
    return NO;
}

static id readAsTheMac(id self, SEL command, NSData* data, NSUInteger options,
                       NSPropertyListFormat* format, NSError** error) {
    @try {
        NSData* const plain = plainData(data);
        return hasOtherEntities(plain)
                   ? nil
                   : gnustepReader(self, command, plain, options, format, error);
    } @catch (NSException* exception) {
        return nil;
    }
}

@implementation KelmarPropertyListReader

+ (void)load {
    const SEL selector = @selector(propertyListWithData:options:format:error:);
    Method const method = class_getClassMethod([NSPropertyListSerialization class], selector);
    gnustepReader = (Reader)method_setImplementation(method, (IMP)readAsTheMac);
}

@end
