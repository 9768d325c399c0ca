"""Reads what a generator made of the headers of Apple's own SDK for another language, and compares the project's
declarations with it: names, numbers of arguments, values. Types are another language's there, and not compared.

A selector's words stand there without colons, each after the first beginning with a capital; a value of a set stands
under the set's name, without the beginning that it shares with that."""

import os
import re
from dataclasses import dataclass, field

CONTAINER = re.compile(
    r"^declare (?:abstract )?(?:class|interface) (\w+)(?:<.*?>)?(?: extends ([^{]*?))?(?: implements ([^{]*))? \{$"
)
SET = re.compile(r"^declare const (\w+): \{$")
VALUE = re.compile(r"^  (\w+): (-?\d+),$")
NAME = re.compile(r"^declare const (\w+): (?!\{)")
FUNCTION = re.compile(r"^declare function (\w+)(\(.*)$")


@dataclass
class Container:
    above: list[str] = field(default_factory=list)
    methods: dict[tuple[bool, str], int] = field(default_factory=dict)  # whether of the class, name: arguments
    properties: dict[tuple[bool, str], bool] = field(default_factory=dict)  # whether they can be set


@dataclass
class Sdk:
    containers: dict[str, Container] = field(default_factory=dict)
    sets: dict[str, dict[str, int]] = field(default_factory=dict)
    names: set[str] = field(default_factory=set)
    functions: dict[str, int] = field(default_factory=dict)


def argument_count(text):
    """Of the list of arguments at the beginning of `text`; "this" is the other language's."""
    depth, count, word = 0, 0, ""
    for position, character in enumerate(text):
        if character in "([{<":
            depth += 1
        elif character in ")]}" or character == ">" and text[position - 1] != "=":
            depth -= 1
        if depth == 0 or depth == 1 and character == ",":
            count += bool(word.strip()) and not word.strip().startswith("this:")
            word = ""
            if depth == 0:
                return count
        elif not (depth == 1 and character == "("):
            word += character
    raise ValueError(f"no end: {text}")


def names_in(text):
    return re.findall(r"\b[A-Z]\w*", re.sub(r"<.*?>", "", text or ""))


def read(folder, frameworks=("Runtime", "Foundation", "AppKit")):
    sdk = Sdk()
    for framework in frameworks:
        with open(os.path.join(folder, f"{framework}.d.ts"), encoding="utf-8") as file:
            read_lines(file.read().splitlines(), sdk)
    return sdk


def read_lines(lines, sdk):
    container, values = None, None
    for line in lines:
        if line.startswith("}"):
            container = values = None
        elif values is not None and VALUE.match(line):
            name, value = VALUE.match(line).groups()
            values[name] = int(value)  # pylint: disable=unsupported-assignment-operation # it is a table here
        elif container is not None and line.startswith("  ") and not line.startswith("  //"):
            read_member(line, container)
        elif CONTAINER.match(line):
            name, extends, implements = CONTAINER.match(line).groups()
            container = sdk.containers.setdefault(name, Container())
            container.above += names_in(extends) + names_in(implements)
        elif SET.match(line):
            values = sdk.sets.setdefault(SET.match(line)[1], {})
        elif NAME.match(line):
            sdk.names.add(NAME.match(line)[1])
        elif FUNCTION.match(line):
            name, rest = FUNCTION.match(line).groups()
            sdk.functions[name] = argument_count(rest)


def read_member(line, container):
    found = re.match(r"^  (static )?(readonly )?(\w+)\??(?:<.*?>(?=\())?(.*)$", line)
    if not found:
        return
    of_class, fixed, name, rest = found.groups()
    if rest.startswith("("):
        container.methods[bool(of_class), name] = argument_count(rest)
    elif rest.startswith(":"):
        container.properties[bool(of_class), name] = not fixed


def member_name(selector):
    first, *others = selector.rstrip(":").split(":")
    return first + "".join(each[:1].upper() + each[1:] for each in others)


def chain(sdk, name, seen=None):
    """A class or protocol, and all above it."""
    seen = set() if seen is None else seen
    if name in seen or name not in sdk.containers:
        return []
    seen.add(name)
    above = [each for upper in sdk.containers[name].above for each in chain(sdk, upper, seen)]
    return [sdk.containers[name], *above]


def has_method(containers, of_class, selector, arguments):
    name = member_name(selector)
    for each in containers:
        if each.methods.get((of_class, name)) == arguments:
            return True
        if arguments == 0 and (of_class, name) in each.properties:
            return True
        # A getter called "isHidden", of a property that is called "hidden" there.
        if arguments == 0 and re.match(r"is[A-Z]", name) and (of_class, name[2].lower() + name[3:]) in each.properties:
            return True
        if arguments == 1 and re.match(r"set[A-Z]\w*:$", selector):
            if each.properties.get((of_class, name[3].lower() + name[4:])):
                return True
    return False


def values_of(sdk, name, renamed):
    """The values that a constant of that name can have: those of sets that it may belong to."""
    for group, values in sdk.sets.items():
        for each, value in values.items():
            if (
                renamed.get(f"constant {name}") == f"{group}.{each}"
                or name.endswith(each)
                and (name == group + each or shares_a_beginning(name, each, group))
            ):
                yield value


def shares_a_beginning(name, member, group):
    """NSTerminateNow, of the set NSApplicationTerminateReply, is called Now there."""
    beginning = name[: -len(member)].removeprefix("NS")
    return len(beginning) > 3 and beginning[:-1] in group


def missing(here, sdk, renamed):
    """What the declarations have and the SDK has not: a name, and what is wrong with it."""
    for kind, title, shown in (("classes", "class {}", "{}"), ("protocols", "protocol {}", "<{}>")):
        for name, container in sorted(getattr(here, kind).items()):
            containers = chain(sdk, name)
            if container.defined and not containers:
                yield title.format(name), "not there"
            for selector, signature in sorted(container.methods.items()):
                if not has_method(containers, selector[0] == "+", selector[1:], len(signature.arguments)):
                    yield f"{selector[0]}[{shown.format(name)} {selector[1:]}]", "not there with as many arguments"
    for name, signature in sorted(here.functions.items()):
        # The text of an inline function is here, and not the system's.
        if name not in here.inline and sdk.functions.get(name) != len(signature.arguments):
            yield f"function {name}", "not there with as many arguments"
    for name in sorted(here.variables):
        if name not in sdk.names:
            yield f"variable {name}", "not there"
    for name, value in sorted(here.constants.items()):
        known = set(values_of(sdk, name, renamed))
        if value not in known and (known or name not in sdk.names):
            yield f"constant {name}", f"{value} here, {sorted(known) or 'nothing'} there"
