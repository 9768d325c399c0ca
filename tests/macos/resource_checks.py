"""What must hold of the files of the bundle, and of what is in them."""

import os
import plistlib
import re

import icon
from build import IDENTIFIER, MINIMUM, NAME, PROJECT, legacy_identifier, output_of, tree, version

# What macOS may ask for, each time with a sentence of the program's: why.
USAGES = ("AppleEvents", "DesktopFolder", "DocumentsFolder", "DownloadsFolder")

MOST_BYTES = 4 * 1024 * 1024

# All that is in the bundle, with the modes.
CONTENTS = {
    ".": 0o755,
    "Contents": 0o755,
    "Contents/Info.plist": 0o644,
    "Contents/MacOS": 0o755,
    f"Contents/MacOS/{NAME}": 0o755,
    "Contents/PkgInfo": 0o644,
    "Contents/Resources": 0o755,
    "Contents/Resources/kelmar-uninstaller.icns": 0o644,
    "Contents/Resources/uninstall-as-admin.sh": 0o755,
    "Contents/_CodeSignature": 0o755,
    "Contents/_CodeSignature/CodeResources": 0o644,
}


def information():
    """What Info.plist is to say, all of it."""
    return {
        "CFBundleDevelopmentRegion": "en",
        "CFBundleDisplayName": NAME,
        "CFBundleExecutable": NAME,
        "CFBundleIconFile": "kelmar-uninstaller",
        "CFBundleIdentifier": IDENTIFIER,
        "CFBundleInfoDictionaryVersion": "6.0",
        "CFBundleName": NAME,
        "CFBundlePackageType": "APPL",
        "CFBundleShortVersionString": version(),
        "CFBundleSupportedPlatforms": ["MacOSX"],
        "CFBundleVersion": version(),
        "LSApplicationCategoryType": "public.app-category.utilities",
        "LSMinimumSystemVersion": MINIMUM,
        "NSHighResolutionCapable": True,
        "NSPrincipalClass": "NSApplication",
        "NSSupportsAutomaticTermination": False,
        "NSSupportsSuddenTermination": False,
    }


def what_is_in_it(build):
    found = tree(build.bundle)
    for path in sorted(found.keys() | CONTENTS.keys()):
        if found.get(path) != CONTENTS.get(path):
            yield f"{path}: {found.get(path, 'missing')}, wanted {CONTENTS.get(path, 'nothing')} (modes as numbers)"


def script(build):
    source = PROJECT / "admin/uninstall-as-admin.sh"
    if (build.contents / "Resources/uninstall-as-admin.sh").read_bytes() != source.read_bytes():
        yield "not the bytes of admin/uninstall-as-admin.sh"


def information_list(build):
    data = (build.contents / "Info.plist").read_bytes()
    try:
        # A second reader beside Python's own.
        output_of("plistutil", "-i", str(build.contents / "Info.plist"), "-f", "bin", "-o", os.devnull)
        found = plistlib.loads(data)
    except Exception as error:  # pylint: disable=broad-exception-caught # whatever stops a reader is a finding
        yield f"not a property list: {error}"
        return
    for subject in USAGES:
        key = f"NS{subject}UsageDescription"
        usage = found.pop(key, "")
        if not re.fullmatch(r"[A-Z][^.]+\.", usage):
            yield f"{key} is not one sentence: {usage!r}"
    wanted = information()
    for key in sorted(found.keys() | wanted.keys()):
        if found.get(key) != wanted.get(key):
            yield f"{key}: {found.get(key)!r}, wanted {wanted.get(key)!r}"
    if str(found.get("CFBundleIdentifier", "")).startswith(legacy_identifier()):
        yield "the identifier begins with the product's own: the program would remove its own settings"


def entitlements(build):
    data = build.entitlements.read_bytes()
    for comment in re.findall(rb"<!--(.*?)-->", data, re.DOTALL):
        if b"--" in comment:
            yield "a comment holds two hyphens, which no reader of XML need take"
            return
    found = plistlib.loads(data)
    if found != {"com.apple.security.automation.apple-events": True}:
        yield f"{found}: not AppleScript, which asks for the password, and nothing else"


def type_and_creator(build):
    if (build.contents / "PkgInfo").read_bytes() != b"APPL????":
        yield "not APPL????"


def picture(build):
    path = build.contents / "Resources/kelmar-uninstaller.icns"
    yield from icon.findings_in(path.read_bytes())
    # A second reader, for the two that aren't PNG.
    listing = output_of("icns2png", "--list", str(path))
    for side in (16, 32):
        if not re.search(rf"{side}x{side} 32-bit icon .*\n.*{side}x{side} 8-bit mask", listing):
            yield f"icns2png finds no icon of {side}"


def size(build):
    total = sum(path.lstat().st_size for path in build.bundle.rglob("*") if path.is_file())
    if total >= MOST_BYTES:
        yield f"{total} bytes"
