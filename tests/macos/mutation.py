"""The mutations of a finished bundle, each with exactly the checks that must fail on it."""

from build import output_of

# Each: its name, the checks that must fail, the function that mutates a copy, and whether to pack the archive anew.
MUTATIONS = []


def mutation(*checks, packed_anew=True):
    """Registers a mutation. Afterwards the archive is packed anew, unless it is the archive that is mutated."""

    def register(mutate):
        MUTATIONS.append((mutate.__name__.replace("_", " "), set(checks), mutate, packed_anew))
        return mutate

    return register


def replace(path, old, new, count=1):
    data = path.read_bytes()
    assert old in data, f"nothing to replace in {path}"
    path.write_bytes(data.replace(old, new, count))


def write_checksum(build):
    line = output_of("sha256sum", str(build.archive)).split()[0]
    (build.folder / (build.archive.name + ".sha256")).write_text(f"{line}  {build.archive.name}\n")
