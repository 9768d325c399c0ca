"""The list of ways to spoil a finished bundle, each with the checks that are to see it and no others."""

from made import output_of

# What is done, the checks that see it, how it is done, and whether the archive is made anew afterwards.
DAMAGES = []


def damage(*checks, packed_anew=True):
    """Registers a damage; afterwards the archive is made anew, unless it is the archive that is spoilt."""

    def register(spoil):
        DAMAGES.append((spoil.__name__.replace("_", " "), set(checks), spoil, packed_anew))
        return spoil

    return register


def replace(path, old, new, count=1):
    data = path.read_bytes()
    assert old in data, f"nothing to spoil in {path}"
    path.write_bytes(data.replace(old, new, count))


def write_checksum(made):
    line = output_of("sha256sum", str(made.archive)).split()[0]
    (made.folder / (made.archive.name + ".sha256")).write_text(f"{line}  {made.archive.name}\n")
