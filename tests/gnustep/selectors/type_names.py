"""Types of declarations as words that mean the same on the Mac and in GNUstep."""

from clang.cindex import TypeKind

# Both call them by these names, and mean the same by them, whatever stands behind the name.
KNOWN = {
    "BOOL": "boolean",
    "Boolean": "boolean",
    "SEL": "selector",
    "Class": "class",
    "id": "object",
    "instancetype": "object of its class",
    "CGFloat": "real 8",
    "CGRect": "rectangle",
    "NSRect": "rectangle",
    "CGPoint": "point",
    "NSPoint": "point",
    "CGSize": "size",
    "NSSize": "size",
    "NSZone": "zone",
    "NSRange": "range",
}

# Older ones of the parser's Python interfaces leave it out, and fail over it.
if not hasattr(TypeKind, "OBJCTYPEPARAM"):
    TypeKind.OBJCTYPEPARAM = TypeKind(162)

SIGNED = {TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.SHORT, TypeKind.INT, TypeKind.LONG, TypeKind.LONGLONG}
UNSIGNED = {
    TypeKind.CHAR_U,
    TypeKind.UCHAR,
    TypeKind.USHORT,
    TypeKind.UINT,
    TypeKind.ULONG,
    TypeKind.ULONGLONG,
}
REAL = {TypeKind.FLOAT, TypeKind.DOUBLE, TypeKind.LONGDOUBLE}
ARRAY = {TypeKind.CONSTANTARRAY, TypeKind.INCOMPLETEARRAY, TypeKind.VARIABLEARRAY}


def object_name(spelling):
    """Of "__kindof NSArray<NSString *> * _Nullable" the "NSArray": what an object holds is not compared, and
    whether it may be nil neither, since GNUstep says nothing about the two."""
    name = spelling.split("<")[0].replace("__kindof", "").replace("const", "").replace("*", " ")
    word = name.split()[0]
    return {"id": "object", "Class": "class"}.get(word, word)


def function_words(kind):
    arguments = ", ".join(words(each) for each in kind.argument_types())
    return f"({arguments}) giving {words(kind.get_result())}"


def words(kind):
    """What `kind` is, as words."""
    name = kind.get_declaration().spelling.lstrip("_")
    if kind.kind == TypeKind.TYPEDEF:
        return KNOWN.get(name) or words(kind.get_declaration().underlying_typedef_type) or f"record {name}"
    if kind.kind == TypeKind.ELABORATED:
        return words(kind.get_named_type())
    if kind.kind == TypeKind.UNEXPOSED:
        return words(kind.get_canonical()) if kind.get_canonical() != kind else object_name(kind.spelling)
    if kind.kind in (TypeKind.OBJCOBJECTPOINTER, TypeKind.OBJCINTERFACE):
        return object_name(kind.spelling)
    if kind.kind in (TypeKind.OBJCID, TypeKind.OBJCTYPEPARAM):
        return "object"
    if kind.kind == TypeKind.OBJCCLASS:
        return "class"
    if kind.kind == TypeKind.OBJCSEL:
        return "selector"
    if kind.kind == TypeKind.BLOCKPOINTER:
        return "block " + function_words(kind.get_pointee())
    if kind.kind == TypeKind.POINTER:
        return "pointer to " + words(kind.get_pointee())
    if kind.kind in ARRAY:
        return "pointer to " + words(kind.element_type)
    if kind.kind in (TypeKind.FUNCTIONPROTO, TypeKind.FUNCTIONNOPROTO):
        return "function " + function_words(kind)
    if kind.kind == TypeKind.ENUM:
        return "enumeration of " + words(kind.get_declaration().enum_type)
    if kind.kind == TypeKind.RECORD:
        return KNOWN.get(name) or (name and f"record {name}")
    if kind.kind == TypeKind.BOOL:
        return "boolean"
    if kind.kind in SIGNED:
        return f"number {kind.get_size()}"
    if kind.kind in UNSIGNED:
        return f"unsigned number {kind.get_size()}"
    if kind.kind in REAL:
        return f"real {kind.get_size()}"
    return kind.spelling.replace("const ", "")


def same(here, there):
    """Whether two types are the same in words. Enumerations are numbers: GNUstep often declares the one
    where the Mac has the other, of whatever size."""
    if here.replace("enumeration of ", "") == there.replace("enumeration of ", ""):
        return True
    numbers = ("enumeration of ", "number ", "unsigned number ")
    return "enumeration of " in here + there and all(each.startswith(numbers) for each in (here, there))
