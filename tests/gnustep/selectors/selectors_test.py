#!/usr/bin/python3
"""What the check of the selectors must see, and what it must not take offence at.

    selectors_test.py DECLARATIONS SDK
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

import known
import sdk
from comparison import Comparison
from headers import parse

ROOT = """
typedef unsigned long NSUInteger; typedef long NSInteger; typedef _Bool BOOL; typedef double CGFloat;
__attribute__((objc_root_class)) @interface NSObject
@end
@class NSString;
"""

THERE = (
    ROOT
    + """
@protocol Moving
- (void)moveTo:(CGFloat)place;
@end
@interface View : NSObject <Moving>
- (id)initWithName:(NSString *)name;
- (void)setTag:(NSInteger)tag;
+ (View *)first;
@end
@interface Button : View
@end
@interface View (Drawing)
- (BOOL)draws;
@end
enum { Off = 0, On = 1 };
extern NSString *const Name;
int count(View *view);
"""
)


def compared(declarations, there=THERE, older=None):
    options = ["-fobjc-runtime=macosx", "-Wno-everything"]
    return Comparison(parse(ROOT + declarations, options), parse(there, options), older).run()


def button(member):
    return f"@interface View : NSObject\n@end\n@interface Button : View\n{member}\n@end"


class Agreement(unittest.TestCase):
    def assertAgrees(self, declarations, older=None):
        comparison = compared(declarations, older=older)
        self.assertEqual((comparison.absent, comparison.different), (set(), {}))
        self.assertGreater(comparison.agreeing, 0)

    def test_what_a_superclass_a_category_or_a_protocol_has_is_found(self):
        self.assertAgrees(button("- (void)setTag:(NSInteger)tag;"))
        self.assertAgrees(button("@property (readonly) BOOL draws;"))
        self.assertAgrees(button("- (void)moveTo:(CGFloat)place;"))

    def test_an_accessor_is_a_property(self):
        self.assertAgrees(button("@property (class, readonly) View *first;"))

    def test_whether_something_may_be_nil_and_what_an_initialiser_says_it_gives_are_the_macs_own(self):
        self.assertAgrees(button("- (nullable instancetype)initWithName:(nonnull NSString *)name;"))

    def test_an_enumeration_is_a_number(self):
        tag = "typedef enum Tag : NSInteger { On = 1 } Tag;"
        self.assertAgrees(tag + button("- (void)setTag:(Tag)tag;"))

    def test_a_constant_is_found_by_its_older_name(self):
        self.assertAgrees("enum { StateOn = 1 };", {"constant StateOn": "On"})

    def test_a_variable_with_its_value_is_a_constant(self):
        self.assertAgrees("static const NSInteger On = 1;")

    def test_functions_variables_and_constants_are_found(self):
        self.assertAgrees("@class View; enum { On = 1 }; extern NSString *const Name; int count(View *view);")


class Mutation(unittest.TestCase):
    def assertAbsent(self, name, declarations):
        self.assertEqual(compared(declarations).absent, {name})

    def assertDifferent(self, name, declarations):
        self.assertEqual(list(compared(declarations).different), [name])

    def test_a_wrong_name(self):
        self.assertAbsent("-[Button setTags:]", button("- (void)setTags:(NSInteger)tag;"))
        self.assertAbsent("-[Button isDrawing]", button("@property (readonly, getter=isDrawing) BOOL draws;"))
        self.assertAbsent("function counts", "int counts(void);")
        self.assertAbsent("constant Maybe", "enum { Maybe = 1 };")
        self.assertAbsent("variable Names", "extern NSString *const Names;")
        self.assertAbsent("class Switch", "@interface Switch : NSObject\n@end")
        self.assertAbsent("protocol Turning", "@protocol Turning\n@end")

    def test_a_class_method_for_one_of_the_object(self):
        self.assertAbsent("+[Button draws]", button("+ (BOOL)draws;"))

    def test_a_wrong_type_of_an_argument(self):
        self.assertDifferent("-[Button setTag:]", button("- (void)setTag:(NSUInteger)tag;"))
        self.assertDifferent("-[Button setTag:]", button("- (void)setTag:(int)tag;"))
        self.assertDifferent("-[Button setTag:]", button("- (void)setTag:(NSString *)tag;"))
        self.assertDifferent("-[Button moveTo:]", button("- (void)moveTo:(float)place;"))

    def test_a_wrong_result(self):
        self.assertDifferent("-[Button draws]", button("- (NSInteger)draws;"))
        self.assertDifferent("+[Button first]", button("+ (NSString *)first;"))

    def test_a_wrong_superclass(self):
        declarations = "@interface NSString : NSObject\n@end\n@interface Button : NSString\n@end"
        self.assertDifferent("class Button", declarations)

    def test_a_wrong_value_or_a_wrong_older_name(self):
        older = {"constant StateOn": "Off"}
        self.assertEqual(list(compared("enum { StateOn = 1 };", older=older).different), ["constant StateOn"])
        older = {"constant StateOn": "Of"}
        self.assertEqual(compared("enum { StateOn = 1 };", older=older).absent, {"constant StateOn"})

    def test_a_wrong_value_a_wrong_function_a_wrong_variable(self):
        self.assertDifferent("constant On", "enum { On = 2 };")
        self.assertDifferent("constant On", "static const NSInteger On = -1;")
        self.assertDifferent("function count", "int count(NSString *view);")
        self.assertDifferent("variable Name", "extern int Name;")


SDK_LINES = """
declare const Name: string;

