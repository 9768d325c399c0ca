"""What can be wrong with the archive and its checksum."""

import re
import zipfile

import archive_checks as checks
from damage import damage, write_checksum


def repack(made, change):
    """Writes the archive anew with its checksum, each entry as `change` has it: (entry, bytes) or none."""
    with zipfile.ZipFile(made.archive) as old:
        entries = [(entry, old.read(entry)) for entry in old.infolist()]
    with zipfile.ZipFile(made.archive, "w", zipfile.ZIP_DEFLATED) as new:
        for entry, data in change(entries):
            new.writestr(entry, data)
    write_checksum(made)


@damage(checks.archive, packed_anew=False)
def other_bytes_in_the_archive(made):
    repack(made, lambda entries: [(entry, data.replace(b"Kelmar", b"Kalmar", 1)) for entry, data in entries])


@damage(checks.archive, packed_anew=False)
def modes_lost_in_the_archive(made):
    def change(entries):
        for entry, data in entries:
            entry.external_attr &= 0xFFFF
            yield entry, data

    repack(made, change)


@damage(checks.archive, packed_anew=False)
def a_file_beside_the_bundle(made):
    repack(made, lambda entries: [*entries, (zipfile.ZipInfo("read me", (2000, 1, 1, 0, 0, 0)), b"")])


@damage(checks.archive, packed_anew=False)
def another_order(made):
    repack(made, lambda entries: reversed(entries))


@damage(checks.archive, packed_anew=False)
def the_date_of_the_day(made):
    def change(entries):
        for entry, data in entries:
            entry.date_time = (2024, 5, 6, 7, 8, 10)
            yield entry, data

    repack(made, change)


@damage(checks.archive, checks.checksum, packed_anew=False)
def an_archive_cut_off(made):
    made.archive.write_bytes(made.archive.read_bytes()[:-1000])


@damage(checks.checksum, packed_anew=False)
def another_checksum(made):
    path = made.folder / (made.archive.name + ".sha256")
    text = path.read_text()
    path.write_text(re.sub(r"^.", lambda first: "1" if first.group() == "0" else "0", text))
