"""The functions that the headers declare, that the ELF library and the Windows library of MinGW
export, and that a library built by a Microsoft compiler would export, are the same. The names of the
latter stand in microsoft.exports, among them all that a client looks for; --update writes the list
instead."""

import argparse
import pathlib
import re
import sys
import tempfile

import declarations

HEADING = """\
# The names that Microsoft compilers give to what the libraries export. They tell more than those of
# others: whether a function is public, virtual or static, and what it returns.
"""


def microsoft_name(function, classes):
    # clang names the destructor that also destroys virtual bases, which no class here has.
    if function.mangled.startswith("??_D"):
        access = "UEAA@XZ" if classes[function.scope] else "QEAA@XZ"
        return "??1" + function.mangled[4:].replace("QEAAXXZ", access)
    return function.mangled


def common_form(demangled):
    """A demangled function as scope, name and parameters, the same from every demangler."""
    text = re.sub(r"\b(class|struct|enum) ", "", demangled)
    text = text.replace("__cdecl", "").replace("(void)", "()").replace("__int64", "long long")
    # size_t: 64 bits on both systems, by different names.
    text = re.sub(r"\bunsigned long\b(?! long)", "unsigned long long", text)
    return re.sub(r"\s", "", text)


def from_itanium(cxxfilt, names):
    lines = declarations.run([cxxfilt, *names]).splitlines()
    return {common_form(line) for line in lines}


def from_microsoft(undname, names):
    output = declarations.run([undname, "--no-access-specifier", "--no-calling-convention",
                               "--no-return-type", "--no-member-type", *names])
    # The name, its meaning and an empty line, for each.
    return {common_form(line) for line in output.splitlines()[1::3]}


def looked_for(clang, nm, roots, source):
    """The names of ours that a client built for a Microsoft system takes from other libraries."""
    with tempfile.TemporaryDirectory() as folder:
        built = pathlib.Path(folder) / "client.obj"
        declarations.run([clang, "--target=" + declarations.WINDOWS, "-std=c++11", "-c", source,
                          "-o", built, *("-I" + root for root in roots)])
        names = declarations.run([nm, "--undefined-only", "--just-symbol-name", built]).split()
    return {name[len("__imp_"):] for name in names
            if name.startswith("__imp_") and "@Korvane@@" in name}


def differences(what, found, expected):
    return ([f"{what}: not expected: {name}" for name in sorted(found - expected)]
            + [f"{what}: missing: {name}" for name in sorted(expected - found)])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--clang", required=True)
    parser.add_argument("--cxxfilt", required=True)
    parser.add_argument("--undname", required=True)
    parser.add_argument("--nm", required=True, help="of LLVM")
    parser.add_argument("--client", required=True, help="a source of a client")
    parser.add_argument("--root", action="append", required=True)
    parser.add_argument("--exports", action="append", required=True)
    parser.add_argument("--microsoft", required=True)
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()

    linux, windows = (declarations.read(arguments.clang, target, arguments.root)
                      for target in (declarations.LINUX, declarations.WINDOWS))
    microsoft = {microsoft_name(function, windows.classes)
                 for function in windows.functions if function.is_exported}
    microsoft |= {"??_7" + "@".join(reversed(name.split("::"))) + "@@6B@"
                  for name, is_polymorphic in windows.classes.items() if is_polymorphic}
    if arguments.update:
        with open(arguments.microsoft, "w", encoding="utf-8") as file:
            file.write(HEADING + "\n".join(sorted(microsoft)) + "\n")
        return 0

    client = looked_for(arguments.clang, arguments.nm, arguments.root, arguments.client)
    errors = [f"looked for by the client: {name}" for name in sorted(client - microsoft)]
    exported = {name for path in arguments.exports for name in declarations.names_in(path)}
    expected = set(declarations.names_in(arguments.microsoft))
    errors += differences("named by Microsoft", microsoft, expected)
    errors += [f"foreign name: {name}" for name in sorted(exported | microsoft)
               if re.search(r"St\d|NSt|5boost|@std@@|@boost@@", name)]

    declared = from_itanium(arguments.cxxfilt, [
        function.mangled for function in linux.functions if function.is_exported])
    functions = from_itanium(arguments.cxxfilt, [
        name for name in exported if not name.startswith("_ZT")])
    errors += differences("exported", functions, declared)
    errors += differences("declared for Microsoft", from_microsoft(arguments.undname, [
        name for name in microsoft if not name.startswith("??_7")]), declared)

    polymorphic = {name for name, is_polymorphic in linux.classes.items() if is_polymorphic}
    for prefix, meaning in (("_ZTV", "vtable"), ("_ZTI", "typeinfo"), ("_ZTS", "typeinfo name")):
        tables = from_itanium(arguments.cxxfilt, [
            name for name in exported if name.startswith(prefix)])
        errors += differences(meaning, tables, {
            common_form(f"{meaning} for {name}") for name in polymorphic})

    for error in errors:
        print(error, file=sys.stderr)
    print(f"{len(declared)} functions, {len(polymorphic)} polymorphic classes, "
          f"{len(client)} names in the client")
    return 1 if errors or not declared or not polymorphic or not client else 0


if __name__ == "__main__":
    sys.exit(main())
