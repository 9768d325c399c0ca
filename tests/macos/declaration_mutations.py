"""Declarations that nobody has a use for or that name no page. The checks read a copy with one of them."""

import shutil

import executable_checks as checks
from mutation import mutation, replace


def copy_declarations(build):
    copy = build.folder / "declarations"
    shutil.copytree(build.declarations, copy)
    build.declarations = copy


def declare(build, header, lines):
    copy_declarations(build)
    with open(build.declarations / header, "a", encoding="ascii") as file:
        file.write(lines)


@mutation(checks.nothing_unused)
def a_method_that_nobody_calls(build):
    declare(build, "AppKit/NSMenu.h", "- (void)insertItem:(NSMenuItem *)item atIndex:(NSInteger)index;\n")


@mutation(checks.nothing_unused)
def a_property_that_nobody_asks_for(build):
    declare(build, "AppKit/NSMenu.h", "@property (getter=isTorn) BOOL torn;\n")


@mutation(checks.nothing_unused)
def a_function_that_nobody_calls(build):
    declare(build, "Foundation/NSString.h", "FOUNDATION_EXPORT NSString *NSFullUserName(void);\n")


@mutation(checks.nothing_unused)
def a_constant_that_nobody_names(build):
    declare(build, "AppKit/NSFont.h", "APPKIT_EXTERN const NSFontWeight NSFontWeightUltraLight;\n")


@mutation(checks.nothing_unused)
def a_value_that_nobody_names(build):
    declare(build, "AppKit/NSCell.h", "enum {\n    NSControlSizeMini = 2,\n};\n")


@mutation(checks.nothing_unused)
def an_inline_function_that_nobody_calls(build):
    declare(build, "Foundation/NSGeometry.h", "static inline CGFloat NSMidY(NSRect rect) {\n")


@mutation(checks.nothing_unused)
def a_number_that_nobody_names(build):
    declare(build, "AppKit/NSCell.h", "static const NSControlStateValue NSControlStateValueMixed = -1;\n")


@mutation(checks.nothing_unused, checks.pages_named)
def a_class_that_nobody_names(build):
    declare(build, "AppKit/NSMenu.h", "@class NSToolbar;\n// NSToolbar\n@interface NSToolbar : NSObject\n@end\n")


@mutation(checks.nothing_unused)
def a_reference_that_the_compiler_does_not_make(build):
    declare(build, "compiler-references.txt", "objc _objc_sync_enter\n")


@mutation(checks.pages_named)
def a_header_without_its_page(build):
    copy_declarations(build)
    replace(build.declarations / "Foundation/NSPathUtilities.h", b"// Apple Developer Documentation: ", b"// ")


@mutation(checks.pages_named)
def values_without_their_page(build):
    copy_declarations(build)
    replace(build.declarations / "AppKit/NSCell.h", b", NSControlSize", b"")
