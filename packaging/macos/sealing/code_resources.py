"""The list of a bundle's files that its signature covers: _CodeSignature/CodeResources.

Apple's Technical Note TN2206 describes the rules; these are the ones that codesign(1) takes for a bundle with
resources, in the Security project's OSX/libsecurity_codesigning/lib/bundlediskrep.cpp. The older list ("files", SHA-1)
is read by OS X 10.9 and before; codesign(1) writes it still."""

import hashlib
import plistlib
import re

CODE = (
    "^(Frameworks|SharedFrameworks|PlugIns|Plug-ins|XPCServices|Helpers|MacOS"
    "|Library/(Automator|Spotlight|LoginItems))/"
)
LOCALISED = {
    "^Resources/.*\\.lproj/": {"optional": True, "weight": 1000.0},
    "^Resources/.*\\.lproj/locversion.plist$": {"omit": True, "weight": 1100.0},
    "^Resources/Base\\.lproj/": {"weight": 1010.0},
}
OLD_RULES = {"^Resources/": True, "^version.plist$": True, **LOCALISED}
RULES = {
    "^.*": True,
    "^[^/]+$": {"nested": True, "weight": 10.0},
    CODE: {"nested": True, "weight": 10.0},
    ".*\\.dSYM($|/)": {"weight": 11.0},
    "^(.*/)?\\.DS_Store$": {"omit": True, "weight": 2000.0},
    "^Info\\.plist$": {"omit": True, "weight": 20.0},
    "^version\\.plist$": {"weight": 20.0},
    "^embedded\\.provisionprofile$": {"weight": 20.0},
    "^PkgInfo$": {"omit": True, "weight": 20.0},
    "^Resources/": {"weight": 20.0},
    **LOCALISED,
}


def of(contents):
    """The list for the files below a bundle's folder of contents, as a property list."""
    old, new = {}, {}
    for path in sorted(contents.rglob("*")):
        name = path.relative_to(contents).as_posix()
        if path.is_symlink():
            raise ValueError(f"{name}: links are not sealed here")
        # Info.plist, the executable and the list itself are covered by the signature; PkgInfo by nothing.
        if path.is_dir() or name in ("Info.plist", "PkgInfo") or name.startswith(("MacOS/", "_CodeSignature/")):
            continue
        if not re.match(r"Resources/(?!.*\.lproj/)", name):
            raise ValueError(f"{name}: only plain resources are sealed here")
        data = path.read_bytes()
        old[name] = hashlib.sha1(data).digest()
        new[name] = {"hash2": hashlib.sha256(data).digest()}
    return plistlib.dumps({"files": old, "files2": new, "rules": OLD_RULES, "rules2": RULES})
