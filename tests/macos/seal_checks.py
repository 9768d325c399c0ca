"""What must hold of the seal of the bundle: the signature in each executable and the list of sealed files."""

import hashlib
import plistlib
import re

import code_signature
import mach_o
from build import IDENTIFIER, output_of

LIST = "_CodeSignature/CodeResources"
# What the signature covers otherwise, and PkgInfo, which says nothing that Info.plist doesn't.
NOT_LISTED = {"Info.plist", "PkgInfo", LIST}
# Where a file could be put that does not belong. A Mac is to miss it in the list.
PLACES = ("Resources/a.plist", "Frameworks/a.dylib", "MacOS/other", "PlugIns/a", "a", "Library/a", "version.plist")


def signature(build):
    data = build.executable.read_bytes()
    yield from mach_o.beside_the_slices(data)
    information = (build.contents / "Info.plist").read_bytes()
    resources = read_or_nothing(build.contents / LIST)
    for architecture, executable in mach_o.slices(data).items():
        for finding in code_signature.findings(executable, IDENTIFIER, information, resources):
            yield f"{architecture}: {finding}"


def read_or_nothing(path):
    return path.read_bytes() if path.is_file() else b""


def rule_for(rules, path):
    """What the rules say of a file: Apple's Technical Note TN2206. The heaviest one that matches holds."""
    best = {"omit": True, "weight": -1.0}
    for pattern, value in rules.items():
        options = value if isinstance(value, dict) else {"omit": not value}
        if re.search(pattern, path) and options.get("weight", 1.0) > best.get("weight", 1.0):
            best = options
    return best


def sealed_files(build):
    """Compares the list with the files, as a Mac does before it opens a downloaded bundle."""
    path = build.contents / LIST
    if not path.is_file():
        yield "the bundle is not sealed"
        return
    output_of("plistutil", "-i", str(path), "-o", "/dev/null")
    values = plistlib.loads(path.read_bytes())
    if set(values) != {"files", "files2", "rules", "rules2"}:
        yield f"it has {sorted(values)}"
        return
    files = [each for each in build.contents.rglob("*") if not each.is_dir() or each.is_symlink()]
    names = {each.relative_to(build.contents).as_posix() for each in files}
    executable = build.executable.relative_to(build.contents).as_posix()
    listed = names - NOT_LISTED - {executable}
    for old, kind, length in (("files", "sha1", 20), ("files2", "sha256", 32)):
        yield from listing_findings(build, values[old], listed, kind, length)
    for name in sorted(listed | set(PLACES)):
        rule = rule_for(values["rules2"], name)
        if rule.get("omit") or rule.get("optional"):
            yield f"{name}: the rules let it come and go"
    for name in sorted(listed):
        if rule_for(values["rules2"], name).get("nested"):
            yield f"{name}: the rules take it for code of its own"
    for name in ("Info.plist", "PkgInfo"):
        if not rule_for(values["rules2"], name).get("omit"):
            yield f"{name}: the rules want it in the list"
    for name in sorted(listed):
        if rule_for(values["rules"], name).get("omit"):
            yield f"{name}: the older rules leave it out"


def listing_findings(build, entries, listed, kind, length):
    for name in sorted(listed ^ set(entries)):
        yield f"{name}: {'not sealed' if name in listed else 'sealed, but not there'} ({kind})"
    for name in sorted(listed & set(entries)):
        entry = entries[name]
        value = entry if kind == "sha1" else entry.get("hash2")
        if kind == "sha256" and set(entry) != {"hash2"}:
            yield f"{name}: the entry has {sorted(entry)}"
        data = (build.contents / name).read_bytes()
        if not isinstance(value, bytes) or len(value) != length or value != hashlib.new(kind, data).digest():
            yield f"{name}: not what was sealed ({kind})"
