"""The parts of each exported class lie where records.txt says, as clang lays them out for one
binary interface. --update writes the list instead."""

import argparse
import difflib
import re
import sys

import declarations

HEADING = """\
# The layout of each exported class, the same for every compiler: offset and part, parts of parts
# indented, then size and alignment in bytes. Compiled clients have these built in.
"""


def layouts(dump, classes):
    """The layouts of `classes` in a dump, in the form of records.txt, by name."""
    found = {}
    for block in dump.split("*** Dumping AST Record Layout")[1:]:
        parts = re.findall(r"^ *(\d+) \| ( *)(.*)$", block, re.MULTILINE)
        size, alignment = re.search(r"\[sizeof=(\d+),.*?\balign=(\d+)", block, re.DOTALL).groups()
        plain = [re.sub(r"\b(class|struct|enum) ", "", text) for _, _, text in parts]
        name = re.sub(r" \(empty\)$", "", plain[0])
        if name not in classes:
            continue
        lines = [name]
        for (offset, indent, _), text in list(zip(parts, plain))[1:]:
            text = re.sub(r"\(\w+ vf?table pointer\)", "(table of virtual functions)", text)
            text = re.sub(r"\w+::", "", text)  # versions of clang differ in the scopes they show
            lines.append(f"  {offset:>2}{indent[1:]} {text}")
        lines.append(f"  {size} bytes, aligned by {alignment}")
        found[name] = lines
    return found


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--clang", required=True)
    parser.add_argument("--target", required=True)
    parser.add_argument("--root", action="append", required=True)
    parser.add_argument("--expected", required=True)
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()

    headers = arguments.clang, arguments.target, arguments.root
    classes = declarations.read(*headers).classes
    uses = "".join(f"static_assert(sizeof({name}) != 0, \"\");\n" for name in classes)
    found = layouts(declarations.dump(*headers, "-fdump-record-layouts", uses), classes)
    actual = HEADING.splitlines() + [line for name in sorted(found) for line in found[name]]
    if arguments.update:
        with open(arguments.expected, "w", encoding="utf-8") as file:
            file.write("\n".join(actual) + "\n")
        return 0

    with open(arguments.expected, encoding="utf-8") as file:
        expected = file.read().splitlines()
    difference = list(difflib.unified_diff(expected, actual, "expected", "found", lineterm="", n=3))
    absent = [f"{name}: no layout in the dump" for name in classes if name not in found]
    for line in difference + absent:
        print(line, file=sys.stderr)
    print(f"{len(found)} layouts")
    return 1 if difference or absent or not found else 0


if __name__ == "__main__":
    sys.exit(main())
