"""What must hold of the archive and its checksum."""

import pathlib
import subprocess
import tempfile
import time

from build import output_of, tree

# Of all in the archive, in the time zone of whoever unpacks it.
DATE = time.mktime((2000, 1, 1, 0, 0, 0, 0, 0, -1))


def archive(build):
    listing = output_of("unzip", "-Z1", str(build.archive)).splitlines()
    if listing != sorted(listing):
        yield "not in order"
    with tempfile.TemporaryDirectory() as folder:
        # unzip takes away what the umask does.
        output_of("bash", "-c", 'umask 022 && exec unzip -q -X "$1" -d "$2"', "bash", str(build.archive), folder)
        unpacked = pathlib.Path(folder)
        if [path.name for path in unpacked.iterdir()] != [build.bundle.name]:
            yield "holds something else than the bundle"
            return
        if tree(unpacked / build.bundle.name) != tree(build.bundle):
            yield "unpacks to other files, modes or links"
            return
        below = [path for path in build.bundle.rglob("*") if path.is_file() and not path.is_symlink()]
        files = [path.relative_to(build.folder) for path in below]
        for path in files:
            if (build.folder / path).read_bytes() != (unpacked / path).read_bytes():
                yield f"{path.name} unpacks to other bytes"
        if {(unpacked / path).stat().st_mtime for path in files} != {DATE}:
            yield "files have dates of their own"


def checksum(build):
    command = ["sha256sum", "--check", "--status", build.archive.name + ".sha256"]
    result = subprocess.run(command, cwd=build.folder, check=False)
    if result.returncode != 0:
        yield "does not verify"
