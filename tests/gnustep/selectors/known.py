"""The lists beside this file: a name and, after "|", the reason why it is believed though it does not agree, or
the older name that GNUstep has for it; one a line."""


def read(path):
    reasons = {}
    errors = []
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            name, separator, reason = (each.strip() for each in line.partition("|"))
            if not name or name.startswith("#"):
                continue
            if not separator or not reason:
                errors.append(f"{path}:{number}: no reason")
            elif name in reasons:
                errors.append(f"{path}:{number}: a second time: {name}")
            reasons[name] = reason
    return reasons, errors


def complaints(comparison, missing, apart, different, renamed):
    """What neither agrees nor is known, and what is known and not so. `missing`: what the SDK has not, with why;
    what GNUstep alone has not needs no reason."""
    lines = [
        f"not in the SDK, and not listed: {each}: {missing[each]}" for each in sorted(missing.keys() - apart.keys())
    ]
    lines += [
        f"listed as not in the SDK, and there, or not declared: {each}"
        for each in sorted(apart.keys() - missing.keys())
    ]
    lines += [
        f"listed as renamed, and there by its own name, or not declared: {each}"
        for each in sorted(renamed.keys() - comparison.renamed)
    ]
    lines += [
        f"different, and not listed: {each}: {comparison.different[each]}"
        for each in sorted(comparison.different.keys() - different.keys())
    ]
    lines += [
        f"listed as different, and the same, or not declared: {each}"
        for each in sorted(different.keys() - comparison.different.keys())
    ]
    return lines
