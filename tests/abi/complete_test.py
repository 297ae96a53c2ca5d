"""The lists and the client here leave out nothing that headers declare or libraries export."""

import argparse
import pathlib
import re
import sys

import declarations


def missing(found, kind, names):
    return [f"{kind} {name} has no line" for name in names if name not in found]


def scope_of(demangled):
    name = re.sub(r"^(vtable|typeinfo|typeinfo name) for ", "", demangled)
    if name != demangled:
        return name
    return re.sub(r"\(.*$", "", name).rpartition("::")[0]


def unused(clang, folder):
    """What the client of a version leaves out of the headers of that version."""
    declared = declarations.read(clang, declarations.LINUX, [str(folder / "include")])
    client = " ".join(path.read_text(encoding="utf-8") for path in folder.glob("client/*.cpp"))
    words = set(re.findall(r"\w+", client))
    scopes = sorted({*declared.classes, *(function.scope for function in declared.functions)})
    return [f"the client does not use {name}" for name in scopes
            if name.rpartition("::")[2] not in words]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--clang", required=True)
    parser.add_argument("--cxxfilt", required=True)
    parser.add_argument("--root", action="append", required=True)
    parser.add_argument("--exports", action="append", required=True)
    parser.add_argument("--layout", required=True)
    parser.add_argument("--comparisons", required=True)
    parser.add_argument("--kept", required=True, help="the folder of a version: client and headers")
    arguments = parser.parse_args()

    declared = declarations.read(arguments.clang, declarations.LINUX, arguments.root)
    classes = declared.classes
    enumerations = declared.enumerations
    layout = re.sub(r"\s+", " ", pathlib.Path(arguments.layout).read_text(encoding="utf-8"))
    comparisons = pathlib.Path(arguments.comparisons).read_text(encoding="utf-8")

    errors = missing(re.findall(r"struct Class<([\w:]+),", layout), "class", classes)
    for name in classes:
        lines = re.findall(rf"static_assert\(offsetof\({name}, (\w+)\) == ", layout)
        errors += missing(lines, "member of " + name, declared.fields[name])
    errors += missing(re.findall(r"struct Enumeration<([\w:]+)>", layout), "enumeration",
                      enumerations)
    values = re.findall(r"static_assert\(([\w:]+) == \d+,", layout)
    for enumerators in enumerations.values():
        errors += missing(values, "enumerator", enumerators)
    comparable = sorted({function.scope for function in declared.functions
                         if function.name == "operator==" and function.scope in classes})
    errors += missing(re.findall(r"struct (?:OnlyEqual|Published|PublishedConst)<([\w:]+)>",
                                 comparisons), "comparable class", comparable)

    errors += unused(arguments.clang, pathlib.Path(arguments.kept))

    exported = [name for path in arguments.exports for name in declarations.names_in(path)]
    demangled = declarations.run([arguments.cxxfilt, *exported])
    scopes = {scope_of(line) for line in demangled.splitlines()}
    errors += missing([*classes, *declared.namespaces], "exported class", sorted(scopes))

    for error in errors:
        print(error, file=sys.stderr)
    print(f"{len(classes)} classes, {len(enumerations)} enumerations, "
          f"{len(comparable)} comparable classes, {len(scopes)} scopes of exported names")
    return 1 if errors or not classes or not comparable or not scopes else 0


if __name__ == "__main__":
    sys.exit(main())
