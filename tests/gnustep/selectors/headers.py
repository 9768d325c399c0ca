"""Reads Objective-C headers by the compiler's own parser into plain records."""

import os
import re
import subprocess
from dataclasses import dataclass, field

from clang.cindex import CursorKind, Index, StorageClass

from type_names import words

# Kinds that this version of the library has no name for are attributes and the like.
NAMED_KINDS = {kind.value for kind in CursorKind.get_all_kinds()}

METHODS = {CursorKind.OBJC_INSTANCE_METHOD_DECL: "-", CursorKind.OBJC_CLASS_METHOD_DECL: "+"}


@dataclass
class Signature:
    """Of a method or a function, in words."""

    result: str
    arguments: list[str]

    def __str__(self):
        return f"({', '.join(self.arguments)}) giving {self.result}"


@dataclass
class Container:
    """A class with its categories, or a protocol. Methods go by "-" or "+" and their selector;
    properties are their accessors."""

    superclass: str | None = None
    protocols: set[str] = field(default_factory=set)
    methods: dict[str, Signature] = field(default_factory=dict)
    defined: bool = False


@dataclass
class Headers:
    classes: dict[str, Container] = field(default_factory=dict)
    protocols: dict[str, Container] = field(default_factory=dict)
    functions: dict[str, Signature] = field(default_factory=dict)
    variables: dict[str, str] = field(default_factory=dict)
    constants: dict[str, int] = field(default_factory=dict)
    types: dict[str, str] = field(default_factory=dict)
    inline: set[str] = field(default_factory=set)  # functions whose text stands in the header


def children(cursor):
    # pylint: disable-next=protected-access # the public one throws where the kind has no name
    return [each for each in cursor.get_children() if each._kind_id in NAMED_KINDS]


def signature(cursor):
    return Signature(words(cursor.result_type), [words(each.type) for each in cursor.get_arguments()])


def read_container(cursor, container):
    container.defined = True
    for each in children(cursor):
        if each.kind == CursorKind.OBJC_SUPER_CLASS_REF:
            container.superclass = each.spelling
        elif each.kind == CursorKind.OBJC_PROTOCOL_REF:
            container.protocols.add(each.spelling)
        elif each.kind in METHODS:
            container.methods[METHODS[each.kind] + each.spelling] = signature(each)


def category_class(cursor):
    return next(each.spelling for each in cursor.get_children() if each.kind == CursorKind.OBJC_CLASS_REF)


def constant_value(cursor):
    """Of a variable whose value stands in the header, which is a constant by another name; else None."""
    text = "".join(each.spelling for each in cursor.get_tokens())
    number = re.search(r"=(-?\d+);?$", text)
    return int(number[1]) if number and cursor.storage_class == StorageClass.STATIC else None


def read_declaration(cursor, headers):
    name = cursor.spelling
    if cursor.kind == CursorKind.OBJC_INTERFACE_DECL:
        read_container(cursor, headers.classes.setdefault(name, Container()))
    elif cursor.kind == CursorKind.OBJC_CATEGORY_DECL:
        read_container(cursor, headers.classes.setdefault(category_class(cursor), Container()))
    elif cursor.kind == CursorKind.OBJC_PROTOCOL_DECL:
        read_container(cursor, headers.protocols.setdefault(name, Container()))
    elif cursor.kind == CursorKind.FUNCTION_DECL:
        headers.functions[name] = signature(cursor)
        if cursor.is_definition():
            headers.inline.add(name)
    elif cursor.kind == CursorKind.VAR_DECL:
        value = constant_value(cursor)
        if value is None:
            headers.variables[name] = words(cursor.type)
        else:
            headers.constants[name] = value
    elif cursor.kind == CursorKind.ENUM_DECL:
        for each in children(cursor):
            if each.kind == CursorKind.ENUM_CONSTANT_DECL:
                headers.constants[each.spelling] = each.enum_value
    elif cursor.kind == CursorKind.TYPEDEF_DECL:
        headers.types[name] = words(cursor.underlying_typedef_type)


def parse(text, options, folder=None):
    """What `text` and all that it includes declares; only what stands below `folder`, when given."""
    source = "everything.m"
    unit = Index.create().parse(source, args=["-x", "objective-c", *options], unsaved_files=[(source, text)])
    errors = [str(each) for each in unit.diagnostics if each.severity >= each.Error]
    if errors:
        raise SystemExit("\n".join(errors))
    headers = Headers()
    for each in children(unit.cursor):
        file = each.location.file
        if file is not None and (folder is None or os.path.abspath(file.name).startswith(folder + os.sep)):
            read_declaration(each, headers)
    return headers


def including(folder):
    """A text that includes every header below `folder`."""
    names = []
    for place, _, files in sorted(os.walk(folder)):
        names += [os.path.relpath(os.path.join(place, each), folder) for each in sorted(files) if each.endswith(".h")]
    return "".join(f"#import <{each}>\n" for each in names)


def declared(folder):
    """The project's own declarations of what the Mac has."""
    folder = os.path.abspath(folder)
    own = os.path.dirname(os.path.abspath(__file__))
    options = ["-fobjc-runtime=macosx", "-fblocks", "-isystem", folder, "-isystem", own]
    return parse(including(folder), options, folder)


def gnustep():
    """What GNUstep has."""
    folder = "/usr/include/GNUstep"
    flags = subprocess.run(["gnustep-config", "--objc-flags"], check=True, capture_output=True, text=True)
    compiler = subprocess.run(["gcc", "-print-file-name=include"], check=True, capture_output=True, text=True)
    options = [each for each in flags.stdout.split() if each.startswith(("-D", "-f"))]
    options += ["-fobjc-runtime=gcc", "-isystem", folder, "-idirafter", compiler.stdout.strip()]
    names = [
        f"#import <{framework}/{each}>\n"
        for framework in ("Foundation", "AppKit")
        for each in sorted(os.listdir(os.path.join(folder, framework)))
        if each.startswith("NS")
    ]
    return parse("".join(names), options)
