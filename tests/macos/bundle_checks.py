"""Every check of a finished bundle by what it says: a function that yields what doesn't hold."""

import subprocess

import archive_checks
import executable_checks
import resource_checks
import seal_checks
from build import MINIMUM

CHECKS = {
    "exactly the files of a bundle, with their modes": resource_checks.what_is_in_it,
    "both architectures and no other": executable_checks.both_architectures,
    f"for macOS {MINIMUM} in each": executable_checks.minimum_version,
    "exactly the system's libraries": executable_checks.libraries,
    "no search path for libraries": executable_checks.search_paths,
    f"room for load commands, {executable_checks.LEAST_ROOM} bytes at least": executable_checks.room_for_commands,
    "the signature of each executable, byte by byte": seal_checks.signature,
    "every file in the list of sealed ones": seal_checks.sealed_files,
    "what the runtime of Objective-C reads": executable_checks.classes,
    "no inner names, no paths of this machine": executable_checks.stripped,
    "the administrator's script, byte by byte": resource_checks.script,
    "Info.plist, key by key": resource_checks.information_list,
    "PkgInfo": resource_checks.type_and_creator,
    "the icon in every size": resource_checks.picture,
    f"less than {resource_checks.MOST_BYTES} bytes": resource_checks.size,
    "the archive unpacks to the bundle": archive_checks.archive,
    "the archive's checksum": archive_checks.checksum,
    "the entitlements of a release": resource_checks.entitlements,
    "no declaration without a use": executable_checks.nothing_unused,
    "no declaration without a page of the reference": executable_checks.pages_named,
}


def findings_of(check, of):
    """What a check finds; what keeps it from looking is a finding as well."""
    try:
        return list(check(of))
    except subprocess.CalledProcessError as error:
        return [f"{error.cmd[0]}: {(error.stdout or '').strip()}"]
    except Exception as error:  # pylint: disable=broad-exception-caught # whatever stops a check is a finding
        return [f"{type(error).__name__}: {error}"]
