#include "ui/appkit/field_editor.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/drawn_text.hpp"

@implementation KelmarFieldEditor

+ (instancetype)editor {
    KelmarFieldEditor* const made = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    [made setFieldEditor:YES];
    [made setRichText:NO];
    return made;
}

- (NSArray*)writablePasteboardTypes {
    return [NSArray arrayWithObjects:NSPasteboardTypeString, nil];
}

- (BOOL)writeSelectionToPasteboard:(NSPasteboard*)pasteboard type:(NSString*)type {
    NSString* const selected = [[self string] substringWithRange:[self selectedRange]];
    const std::string plain = kelmar::withoutGuides(kelmar::plainText(selected));
    return [pasteboard setString:kelmar::foundationText(plain) forType:type];
}

@end