declare const NSSwitchState: {
  Off: 0,
  On: 1,
};

declare function count(view: View, kind: Array<string>): number;

declare interface Moving {
  moveTo(place: number): void;
}

declare class View extends NSObject implements Moving {
  static first<This extends abstract new (...args: any) => any>(this: This): View;

  initWithNameTag(name: string, tag: (each: number, other: number) => void | null): this;

  hidden: boolean;

  readonly draws: boolean;
}

declare class Button extends View {
}
""".splitlines()


def missing(declarations, renamed=()):
    there = sdk.Sdk()
    sdk.read_lines(SDK_LINES, there)
    here = parse(ROOT + declarations, ["-fobjc-runtime=macosx", "-Wno-everything"])
    found = {name for name, _ in sdk.missing(here, there, dict(renamed))}
    return found - {"class NSObject"}


class Sdk(unittest.TestCase):
    """The other witness: names, numbers of arguments, values."""

    def test_what_a_superclass_or_a_protocol_has_is_found(self):
        self.assertEqual(missing(button("- (void)moveTo:(CGFloat)place;")) - {"class View"}, set())
        self.assertEqual(missing(button("- (id)initWithName:(NSString *)name tag:(void *)tag;")), set())
        self.assertEqual(missing(button("+ (View *)first;")), set())

    def test_an_accessor_is_a_property(self):
        self.assertEqual(missing(button("@property (getter=isHidden) BOOL hidden;")), set())
        self.assertEqual(missing(button("@property (readonly) BOOL draws;")), set())

    def test_functions_variables_and_values_are_found(self):
        self.assertEqual(missing("extern NSString *const Name; int count(id view, id kind);"), set())
        self.assertEqual(missing("enum { NSSwitchStateOn = 1 };"), set())
        self.assertEqual(missing("enum { Lit = 1 };", {"constant Lit": "NSSwitchState.On"}), set())

    def test_an_inline_function_is_not_looked_for(self):
        self.assertEqual(missing("static inline int twice(int one) { return 2 * one; }"), set())

    def test_a_wrong_name(self):
        self.assertEqual(missing(button("- (void)moveTowards:(CGFloat)place;")), {"-[Button moveTowards:]"})
        self.assertEqual(missing("@protocol Turning\n@end"), {"protocol Turning"})
        self.assertEqual(missing("@interface Switch : NSObject\n@end"), {"class Switch"})
        self.assertEqual(missing("extern NSString *const Names;"), {"variable Names"})
        self.assertEqual(missing("int counts(id view, id kind);"), {"function counts"})

    def test_a_wrong_number_of_arguments(self):
        self.assertEqual(missing("int count(id view);"), {"function count"})
        self.assertEqual(missing(button("- (void)moveTo;")), {"-[Button moveTo]"})

    def test_a_property_that_can_only_be_read(self):
        self.assertEqual(missing(button("@property BOOL draws;")), {"-[Button setDraws:]"})

    def test_a_method_of_the_object_for_one_of_the_class(self):
        self.assertEqual(missing(button("- (View *)first;")), {"-[Button first]"})

    def test_a_wrong_value_or_none(self):
        self.assertEqual(missing("enum { NSSwitchStateOn = 2 };"), {"constant NSSwitchStateOn"})
        self.assertEqual(missing("enum { NSSwitchStateMixed = 2 };"), {"constant NSSwitchStateMixed"})
        self.assertEqual(missing("enum { Lit = 0 };", {"constant Lit": "NSSwitchState.On"}), {"constant Lit"})


class Lists(unittest.TestCase):
    def complaints(self, apart, different, renamed=(), found=("-[Button setTags:]",)):
        renamed = dict(renamed)
        comparison = compared(button("- (void)setTag:(int)tag;") + "\nenum { On = 1 };", older=renamed)
        return known.complaints(
            comparison,
            dict.fromkeys(found, "why"),
            dict.fromkeys(apart, "why"),
            dict.fromkeys(different, "why"),
            renamed,
        )

    def test_what_is_listed_is_accepted(self):
        self.assertEqual(self.complaints(["-[Button setTags:]"], ["-[Button setTag:]"]), [])

    def test_what_is_not_listed_is_not(self):
        self.assertEqual(len(self.complaints([], ["-[Button setTag:]"])), 1)
        self.assertEqual(len(self.complaints(["-[Button setTags:]"], [])), 1)

    def test_what_is_listed_and_is_not_so_is_not(self):
        self.assertEqual(len(self.complaints(["-[Button setTags:]", "-[Button draws]"], ["-[Button setTag:]"])), 1)
        self.assertEqual(len(self.complaints(["-[Button setTags:]"], ["-[Button setTag:]", "-[Button draws]"])), 1)

    def test_what_is_listed_as_renamed_and_has_its_name_is_not(self):
        lists = ["-[Button setTags:]"], ["-[Button setTag:]"]
        self.assertEqual(len(self.complaints(*lists, {"constant On": "Off"})), 1)
        self.assertEqual(len(self.complaints(*lists, {"constant Gone": "Off"})), 1)

    def test_a_line_without_a_reason_is_not(self):
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as file:
            file.write("# a heading\n-[A b] |\n-[A c]\n-[A d] | why\n-[A d] | why\n")
            file.flush()
            self.assertEqual(len(known.read(file.name)[1]), 3)


class Whole(unittest.TestCase):
    """The check itself, on copies of the project's declarations with one thing wrong."""

    def run_on(self, header, before, after):
        with tempfile.TemporaryDirectory() as folder:
            copy = os.path.join(folder, "declarations")
            shutil.copytree(DECLARATIONS, copy)
            path = os.path.join(copy, header)
            with open(path, encoding="utf-8") as file:
                text = file.read()
            self.assertIn(before, text)
            with open(path, "w", encoding="utf-8") as file:
                file.write(text.replace(before, after))
            check = os.path.join(os.path.dirname(os.path.abspath(__file__)), "check_selectors.py")
            return subprocess.run([check, copy, SDK], capture_output=True, text=True, check=False)

    def test_a_misspelt_selector_is_refused(self):
        end = self.run_on("Foundation/NSString.h", "allowLossyConversion:", "allowLossyConversions:")
        self.assertIn(
            "not in the SDK, and not listed: -[NSString dataUsingEncoding:allowLossyConversions:]", end.stdout
        )
        self.assertEqual(end.returncode, 1)

    def test_a_wrong_type_is_refused(self):
        end = self.run_on("Foundation/NSString.h", "allowLossyConversion:(BOOL)", "allowLossyConversion:(NSInteger)")
        self.assertIn("different, and not listed: -[NSString dataUsingEncoding:allowLossyConversion:]", end.stdout)
        self.assertEqual(end.returncode, 1)

    def test_a_wrong_value_is_refused(self):
        end = self.run_on("AppKit/NSButton.h", "NSButtonTypeSwitch = 3", "NSButtonTypeSwitch = 4")
        self.assertIn("not in the SDK, and not listed: constant NSButtonTypeSwitch: 4 here, [3] there", end.stdout)
        self.assertEqual(end.returncode, 1)


if __name__ == "__main__":
    SDK = sys.argv.pop(2)
    DECLARATIONS = sys.argv.pop(1)
    unittest.main()
