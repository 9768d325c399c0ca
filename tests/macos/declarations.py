"""Which declarations the executable has no use for, and which name no page of Apple's reference.

A declaration that nobody uses is one that nobody would miss when it is wrong. A method counts as used when that of any
class with its name is."""

import pathlib
import re
import subprocess

PROJECT = pathlib.Path(__file__).resolve().parents[2]
ROOMS = ("system", "admin", "app", "ui")


def output_of(*command):
    """What a command prints; what it complains about goes with the exception, if there is one."""
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def selectors_sent(executable):
    """Every name in the executable's list of methods, sent or implemented."""
    dump = output_of("llvm-readobj", "--string-dump=__objc_methname", executable)
    return set(re.findall(r"^\[ *[0-9a-f]+\] (\S+)$", dump, re.MULTILINE))


def symbols_linked(executable):
    """Every name that dyld is to find in a library."""
    dump = output_of("llvm-objdump", "--macho", "--arch=all", "--bind", "--lazy-bind", executable)
    return set(re.findall(r"^__\w+ .* (\S+)$", dump, re.MULTILINE))


def words_of_sources():
    """Every word of the program's sources for the Mac."""
    words = set()
    for room in ROOMS:
        for source in (PROJECT / room).rglob("*"):
            if source.suffix == ".mm" or "_macos." in source.name or source.parent.name == "appkit":
                words |= set(re.findall(r"\w+", source.read_text()))
    return words


def selector_of(method):
    """The selector of "- (type)name:(type)argument more:(type)argument"."""
    while re.search(r"\([^()]*\)", method):
        method = re.sub(r"\([^()]*\)", " ", method)
    parts = re.findall(r"(\w+:)", method)
    return "".join(parts) if parts else re.findall(r"\w+", method)[0]


def selectors_of_property(line):
    name = re.search(r"(\w+);$", line).group(1)
    getter = re.search(r"getter=(\w+)", line)
    return {getter.group(1) if getter else name, f"set{name[0].upper()}{name[1:]}:"}


def unused_in(text, selectors, symbols, words):
    for line in re.findall(r"^[-+] *(\(.*);$", text, re.MULTILINE):
        line = re.sub(r" (NS|API)_[A-Z_]+(\(.*\))?$", "", line)
        if selector_of(line) not in selectors:
            yield selector_of(line)
    for line in re.findall(r"^@property.*;$", text, re.MULTILINE):
        if not selectors_of_property(line) & selectors:
            yield line
    for line in re.findall(r"^(?:FOUNDATION_EXPORT|APPKIT_EXTERN) (.*);$", text, re.MULTILINE):
        name = re.search(r"(\w+)(\(.*\))?$", line).group(1)
        if "_" + name not in symbols:
            yield name
    values = re.findall(r"^    (\w+)(?: = [^,]*)?,$", text, re.MULTILINE)
    inlined = re.findall(r"^static (?:inline|const) [^(=]*?(\w+)(?:\(| =)", text, re.MULTILINE)
    for name in values + inlined:
        if name not in words:
            yield name


# What has a page of its own: a class, a protocol, a set of values.
WITH_A_PAGE = re.compile(
    r"^(?:@interface (\w+)(?:<.*?>)? :|@protocol (\w+)(?: <\w+>)?$|typedef NS_(?:ENUM|OPTIONS)\(\w+, (\w+)\))",
    re.MULTILINE,
)
DECLARES = re.compile(r"^(?:@interface|@protocol|typedef|enum|static|#define|FOUNDATION_|APPKIT_)", re.MULTILINE)
PAGE = re.compile(r"// (?:Apple Developer Documentation: (?:Foundation|AppKit)\b|\w+\(\d\))")


def without_page(folder):
    """Lines that each name a header below `folder` and what its first lines name no page for."""
    for path in sorted(folder.rglob("*.h")):
        text, place = path.read_text(), path.relative_to(folder)
        first_lines = re.match(r"(?://.*\n)*", text).group()
        if DECLARES.search(text) and not PAGE.match(first_lines):
            yield f"{place}: names no page"
        for name in map("".join, WITH_A_PAGE.findall(text)):
            if not re.search(rf"\b{name}\b", first_lines):
                yield f"{place}: {name}"


def classes_in(text):
    """Pairs of a class and what it is derived from."""
    return re.findall(r"^@interface (\w+)(?:<.*?>)? : (\w+)", text, re.MULTILINE)


def unused(executable, folder):
    """Lines that each name a header below `folder` and what in it is of no use."""
    selectors, symbols, words = selectors_sent(executable), symbols_linked(executable), words_of_sources()
    headers = {path: path.read_text() for path in sorted(folder.rglob("*.h"))}
    # Without comments, and without lines that only say that there is such a class.
    everything = re.sub(r"^(//|@class|@protocol).*", "", "\n".join(headers.values()), flags=re.MULTILINE)
    for path, text in headers.items():
        place = path.relative_to(folder)
        for name in unused_in(text, selectors, symbols, words):
            yield f"{place}: {name}"
        # A class may be there for those that are derived from it, or that another declaration takes or gives.
        for name, _ in classes_in(text):
            mentions = len(re.findall(rf"\b{name}\b", everything))
            if f"_OBJC_CLASS_$_{name}" not in symbols and name not in words and mentions == 1:
                yield f"{place}: {name}"
    references = (folder / "compiler-references.txt").read_text()
    for library, symbol in re.findall(r"^(\w+) (_\w+)$", references, re.MULTILINE):
        if symbol not in symbols:
            yield f"compiler-references.txt: {symbol} of {library}"
    for library, name in re.findall(r"^(\w+) class (\w+)$", references, re.MULTILINE):
        if f"_OBJC_CLASS_$_{name}" not in symbols:
            yield f"compiler-references.txt: class {name} of {library}"
