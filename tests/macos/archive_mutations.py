"""What can be wrong with the archive and its checksum."""

import re
import zipfile

import archive_checks as checks
from mutation import mutation, write_checksum


def repack(build, change):
    """Writes the archive anew with its checksum, each entry as `change` has it: (entry, bytes) or none."""
    with zipfile.ZipFile(build.archive) as old:
        entries = [(entry, old.read(entry)) for entry in old.infolist()]
    with zipfile.ZipFile(build.archive, "w", zipfile.ZIP_DEFLATED) as new:
        for entry, data in change(entries):
            new.writestr(entry, data)
    write_checksum(build)


@mutation(checks.archive, packed_anew=False)
def other_bytes_in_the_archive(build):
    repack(build, lambda entries: [(entry, data.replace(b"Kelmar", b"Kalmar", 1)) for entry, data in entries])


@mutation(checks.archive, packed_anew=False)
def modes_lost_in_the_archive(build):
    def change(entries):
        for entry, data in entries:
            entry.external_attr &= 0xFFFF
            yield entry, data

    repack(build, change)


@mutation(checks.archive, packed_anew=False)
def a_file_beside_the_bundle(build):
    repack(build, lambda entries: [*entries, (zipfile.ZipInfo("read me", (2000, 1, 1, 0, 0, 0)), b"")])


@mutation(checks.archive, packed_anew=False)
def another_order(build):
    repack(build, reversed)


@mutation(checks.archive, packed_anew=False)
def the_date_of_the_day(build):
    def change(entries):
        for entry, data in entries:
            entry.date_time = (2024, 5, 6, 7, 8, 10)
            yield entry, data

    repack(build, change)


@mutation(checks.archive, checks.checksum, packed_anew=False)
def an_archive_cut_off(build):
    build.archive.write_bytes(build.archive.read_bytes()[:-1000])


@mutation(checks.checksum, packed_anew=False)
def another_checksum(build):
    path = build.folder / (build.archive.name + ".sha256")
    text = path.read_text()
    path.write_text(re.sub(r"^.", lambda first: "1" if first.group() == "0" else "0", text))
