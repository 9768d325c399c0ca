"""Declarations that nobody has a use for or that name no page. The checks read a copy with one of them."""

import shutil

import executable_checks as checks
from damage import damage, replace


def copy_declarations(made):
    copy = made.folder / "declarations"
    shutil.copytree(made.declarations, copy)
    made.declarations = copy


def declare(made, header, lines):
    copy_declarations(made)
    with open(made.declarations / header, "a", encoding="ascii") as file:
        file.write(lines)


@damage(checks.nothing_unused)
def a_method_that_nobody_calls(made):
    declare(made, "AppKit/NSMenu.h", "- (void)insertItem:(NSMenuItem *)item atIndex:(NSInteger)index;\n")


@damage(checks.nothing_unused)
def a_property_that_nobody_asks_for(made):
    declare(made, "AppKit/NSMenu.h", "@property (getter=isTorn) BOOL torn;\n")


@damage(checks.nothing_unused)
def a_function_that_nobody_calls(made):
    declare(made, "Foundation/NSString.h", "FOUNDATION_EXPORT NSString *NSFullUserName(void);\n")


@damage(checks.nothing_unused)
def a_constant_that_nobody_names(made):
    declare(made, "AppKit/NSFont.h", "APPKIT_EXTERN const NSFontWeight NSFontWeightUltraLight;\n")


@damage(checks.nothing_unused)
def a_value_that_nobody_names(made):
    declare(made, "AppKit/NSCell.h", "enum {\n    NSControlSizeMini = 2,\n};\n")


@damage(checks.nothing_unused)
def an_inline_function_that_nobody_calls(made):
    declare(made, "Foundation/NSGeometry.h", "static inline CGFloat NSMinY(NSRect rect) {\n")


@damage(checks.nothing_unused)
def a_number_that_nobody_names(made):
    declare(made, "AppKit/NSCell.h", "static const NSControlStateValue NSControlStateValueMixed = -1;\n")


@damage(checks.nothing_unused, checks.pages_named)
def a_class_that_nobody_names(made):
    declare(made, "AppKit/NSMenu.h", "@class NSToolbar;\n// NSToolbar\n@interface NSToolbar : NSObject\n@end\n")


@damage(checks.nothing_unused)
def a_reference_that_the_compiler_does_not_make(made):
    declare(made, "compiler-references.txt", "objc _objc_sync_enter\n")


@damage(checks.pages_named)
def a_header_without_its_page(made):
    copy_declarations(made)
    replace(made.declarations / "Foundation/NSPathUtilities.h", b"// Apple Developer Documentation: ", b"// ")


@damage(checks.pages_named)
def values_without_their_page(made):
    copy_declarations(made)
    replace(made.declarations / "AppKit/NSCell.h", b", NSControlSize", b"")
